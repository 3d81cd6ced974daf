// Moves whose page is destroyed, or whose microscope is another one, while a box stands, and
// operations of the pages whose calls fail.
#include "gui/drives/DrivePages.h"

namespace mortane::test {
namespace {

enum class Fate { Destroyed, OtherDevice };

class LostMove : public testing::TestWithParam<Fate> {
 protected:
  // What happens to the page while the box stands; from then on nothing is asked of a drive.
  template <typename Rig>
  std::function<void()> Lose(Rig& rig) {
    return [this, &rig] {
      if (GetParam() == Fate::Destroyed) {
        delete &rig.page;
      } else {
        rig.k70().Disconnect();
        EXPECT_TRUE(rig.k70().Connect(1));
      }
      lost_ = true;
      rig.journal.Clear();
    };
  }
  template <typename Rig>
  void ExpectSilence(Rig& rig) {
    EXPECT_TRUE(lost_);
    EXPECT_EQ(rig.journal.CallCount(), 0U);
    EXPECT_TRUE(rig.prompts.AllAnswersUsed());
    EXPECT_EQ(rig.prompts.PointerBalance(), 0);
    EXPECT_EQ(rig.prompts.Log().back(), "flush") << "clicks would move the next drive";
  }
  static Bench TwoDevices() { return List({"Quay", "Harbour", "Harbour"}); }

 private:
  bool lost_ = false;
};

TEST_P(LostMove, AsksTheDriveNothingWhateverTheAnswerOfTheTimedBox) {
  for (const Answer answer : {Answer::TimedOut, Answer::Ok}) {
    FocusRig rig(TwoDevices());
    rig.Select(0);
    rig.field(0).setText("100");
    rig.ExpectWatch(1080, answer, Lose(rig));
    ClickButton(*rig.page.ButtonStart);
    ExpectSilence(rig);
  }
}

TEST_P(LostMove, AsksTheStageNothingWhateverTheAnswerOfTheTimedBox) {
  for (const Answer answer : {Answer::TimedOut, Answer::Ok}) {
    StageRig rig(TwoDevices());
    rig.Select(0);
    rig.fieldX(0).setText("100");
    rig.ExpectWatch(1106, answer, Lose(rig));
    ClickButton(*rig.page.ButtonStart);
    ExpectSilence(rig);
  }
}

// A call of a started move and the box of its failure, during which the page is lost.
struct FailureRow {
  const char* call;
  int occurrence;
  const char* message;
  bool timedBox;  // shown before
};

TEST_P(LostMove, AsksTheDriveNothingAfterTheBoxOfAFailure) {
  for (const FailureRow& row :
       {FailureRow{"get ZDriveDevice.Position", 1, "GetPosition Error!!", false},
        FailureRow{"put ZDriveDevice.Position", 1, "MoveAsyncStart Error!!", false},
        FailureRow{"get ZDriveDevice.Position", 2, "GetPosition Error!!", true},
        FailureRow{"DeviceList.Item(2).WaitMove", 1, "MoveAsyncEnd Error!!", true},
        FailureRow{"get ZDriveDevice.Position", 3, "GetPosition Error!!", true}}) {
    FocusRig rig(TwoDevices());
    rig.Select(0);
    rig.field(0).setText("100");
    rig.faults.Add({row.call, row.occurrence});
    if (row.timedBox) rig.ExpectWatch(1080, Answer::TimedOut);
    rig.prompts.ExpectBox(row.message, box::kCritical, Answer::Ok, "", Lose(rig));
    ClickButton(*rig.page.ButtonStart);
    ExpectSilence(rig);
  }
}

TEST_P(LostMove, AsksTheStageNothingAfterTheBoxOfAFailure) {
  for (const FailureRow& row :
       {FailureRow{"get XYDriveDevice.PositionX", 1, "GetPositionX Error!!", false},
        FailureRow{"get XYDriveDevice.PositionY", 1, "GetPositionY Error!!", false},
        FailureRow{"put XYDriveDevice.PositionX", 1, "MoveAsyncStart Error!!", false},
        FailureRow{"get XYDriveDevice.PositionX", 2, "GetPositionX Error!!", true},
        FailureRow{"get XYDriveDevice.PositionY", 2, "GetPositionY Error!!", true},
        FailureRow{"DeviceList.Item(2).WaitMove", 1, "MoveAsyncEnd Error!!", true},
        FailureRow{"get XYDriveDevice.PositionX", 3, "GetPositionX Error!!", true},
        FailureRow{"get XYDriveDevice.PositionY", 3, "GetPositionY Error!!", true}}) {
    StageRig rig(TwoDevices());
    rig.Select(0);
    rig.fieldX(0).setText("100");
    rig.faults.Add({row.call, row.occurrence});
    if (row.timedBox) rig.ExpectWatch(1106, Answer::TimedOut);
    rig.prompts.ExpectBox(row.message, box::kCritical, Answer::Ok, "", Lose(rig));
    ClickButton(*rig.page.ButtonStart);
    ExpectSilence(rig);
  }
}

TEST_P(LostMove, AsksTheDriveNothingAfterAStepThatFailed) {
  for (const FailureRow& row :
       {FailureRow{"put ZDriveDevice.Position", 1, "Move Error!!", false},
        FailureRow{"get ZDriveDevice.Position", 2, "GetPosition Error!!", false}}) {
    FocusRig rig(TwoDevices());
    rig.Select(0);
    rig.faults.Add({row.call, row.occurrence});
    rig.prompts.ExpectBox(row.message, box::kCritical, Answer::Ok, "", Lose(rig));
    ClickButton(*rig.page.ButtonUpLarge);
    ExpectSilence(rig);
  }
}

TEST_P(LostMove, AsksTheStageNothingAfterAStepThatFailed) {
  for (const FailureRow& row :
       {FailureRow{"put XYDriveDevice.PositionX", 1, "MoveX Error!!", false},
        FailureRow{"get XYDriveDevice.PositionX", 2, "GetPositionX Error!!", false}}) {
    StageRig rig(TwoDevices());
    rig.Select(0);
    rig.faults.Add({row.call, row.occurrence});
    rig.prompts.ExpectBox(row.message, box::kCritical, Answer::Ok, "", Lose(rig));
    ClickButton(*rig.page.ButtonLeftLarge);
    ExpectSilence(rig);
  }
}

TEST_P(LostMove, TeachesNothingAfterTheQuestionOfARow) {
  FocusRig rig(TwoDevices());
  rig.prompts.ExpectBox(kTeach, box::kOkCancel, Answer::Ok, kTeachCaption, Lose(rig));
  ClickButton(*rig.page.optNosepiece->button(0));
  ExpectSilence(rig);
  EXPECT_EQ(rig.drive().Position(1), 0);
}

std::string FateName(const testing::TestParamInfo<Fate>& info) {
  return info.param == Fate::Destroyed ? "PageDestroyed" : "OtherDevice";
}

INSTANTIATE_TEST_SUITE_P(MoveSafety, LostMove, testing::Values(Fate::Destroyed, Fate::OtherDevice),
                         FateName);

// Runs the operation on rigs with the first row selected, each of its controller calls failing in
// turn: each is one critical box.
template <typename Rig>
void ExpectOneBoxForEachCall(const char* what, const std::function<void(Rig&)>& run) {
  std::size_t calls = 0;
  for (std::size_t k = 0; k <= calls; ++k) {
    Rig rig;
    rig.Select(0);
    rig.prompts.AcceptAnyBox();
    if (k > 0) rig.faults.FailCall(k);
    EXPECT_NO_THROW(run(rig)) << what << k;
    if (k == 0) calls = rig.journal.CallCount();
    std::size_t critical = 0;
    for (const auto& shown : rig.prompts.Boxes()) critical += shown.style == box::kCritical ? 1 : 0;
    EXPECT_EQ(critical, k == 0 ? 0U : 1U) << what << k;
    EXPECT_EQ(rig.faults.Hits(), critical) << what << k;
    EXPECT_EQ(rig.prompts.PointerBalance(), 0);
  }
  EXPECT_GE(calls, 2U) << what;
}

TEST(MoveFailures, EachCallOfAnOperationOfTheFocusPageIsOneBox) {
  using Run = std::function<void(FocusRig&)>;
  const std::vector<std::pair<const char*, Run>> operations{
      {"step", [](FocusRig& rig) { ClickButton(*rig.page.ButtonDownLarge); }},
      {"start", [](FocusRig& rig) { ClickButton(*rig.page.ButtonStart); }},
      {"row", [](FocusRig& rig) { ClickButton(*rig.page.optNosepiece->button(0)); }},
      {"nosepiece", [](FocusRig& rig) { rig.page.SetNosePosition(); }},
      {"real move",
       [](FocusRig& rig) {
         ClickButton(*rig.page.CheckRealMove);
         ClickButton(*rig.page.CheckRealMove);
       }},
  };
  for (const auto& [what, run] : operations) ExpectOneBoxForEachCall<FocusRig>(what, run);
}

TEST(MoveFailures, EachCallOfAnOperationOfTheStagePageIsOneBox) {
  using Run = std::function<void(StageRig&)>;
  const std::vector<std::pair<const char*, Run>> operations{
      {"step", [](StageRig& rig) { ClickButton(*rig.page.ButtonDownLarge); }},
      {"start", [](StageRig& rig) { ClickButton(*rig.page.ButtonStart); }},
      {"nosepiece", [](StageRig& rig) { rig.page.SetNosePosition(); }},
      {"real move",
       [](StageRig& rig) {
         ClickButton(*rig.page.CheckRealMove);
         ClickButton(*rig.page.CheckRealMove);
       }},
  };
  for (const auto& [what, run] : operations) ExpectOneBoxForEachCall<StageRig>(what, run);
}

}  // namespace
}  // namespace mortane::test
