#include "forms/portable/KeyFace.h"

#include <gtest/gtest.h>

namespace sonaro {
namespace {

const FaceplateColors kColors = DeriveColors(BuiltInColors(BuiltInFaceplate::Graphite));

KeyFace Face(Kind kind, KeyState state, bool secondary = false) {
  return PickKeyFace(kind, secondary, state, kColors);
}

TEST(PickKeyFace, GivesEveryStateItsFaceEdgeAndText) {
  const FaceplateColors& c = kColors;
  const struct {
    const char* what;
    Kind kind;
    KeyState state;
    Color top, edge, text;
    bool milled, strong, down;
  } cases[] = {
      {"normal", Kind::PushKey, {}, c.keyTop, c.outline, c.text, true, false, false},
      {"hover", Kind::PushKey, {.hover = true}, c.keyHover, c.outline, c.text, true, false, false},
      {"pressed",
       Kind::PushKey,
       {.hover = true, .pressed = true},
       c.keyDown,
       c.outline,
       c.text,
       false,
       false,
       true},
      {"disabled", Kind::PushKey, {.disabled = true}, c.keyOff, c.edgeOff, c.textOff, false, false, false},
      {"active", Kind::RankingKey, {.active = true}, c.keyOn, c.accent, c.tabText, false, true, false},
      {"disabled wins over active",
       Kind::RankingKey,
       {.disabled = true, .active = true},
       c.keyOff,
       c.edgeOff,
       c.textOff,
       false,
       false,
       false},
      {"primary", Kind::PrimaryKey, {}, c.accentTop, c.outline, c.onAccent, true, true, false},
      {"primary pressed",
       Kind::PrimaryKey,
       {.pressed = true},
       c.accentDown,
       c.outline,
       c.onAccent,
       false,
       true,
       true},
      {"primary disabled",
       Kind::PrimaryKey,
       {.disabled = true},
       c.keyOff,
       c.edgeOff,
       c.textOff,
       false,
       false,
       false},
      {"empty socket",
       Kind::GroupKey,
       {.hover = true, .empty = true},
       c.socket,
       c.edgeOff,
       c.textOff,
       false,
       false,
       false},
  };
  for (const auto& k : cases) {
    const KeyFace face = Face(k.kind, k.state);
    EXPECT_EQ(face.top, k.top) << k.what;
    EXPECT_EQ(face.edge, k.edge) << k.what;
    EXPECT_EQ(face.text, k.text) << k.what;
    EXPECT_EQ(face.hasMilledLine, k.milled) << k.what;
    EXPECT_EQ(face.strong, k.strong) << k.what;
    EXPECT_EQ(face.shiftDown, k.down) << k.what;
  }
}

TEST(PickKeyFace, KnowsTheKindsThatDiffer) {
  EXPECT_FALSE(Face(Kind::StripKey, {}).hasFace) << "at rest only its icon shows";
  EXPECT_TRUE(Face(Kind::StripKey, {.hover = true}).hasFace);
  EXPECT_TRUE(Face(Kind::StripKey, {.disabled = true}).hasFace);
  EXPECT_EQ(Face(Kind::RankingKey, {}).icon, kColors.muted);
  EXPECT_EQ(Face(Kind::PlayKey, {}).top, kColors.accentTop) << "the first link is the primary one";
  EXPECT_EQ(Face(Kind::PlayKey, {}, true).icon, kColors.accent);
  EXPECT_EQ(Face(Kind::PrimaryKey, {}).focus, kColors.onAccent) << "visible on its own face";
}

// What the user reads on a key is readable in both faceplates and every state.
TEST(PickKeyFace, KeepsTextReadable) {
  for (const BuiltInFaceplate faceplate : {BuiltInFaceplate::Graphite, BuiltInFaceplate::Porcelain}) {
    const FaceplateColors colors = DeriveColors(BuiltInColors(faceplate));
    for (const Kind kind :
         {Kind::PushKey, Kind::PrimaryKey, Kind::RankingKey, Kind::PlayKey, Kind::StripKey}) {
      for (int bits = 0; bits < 8; ++bits) {
        const KeyState state = {
            .hover = (bits & 1) != 0, .pressed = (bits & 2) != 0, .active = (bits & 4) != 0};
        const KeyFace face = PickKeyFace(kind, false, state, colors);
        const Color ground = face.hasFace ? face.top : colors.plate;
        EXPECT_GE(ContrastRatio(face.text, ground), 4.5)
            << static_cast<int>(kind) << " state " << bits << " faceplate " << static_cast<int>(faceplate);
      }
    }
  }
}

}  // namespace
}  // namespace sonaro
