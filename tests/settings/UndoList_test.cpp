#include "settings/UndoList.h"

#include <gtest/gtest.h>

#include "fakes/FakeUndo.h"

namespace sonaro {
namespace {

TEST(Undo, LastFirstAndOnlyOnce) {
  FakeUndoListener user;
  UndoList undo(user);
  std::string givenBack;
  UndoResult next = UndoResult::Done;
  for (int i = 0; i <= static_cast<int>(UndoList::kDepth); ++i) {
    undo.Add(std::to_string(i), [&, i] {
      givenBack += std::to_string(i) + " ";
      return next;
    });
  }
  EXPECT_EQ(user.heard.back(), "20");
  undo.Undo();
  EXPECT_EQ(user.heard.back(), "undone: 20");
  next = UndoResult::Kept;  // the user has been told why
  undo.Undo();
  EXPECT_EQ(user.heard.back(), "undone: 20");
  next = UndoResult::Gone;
  undo.Undo();
  EXPECT_EQ(user.heard.back(), "not undone");
  EXPECT_EQ(givenBack, "20 19 19 ");
  next = UndoResult::Done;
  for (std::size_t i = 0; i < UndoList::kDepth; ++i) undo.Undo();
  EXPECT_EQ(user.heard.back(), "not undone");
  EXPECT_TRUE(givenBack.ends_with(" 2 1 ")) << "the first was one too many";
}

}  // namespace
}  // namespace sonaro
