#include "forms/paint/ButtonFace.h"

#include <gtest/gtest.h>

namespace sonaro {
namespace {

using enum ControlKind;

const FaceplateColors kColors = DeriveColors(BuiltInColors(BuiltInFaceplate::Graphite));

ButtonFace Face(ControlKind kind, ButtonState state, bool secondary = false) {
  return PickButtonFace(kind, secondary, state, kColors);
}

TEST(PickButtonFace, GivesEveryStateItsFaceEdgeAndText) {
  const FaceplateColors& c = kColors;
  const struct {
    const char* what;
    ControlKind kind;
    ButtonState state;
    Color top, edge, text;
    bool milled, strong, down;
  } cases[] = {
      {"normal", PushButton, {}, c.buttonTop, c.outline, c.text, true, false, false},
      {"hover", PushButton, {.hover = true}, c.buttonHover, c.outline, c.text, true, false, false},
      {"pressed",
       PushButton,
       {.hover = true, .pressed = true},
       c.buttonDown,
       c.outline,
       c.text,
       false,
       false,
       true},
      {"disabled", PushButton, {.disabled = true}, c.buttonOff, c.edgeOff, c.textOff, false, false, false},
      {"active", RankingButton, {.active = true}, c.buttonOn, c.accent, c.tabText, false, true, false},
      {"disabled wins over active",
       RankingButton,
       {.disabled = true, .active = true},
       c.buttonOff,
       c.edgeOff,
       c.textOff,
       false,
       false,
       false},
      {"primary", PrimaryButton, {}, c.accentTop, c.outline, c.onAccent, true, true, false},
      {"primary pressed",
       PrimaryButton,
       {.pressed = true},
       c.accentDown,
       c.outline,
       c.onAccent,
       false,
       true,
       true},
      {"primary disabled",
       PrimaryButton,
       {.disabled = true},
       c.buttonOff,
       c.edgeOff,
       c.textOff,
       false,
       false,
       false},
      {"empty socket",
       GroupButton,
       {.hover = true, .empty = true},
       c.socket,
       c.edgeOff,
       c.textOff,
       false,
       false,
       false},
  };
  for (const auto& k : cases) {
    const ButtonFace face = Face(k.kind, k.state);
    EXPECT_EQ(face.top, k.top) << k.what;
    EXPECT_EQ(face.edge, k.edge) << k.what;
    EXPECT_EQ(face.text, k.text) << k.what;
    EXPECT_EQ(face.hasMilledLine, k.milled) << k.what;
    EXPECT_EQ(face.strong, k.strong) << k.what;
    EXPECT_EQ(face.shiftDown, k.down) << k.what;
  }
}

TEST(PickButtonFace, KnowsTheKindsThatDiffer) {
  EXPECT_FALSE(Face(StripButton, {}).hasFace) << "at rest only its icon shows";
  EXPECT_TRUE(Face(StripButton, {.hover = true}).hasFace);
  EXPECT_TRUE(Face(StripButton, {.disabled = true}).hasFace);
  EXPECT_EQ(Face(RankingButton, {}).icon, kColors.muted);
  EXPECT_EQ(Face(PlayButton, {}).top, kColors.accentTop) << "the first link is the primary one";
  EXPECT_EQ(Face(PlayButton, {}, true).icon, kColors.accent);
  EXPECT_EQ(Face(PrimaryButton, {}).focus, kColors.onAccent) << "visible on its own face";
}

// What the user reads on a button is readable in both faceplates and every state.
TEST(PickButtonFace, KeepsTextReadable) {
  for (const BuiltInFaceplate faceplate : {BuiltInFaceplate::Graphite, BuiltInFaceplate::Porcelain}) {
    const FaceplateColors colors = DeriveColors(BuiltInColors(faceplate));
    for (const ControlKind kind : {PushButton, PrimaryButton, RankingButton, PlayButton, StripButton}) {
      for (int bits = 0; bits < 8; ++bits) {
        const ButtonState state = {
            .hover = (bits & 1) != 0, .pressed = (bits & 2) != 0, .active = (bits & 4) != 0};
        const ButtonFace face = PickButtonFace(kind, false, state, colors);
        const Color ground = face.hasFace ? face.top : colors.plate;
        EXPECT_GE(ContrastRatio(face.text, ground), 4.5)
            << static_cast<int>(kind) << " state " << bits << " faceplate " << static_cast<int>(faceplate);
      }
    }
  }
}

}  // namespace
}  // namespace sonaro
