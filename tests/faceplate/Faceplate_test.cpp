#include "faceplate/Faceplate.h"

#include <gtest/gtest.h>

#include "base/DataFolder.h"
#include "fakes/FakeFiles.h"
#include "fakes/FakeRegistry.h"
#include "settings/CReg.h"

namespace sonaro {
namespace {

using F = FaceplateColors;

TEST(Color, TextForms) {
  EXPECT_EQ(ParseColor("#FFB03A"), Rgb(0xFFB03A));
  EXPECT_EQ(ParseColor(" #ffb03a "), Rgb(0xFFB03A));
  EXPECT_EQ(ParseColor("255"), Rgb(0xFF0000));  // red is the lowest byte of the number
  EXPECT_EQ(FormatColor(Rgb(0x0A7566)), "#0A7566");
  for (const char* text :
       {"", "#", "#12345", "#1234567", "#12345G", "#-12345", "red", "-1", "16777216", "1.5"})
    EXPECT_EQ(ParseColor(text), std::nullopt) << text;
}

TEST(DeriveColors, MixesRounded) {
  const struct {
    Color F::*member;
    std::uint32_t graphite;
    std::uint32_t porcelain;
  } cases[] = {
      {&F::buttonTop, 0x434951, 0xF7F6F1},   {&F::buttonBottom, 0x343942, 0xE8E6E2},
      {&F::buttonHigh, 0x5F646B, 0xF9F7F3},  {&F::buttonHover, 0x534D44, 0xEFDCD0},
      {&F::buttonMuted, 0xC8CED4, 0x3B4147}, {&F::buttonDown, 0x2C3138, 0xC6C4C0},
      {&F::buttonOn, 0x372E1F, 0xF5E0D5},    {&F::textOff, 0x96999C, 0x777877},
      {&F::accentTop, 0xFFB546, 0xC34B1B},   {&F::accentBottom, 0xF0A537, 0xB43B0B},
      {&F::accentHover, 0xFFB64A, 0xC44E1F}, {&F::accentDown, 0xD69431, 0xA0350A},
      {&F::rowSelected, 0x483921, 0xF1D3C4}, {&F::rowSelectedOff, 0x32363A, 0xDDDDDA},
      {&F::rowHover, 0x27231D, 0xFAEEE5},    {&F::hair, 0x2D3136, 0xE2E1DE},
      {&F::tickOff, 0x53585E, 0xB7B9B9},     {&F::thumb, 0x767D85, 0x8E9295},
      {&F::thumbHover, 0x939BA4, 0x6E7378},  {&F::socket, 0x24282E, 0xE0DDD7},
      {&F::milledSoft, 0x3C4149, 0xF7F6F3},  {&F::buttonOnLow, 0x513F22, 0xEECCBB},
      {&F::edgeOff, 0x181B1F, 0xB0ABA3},     {&F::edgeControl, 0x889099, 0x7A7E82},
      {&F::glassMuted, 0xAFB8C1, 0x4E555C},
  };
  const F graphite = DeriveColors(BuiltInColors(BuiltInFaceplate::Graphite));
  const F porcelain = DeriveColors(BuiltInColors(BuiltInFaceplate::Porcelain));
  for (const auto& c : cases) {
    EXPECT_EQ(FormatColor(graphite.*c.member), FormatColor(Rgb(c.graphite)));
    EXPECT_EQ(FormatColor(porcelain.*c.member), FormatColor(Rgb(c.porcelain)));
  }
}

TEST(BuiltInColors, CanBeReadByEveryone) {
  const struct {
    Color F::*foreground;
    Color F::*ground;
    double least;
  } pairs[] = {
      {&F::text, &F::plate, 4.5},
      {&F::text, &F::plateTop, 4.5},
      {&F::text, &F::plateBottom, 4.5},
      {&F::muted, &F::plateBottom, 4.5},
      {&F::text, &F::buttonHover, 4.5},
      {&F::text, &F::buttonDown, 4.5},
      {&F::buttonMuted, &F::buttonTop, 4.5},
      {&F::buttonMuted, &F::buttonHover, 4.5},
      {&F::onAccent, &F::accentTop, 4.5},
      {&F::onAccent, &F::accentHover, 4.5},
      {&F::glassText, &F::rowSelected, 4.5},
      {&F::glassText, &F::rowSelectedOff, 4.5},
      {&F::glassMuted, &F::zebra, 4.5},
      {&F::glassMuted, &F::rowHover, 4.5},
      {&F::tabText, &F::buttonOnLow, 4.5},
      {&F::tabText, &F::plate, 4.5},
      {&F::alert, &F::glass, 4.5},
      {&F::signal, &F::rowSelected, 3.0},
      {&F::focus, &F::button, 3.0},
      {&F::focus, &F::rowSelected, 3.0},
      {&F::thumb, &F::glass, 3.0},
      {&F::accent, &F::glass, 3.0},
      {&F::edgeControl, &F::plate, 3.0},
  };
  for (const auto which : {BuiltInFaceplate::Graphite, BuiltInFaceplate::Porcelain}) {
    const F colors = DeriveColors(BuiltInColors(which));
    for (const auto& pair : pairs)
      EXPECT_GE(ContrastRatio(colors.*pair.foreground, colors.*pair.ground), pair.least)
          << FormatColor(colors.*pair.foreground) << " on " << FormatColor(colors.*pair.ground);
  }
}

class FaceplateTest : public ::testing::Test {
 protected:
  FaceplateTest() { settings.CheckKeyIsThere(kSettingsKey); }
  FakeRegistry registry;
  CReg settings{registry};
  FakeFiles files;
  DataFolder folder{files, "/app", '/'};
};

TEST_F(FaceplateTest, IsGraphiteUntilSomethingIsStored) {
  Faceplate faceplate(settings, folder);
  faceplate.Load();
  EXPECT_EQ(faceplate.Name(), "Graphite");
  EXPECT_EQ(static_cast<const BaseColors&>(faceplate.Colors()), BuiltInColors(BuiltInFaceplate::Graphite));
  EXPECT_TRUE(registry.writes.empty());
}

TEST_F(FaceplateTest, KeepsAChoice) {
  Faceplate(settings, folder).Choose(BuiltInFaceplate::Porcelain);
  EXPECT_EQ(registry.writes.size(), 21U);
  EXPECT_EQ(settings.Setting("FacePlateColorListBox"), "#FFFDF8");
  Faceplate later(settings, folder);
  later.Load();
  EXPECT_EQ(later.Name(), "Porcelain");
  EXPECT_EQ(static_cast<const BaseColors&>(later.Colors()), BuiltInColors(BuiltInFaceplate::Porcelain));
}

TEST_F(FaceplateTest, FillsWhatAPackageLeavesOut) {
  settings.SetSetting("FacePlateName", "Walnut");
  settings.SetSetting("SellColor1", "#112233");
  settings.SetSetting("Color7", "walnut");
  Faceplate faceplate(settings, folder);
  faceplate.Load();
  EXPECT_EQ(faceplate.Name(), "Walnut");
  BaseColors expected = BuiltInColors(BuiltInFaceplate::Graphite);
  expected.accent = Rgb(0x112233);
  EXPECT_EQ(static_cast<const BaseColors&>(faceplate.Colors()), expected);
}

TEST_F(FaceplateTest, HighContrastShowsTheSystemsColoursAndStoresNone) {
  Faceplate faceplate(settings, folder);
  faceplate.UseHighContrast([](SystemColor color) { return Rgb(static_cast<std::uint32_t>(color)); });
  faceplate.Choose(BuiltInFaceplate::Porcelain);  // meant for later
  const FaceplateColors& colors = faceplate.Colors();
  const auto is = [](Color color, SystemColor system) {
    return color == Rgb(static_cast<std::uint32_t>(system));
  };
  EXPECT_TRUE(is(colors.glass, SystemColor::Window) && is(colors.glassText, SystemColor::WindowText));
  EXPECT_TRUE(is(colors.buttonHover, SystemColor::ButtonFace) && is(colors.text, SystemColor::ButtonText));
  EXPECT_TRUE(is(colors.rowSelected, SystemColor::Highlight));
  EXPECT_TRUE(is(colors.rowSelectedText, SystemColor::HighlightText));
  EXPECT_EQ(settings.Setting("ColorBackground"), "#ECE9E2");
  faceplate.EndHighContrast();
  EXPECT_EQ(faceplate.Colors().plate, Rgb(0xECE9E2));
}

TEST_F(FaceplateTest, FilesLieInTheDepot) {
  files.Put("/app/depot/XDF53.WAV", "RIFF");
  const Faceplate faceplate(settings, folder);
  EXPECT_EQ(faceplate.FilePath(kClickSound), "/app/depot/XDF53.WAV");
}

}  // namespace
}  // namespace sonaro
