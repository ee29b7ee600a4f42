#include "forms/paint/ButtonFace.h"

#include <gtest/gtest.h>

namespace sonaro {
namespace {

using enum ControlKind;

const FaceplateColors kColors = DeriveColors(BuiltInColors(BuiltInFaceplate::Graphite));

ButtonFace Face(ControlKind kind, ButtonState state, bool secondary = false) {
  return PickButtonFace(kind, secondary, state, kColors);
}

TEST(PickButtonFace, LetsTheStrongerStateWin) {
  const auto same = [](const ButtonFace& a, const ButtonFace& b) {
    return a.top == b.top && a.edge == b.edge && a.text == b.text && a.hasMilledLine == b.hasMilledLine &&
           a.strong == b.strong && a.shiftDown == b.shiftDown;
  };
  for (const ControlKind kind : {PushButton, RankingButton, PrimaryButton}) {
    const ButtonFace disabled = Face(kind, {.disabled = true});
    const ButtonFace pressed = Face(kind, {.pressed = true});
    EXPECT_TRUE(same(Face(kind, {.hover = true, .disabled = true, .active = true}), disabled));
    EXPECT_TRUE(same(Face(kind, {.hover = true, .pressed = true}), pressed));
    EXPECT_TRUE(pressed.shiftDown);
    EXPECT_FALSE(same(Face(kind, {}), pressed));
    EXPECT_FALSE(same(Face(kind, {}), Face(kind, {.hover = true})));
    EXPECT_FALSE(same(Face(kind, {}), disabled));
  }
  EXPECT_EQ(Face(GroupButton, {.hover = true, .empty = true}).top, kColors.socket);
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
