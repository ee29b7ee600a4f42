#include "faceplate/FaceplateColors.h"

namespace sonaro {
namespace {

using B = BaseColors;

// Setting, colour, and its value in the two built-in faceplates. The names are those of settings that users
// may have stored, so they never change.
constexpr std::array<ColorSetting, 20> kSettings = {{
    {{"ColorBackground"}, &B::plate, Rgb(0x262A30), Rgb(0xECE9E2)},
    {{"Color1"}, &B::plateTop, Rgb(0x2E333A), Rgb(0xF6F4EF)},
    {{"Color2"}, &B::plateBottom, Rgb(0x22262B), Rgb(0xE3DFD6)},
    {{"Color3"}, &B::outline, Rgb(0x0D0F11), Rgb(0x7E796F)},
    {{"Color4"}, &B::milled, Rgb(0x4A515A), Rgb(0xFFFFFF)},
    {{"Color5"}, &B::groove, Rgb(0x16191C), Rgb(0xBDB8AC)},
    {{"Color6"}, &B::frame, Rgb(0x0B0D0F), Rgb(0xA39D91)},
    {{"Color7"}, &B::muted, Rgb(0xA9B2BC), Rgb(0x545B62)},
    {{"Color8"}, &B::zebra, Rgb(0x191C20), Rgb(0xF5F1E8)},
    {{"Color9"}, &B::focus, Rgb(0xFFFFFF), Rgb(0x10151A)},
    {{"SellColor1"}, &B::accent, Rgb(0xFFB03A), Rgb(0xBF3F0C)},
    {{"SellColor2"}, &B::onAccent, Rgb(0x1E1405), Rgb(0xFFFFFF)},
    {{"SellColor3"}, &B::signal, Rgb(0x66DFC2), Rgb(0x0A7566)},
    {{"SellColor4"}, &B::alert, Rgb(0xFF8672), Rgb(0xB0231B)},
    {{"FacePlateColorButtonEnabled"}, &B::button, Rgb(0x373D46), Rgb(0xF7F5F0)},
    {{"FacePlateColorButtonNotEnabled"}, &B::buttonOff, Rgb(0x2A2E34), Rgb(0xE6E2DA)},
    {{"FacePlateColorListBox"}, &B::glass, Rgb(0x14171A), Rgb(0xFFFDF8)},
    {{"FacePlateColorTabAndTextColor"}, &B::tabText, Rgb(0xFFC56B), Rgb(0xA23405)},
    {{"FacePlateColorText"}, &B::text, Rgb(0xEEF0F2), Rgb(0x1C2126)},
    {{"FacePlateColorTextBoxAndListBoxColorForText"}, &B::glassText, Rgb(0xDCE1E6), Rgb(0x22272C)},
}};

// A derived colour: `percent` of the way from one colour of the faceplate to another, or to white or black.
struct MixRule {
  Color FaceplateColors::*result;
  Color BaseColors::*from;
  Color BaseColors::*to;  // null: `fixed`
  Color fixed;
  int percent;
};

using F = FaceplateColors;

// What a faceplate does not name. Percentages keep lit, pressed and disabled parts apart on dark and light
// plates alike.
constexpr std::array<MixRule, 26> kMixes = {{
    {&F::buttonTop, &B::button, nullptr, kWhite, 6},   {&F::buttonBottom, &B::button, nullptr, kBlack, 6},
    {&F::buttonHigh, &B::button, nullptr, kWhite, 20}, {&F::buttonHover, &B::button, &B::accent, {}, 14},
    {&F::buttonDown, &B::button, nullptr, kBlack, 20}, {&F::buttonMuted, &B::muted, &B::text, {}, 45},
    {&F::buttonOn, &B::glass, &B::accent, {}, 15},     {&F::buttonOnLow, &B::glass, &B::accent, {}, 26},
    {&F::textOff, &B::text, &B::buttonOff, {}, 45},    {&F::edgeOff, &B::outline, &B::plate, {}, 45},
    {&F::accentTop, &B::accent, nullptr, kWhite, 6},   {&F::accentBottom, &B::accent, nullptr, kBlack, 6},
    {&F::accentHover, &B::accent, nullptr, kWhite, 8}, {&F::accentDown, &B::accent, nullptr, kBlack, 16},
    {&F::rowSelected, &B::glass, &B::accent, {}, 22},  {&F::rowSelectedOff, &B::glass, &B::muted, {}, 20},
    {&F::rowHover, &B::glass, &B::accent, {}, 8},      {&F::hair, &B::glass, &B::muted, {}, 17},
    {&F::tickOff, &B::glass, &B::muted, {}, 42},       {&F::thumb, &B::glass, &B::muted, {}, 66},
    {&F::thumbHover, &B::glass, &B::muted, {}, 85},    {&F::socket, &B::plate, nullptr, kBlack, 5},
    {&F::milledSoft, &B::plate, &B::milled, {}, 60},   {&F::milledInner, &B::plate, &B::milled, {}, 85},
    {&F::edgeControl, &B::plate, &B::muted, {}, 75},   {&F::glassMuted, &B::muted, &B::glassText, {}, 12},
}};

// In high contrast every base colour is one of the system's, so that what the user has set there is what he
// sees.
struct SystemRule {
  Color BaseColors::*member;
  SystemColor color;
};

constexpr std::array<SystemRule, 20> kHighContrast = {{
    {&B::plate, SystemColor::ButtonFace},       {&B::plateTop, SystemColor::ButtonFace},
    {&B::plateBottom, SystemColor::ButtonFace}, {&B::button, SystemColor::ButtonFace},
    {&B::buttonOff, SystemColor::ButtonFace},   {&B::text, SystemColor::ButtonText},
    {&B::muted, SystemColor::WindowText},       {&B::outline, SystemColor::WindowText},
    {&B::frame, SystemColor::WindowText},       {&B::milled, SystemColor::ButtonFace},
    {&B::groove, SystemColor::WindowText},      {&B::glass, SystemColor::Window},
    {&B::zebra, SystemColor::Window},           {&B::glassText, SystemColor::WindowText},
    {&B::accent, SystemColor::Highlight},       {&B::tabText, SystemColor::Highlight},
    {&B::focus, SystemColor::Highlight},        {&B::signal, SystemColor::Highlight},
    {&B::onAccent, SystemColor::HighlightText}, {&B::alert, SystemColor::HotLight},
}};

}  // namespace

std::span<const ColorSetting> ColorSettings() { return kSettings; }

BaseColors BuiltInColors(BuiltInFaceplate faceplate) {
  BaseColors colors;
  for (const ColorSetting& setting : kSettings)
    colors.*setting.member = faceplate == BuiltInFaceplate::Graphite ? setting.graphite : setting.porcelain;
  return colors;
}

FaceplateColors DeriveColors(const BaseColors& base) {
  FaceplateColors colors{base};
  for (const MixRule& rule : kMixes)
    colors.*rule.result = Mix(base.*rule.from, rule.to ? base.*rule.to : rule.fixed, rule.percent);
  colors.rowSelectedText = base.glassText;
  return colors;
}

FaceplateColors HighContrastColors(const std::function<Color(SystemColor)>& systemColor) {
  BaseColors base;
  for (const SystemRule& rule : kHighContrast) base.*rule.member = systemColor(rule.color);
  FaceplateColors colors = DeriveColors(base);
  colors.highContrast = true;
  colors.rowSelected = base.accent;
  colors.rowSelectedText = base.onAccent;
  // A theme promises contrast for its own pairs only, so grounds under text are not mixed.
  colors.buttonTop = colors.buttonBottom = colors.buttonHover = colors.buttonDown = colors.socket =
      base.button;
  colors.buttonOn = colors.buttonOnLow = colors.rowHover = colors.rowSelectedOff = base.glass;
  colors.accentTop = colors.accentBottom = colors.accentHover = colors.accentDown = base.accent;
  colors.buttonMuted = base.text;
  colors.glassMuted = base.glassText;
  return colors;
}

}  // namespace sonaro
