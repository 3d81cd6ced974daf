// Moves whose page is destroyed, or whose microscope is another one, while a box stands, and
// operations of the pages whose calls fail.
#include "gui/drives/DrivePages.h"

namespace mortane::test {
namespace {

enum class Fate { Destroyed, OtherDevice };

// A call of a move and the box of its failure, during which the page is lost.
struct FailureRow {
  std::string call;
  int occurrence;
  std::string message;
  bool timedBox;  // shown before
};

// The calls of a started move, in their order.
template <typename RigKind>
std::vector<FailureRow> StartFailures() {
  const std::vector<DriveAxisRow> axes = RigKind::Axes();
  std::vector<FailureRow> rows{
      {"put " + axes.front().member, 1, "MoveAsyncStart Error!!", false},
      {"DeviceList.Item(2).WaitMove", 1, "MoveAsyncEnd Error!!", true},
  };
  for (const DriveAxisRow& axis : axes) {
    for (const int occurrence : {1, 2, 3}) {
      rows.push_back({"get " + axis.member, occurrence, axis.read + " Error!!", occurrence > 1});
    }
  }
  return rows;
}

template <typename RigKind>
class LostMove : public testing::Test {
 protected:
  // A rig whose first row is selected and shows 100 on the first axis.
  struct Given : RigKind {
    explicit Given(Fate lost) : RigKind(List({"Quay", "Harbour", "Harbour"})), fate(lost) {
      this->Select(0);
      this->field(0).setText("100");
    }

    // What happens to the page while the box stands; from then on nothing is asked of a drive.
    std::function<void()> Lose() {
      return [this] {
        if (fate == Fate::Destroyed) {
          delete &this->page;
        } else {
          this->k70().Disconnect();
          this->k70().Connect(1);
        }
        isLost = true;
        this->journal.Clear();
      };
    }
    void ExpectSilence() {
      EXPECT_TRUE(isLost);
      EXPECT_EQ(this->journal.CallCount(), 0U);
      EXPECT_TRUE(this->prompts.AllAnswersUsed());
      EXPECT_EQ(this->prompts.PointerBalance(), 0);
      EXPECT_EQ(this->prompts.Log().back(), "flush") << "clicks would move the next drive";
    }

    Fate fate;
    bool isLost = false;
  };

  static constexpr std::array kFates{Fate::Destroyed, Fate::OtherDevice};
};
TYPED_TEST_SUITE(LostMove, DriveRigs, DriveRigName);

TYPED_TEST(LostMove, AsksTheDriveNothingWhateverTheAnswerOfTheTimedBox) {
  for (const Fate fate : this->kFates) {
    for (const Answer answer : {Answer::TimedOut, Answer::Ok}) {
      typename TestFixture::Given rig(fate);
      rig.ExpectWatch(rig.kWaitMs, answer, rig.Lose());
      ClickButton(*rig.page.ButtonStart);
      rig.ExpectSilence();
    }
  }
}

TYPED_TEST(LostMove, AsksTheDriveNothingAfterTheBoxOfAFailure) {
  for (const Fate fate : this->kFates) {
    for (const FailureRow& row : StartFailures<TypeParam>()) {
      SCOPED_TRACE(row.call + std::to_string(row.occurrence));
      typename TestFixture::Given rig(fate);
      rig.faults.Add({row.call, row.occurrence});
      if (row.timedBox) rig.ExpectWatch(rig.kWaitMs, Answer::TimedOut);
      rig.prompts.ExpectBox(row.message, box::kCritical, Answer::Ok, "", rig.Lose());
      ClickButton(*rig.page.ButtonStart);
      rig.ExpectSilence();
    }
  }
}

TYPED_TEST(LostMove, AsksTheDriveNothingAfterAStepThatFailed) {
  for (const Fate fate : this->kFates) {
    for (const auto& step : TypeParam::Steps()) {
      const DriveAxisRow axis = TypeParam::Axes()[step.axis];
      for (const FailureRow& row :
           {FailureRow{"put " + axis.member, 1, axis.move + " Error!!", false},
            FailureRow{"get " + axis.member, 2, axis.read + " Error!!", false}}) {
        typename TestFixture::Given rig(fate);
        rig.faults.Add({row.call, row.occurrence});
        rig.prompts.ExpectBox(row.message, box::kCritical, Answer::Ok, "", rig.Lose());
        ClickButton(*(rig.page.*step.button));
        rig.ExpectSilence();
      }
    }
  }
}

class LostFocusMove : public LostMove<FocusRig> {};

TEST_F(LostFocusMove, TeachesNothingAfterTheQuestionOfARow) {
  for (const Fate fate : kFates) {
    Given rig(fate);
    rig.ExpectQuestion(Answer::Ok, rig.Lose());
    ClickButton(*rig.page.optNosepiece->button(1));
    rig.ExpectSilence();
    EXPECT_EQ(rig.drive().Position(2), 0);
  }
}

// Each controller call of an operation failing in turn is one critical box.
template <typename RigKind>
class MoveFailures : public testing::Test {
 protected:
  // Runs the operation on rigs with the first row selected.
  static void ExpectOneBoxForEachCall(const char* what, const std::function<void(RigKind&)>& run) {
    std::size_t calls = 0;
    for (std::size_t k = 0; k <= calls; ++k) {
      RigKind rig;
      rig.Select(0);
      rig.prompts.AcceptAnyBox();
      if (k > 0) rig.faults.FailCall(k);
      EXPECT_NO_THROW(run(rig)) << what << k;
      if (k == 0) calls = rig.journal.CallCount();
      std::size_t critical = 0;
      for (const auto& shown : rig.prompts.Boxes()) {
        if (shown.style == box::kCritical) ++critical;
      }
      EXPECT_EQ(critical, k == 0 ? 0U : 1U) << what << k;
      EXPECT_EQ(rig.faults.Hits(), critical) << what << k;
      EXPECT_EQ(rig.prompts.PointerBalance(), 0);
    }
    EXPECT_GE(calls, 1U) << what;
  }
};
TYPED_TEST_SUITE(MoveFailures, DriveRigs, DriveRigName);

TYPED_TEST(MoveFailures, EachCallOfAnOperationIsOneBox) {
  this->ExpectOneBoxForEachCall("step", [](auto& rig) { ClickButton(*rig.page.ButtonDownLarge); });
  this->ExpectOneBoxForEachCall("start", [](auto& rig) { ClickButton(*rig.page.ButtonStart); });
  this->ExpectOneBoxForEachCall("nosepiece", [](auto& rig) { rig.page.SetNosePosition(); });
  this->ExpectOneBoxForEachCall("real move", [](auto& rig) {
    ClickButton(*rig.page.CheckRealMove);
    ClickButton(*rig.page.CheckRealMove);
  });
}

class FocusMoveFailures : public MoveFailures<FocusRig> {};

TEST_F(FocusMoveFailures, EachCallOfARowThatIsTaughtIsOneBox) {
  ExpectOneBoxForEachCall("row",
                          [](FocusRig& rig) { ClickButton(*rig.page.optNosepiece->button(0)); });
}

}  // namespace
}  // namespace mortane::test
