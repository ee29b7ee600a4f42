// Deleting from the schedule with its question and its undoing, and notices that are put off.
#include "fakes/FakeMessageBox.h"
#include "fakes/FakeRegistry.h"
#include "fakes/FakeUndo.h"
#include "schedule/PersonalShows.h"
#include "schedule/ScheduleChanges.h"
#include "schedule/ScheduleServices.h"
#include "schedule/ScheduleStore.h"
#include "schedule/ScheduleWorld.h"
#include "settings/CReg.h"
#include "settings/SettingNames.h"

namespace sonaro {
namespace {

class Changes : public ScheduleWorld, public ScheduleListener {
 protected:
  void SetUp() override {
    ScheduleWorld::SetUp();
    registry_.CreateKey(RootKey::LocalMachine, kSettingsKey);
    store_.SetItem(0, kTea);
    store_.SetItem(1, kCake);
    store_.SetItem(2, kTalk);
    before_ = File();
  }
  std::string File() const { return files_.Get("data/Sched.snr").value_or(""); }
  void ActDone(const std::string& sentence) override { done_ = sentence; }
  void ItemsChanged() override { ++told_; }

  const ScheduleFields kTea{.name = "Tea", .time = "4:00 PM", .kind = "daily", .action = "NS77"};
  const ScheduleFields kCake{
      .name = "Cake", .date = "8/16/2000", .time = "8:00 PM", .kind = "once", .note = "fork"};
  const ScheduleFields kTalk{.name = "Talk|||Z|||Radio>>>>>>x.example", .kind = "live", .action = "W"};
  FakeRegistry registry_;
  CReg settings_{registry_};
  FakeMessageBox box_;
  FakeUndoListener user_;
  UndoList undo_{user_};
  ScheduleStore store_{data_, ""};
  PersonalShows shows_{data_, box_, words_};
  ScheduleChanges changes_{{store_, shows_, settings_, undo_, box_, words_, texts_, *this}};
  std::string before_;
  int told_ = 0;
  std::string done_;
};

TEST_F(Changes, DeletingAsksAndCanBeUndone) {
  changes_.Delete({"S1\tN"});
  EXPECT_EQ(File(), before_) << "the box was closed";
  EXPECT_EQ(box_.asked.back().text, "Delete August 16 8:00 PM Cake");
  EXPECT_EQ(box_.asked.back().key, "DeleteNotification");

  box_.answers = {{MessageAnswer::First, false}, {MessageAnswer::First, true}};
  changes_.Delete({"S1\tN"});
  EXPECT_EQ(File().find("Cake"), std::string::npos);
  changes_.Delete({"S0\tNS77", "S2\tW"});
  EXPECT_EQ(box_.asked.back().text, std::to_string(IDS_SCHED_DELETE_MANY));
  EXPECT_EQ(File(), "");
  undo_.Undo();
  undo_.Undo();
  EXPECT_EQ(File().size(), before_.size());
  for (const ScheduleFields& item : {kTea, kCake, kTalk}) EXPECT_TRUE(store_.SlotOf(item)) << item.name;

  changes_.Delete({"S" + std::to_string(*store_.SlotOf(kTea))});
  EXPECT_EQ(box_.asked.size(), 3u) << "the user does not want to be asked";
  files_.SetSpaceLeft(0);
  undo_.Undo();
  EXPECT_EQ(box_.asked.back().key, "NotSaved");
  EXPECT_FALSE(store_.SlotOf(kTea));
  files_.SetSpaceLeft(std::nullopt);
  undo_.Undo();
  EXPECT_TRUE(store_.SlotOf(kTea));
  EXPECT_EQ(told_, 7);
}

TEST_F(Changes, WhatMovesWhileTheQuestionStandsIsNotDeletedInItsPlace) {
  class Mover final : public MessageBoxView {
   public:
    explicit Mover(ScheduleStore& store) : store_(store) {}
    MessageResult Ask(const Message&) override {
      const ScheduleFields first = store_.Item(0).fields;
      store_.SetItem(0, store_.Item(1).fields);
      store_.SetItem(1, first);
      return {MessageAnswer::First, false};
    }

   private:
    ScheduleStore& store_;
  } mover(store_);
  ScheduleChanges changes({store_, shows_, settings_, undo_, mover, words_, texts_, *this});
  changes.Delete({"S0"});
  EXPECT_FALSE(store_.SlotOf(kTea));
  EXPECT_TRUE(store_.SlotOf(kCake));
}

TEST_F(Changes, APersonalShowComesBackWithoutAWord) {
  files_.Put("data/Shows.snr", "1XTea\r\n2XCake\r\n");
  changes_.Delete({"P0"});
  EXPECT_EQ(box_.asked.size(), 1u) << "told, not asked";
  EXPECT_EQ(files_.Get("data/Shows.snr"), "2XCake\r\n");
  undo_.Undo();
  EXPECT_EQ(files_.Get("data/Shows.snr"), "2XCake\r\n1XTea\r\n");
  EXPECT_EQ(box_.asked.size(), 1u);
}

TEST_F(Changes, ANoticeIsPutOffAndStaysInTheSchedule) {
  const auto item = [](const ScheduleFields& fields) { return ScheduleItem(fields, ""); };
  // Its own time moves; of one that comes again and again another is made.
  EXPECT_TRUE(changes_.Snooze(item(kCake), 5, {{2000, 8, 16}, {20, 0, 2}}));
  EXPECT_TRUE(changes_.Snooze(item(kTea), 15, {{2000, 8, 16}, {23, 59, 40}}));
  EXPECT_TRUE(changes_.Snooze(item(kTalk), 60, {{2000, 8, 16}, {9, 0, 0}}));
  EXPECT_EQ(File(),
            "Tea\tNS77\t\t4:00 PM\t\tdaily\t\r\n"
            "Cake\t\t8/16/2000\t8:05 PM\t\tonce\tfork\r\n"
            "Talk|||Z|||Radio>>>>>>x.example\tW\t\t\t\tlive\t\r\n"
            "Tea\tNS77\t8/17/2000\t12:15 AM\t\tonce\t\r\n"
            "Talk|||Z|||Radio>>>>>>x.example\tW\t8/16/2000\t10:00 AM\t\tonce\t\r\n");
  EXPECT_EQ(done_, "Again: Talk on Radio Today 10:00 AM");
  // Deleted while its notice lay on the screen: told once more all the same.
  store_.FreeSlot(1);
  EXPECT_TRUE(changes_.Snooze(item(kCake), 5, {{2000, 8, 16}, {20, 0, 0}}));
  EXPECT_NE(File().find("Cake"), std::string::npos);
  files_.SetSpaceLeft(0);
  EXPECT_FALSE(changes_.Snooze(item(kTea), 5, {{2000, 8, 16}, {20, 0, 0}}));
  EXPECT_EQ(box_.asked.back().key, "NotSaved");
}

}  // namespace
}  // namespace sonaro
