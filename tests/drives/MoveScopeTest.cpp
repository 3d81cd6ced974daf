// Moves of a page: when they are no longer the page's, and how a started one is watched.
#include "drives/MoveScope.h"

#include <memory>

#include "drives/MotionRig.h"

namespace mortane::test {
namespace {

// A page's flag on a connected microscope, and a started move that tells what it is asked.
struct WatchRig : MotionRig {
  StartedMove Move(std::int64_t distance, const std::vector<bool>& atTarget,
                   const std::vector<bool>& ended) {
    return {distance, [this, atTarget] { return Answered("target", atTarget, targets); },
            [this, ended] { return Answered("end", ended, ends); }, [this] { Ask("stop"); }};
  }
  void Ask(const char* what) {
    asked.emplace_back(what);
    if (asked.size() == loseAfter) moving.reset();
  }
  bool Answered(const char* what, const std::vector<bool>& answers, std::size_t& count) {
    Ask(what);
    return answers.at(count++);
  }
  void ExpectWatch(int milliseconds, Answer answer) {
    prompts.ExpectTimedBox(milliseconds, "Move Stop?", box::kOk, "", answer);
  }

  MoveFlag moving = std::make_shared<bool>(false);
  Lines asked;
  std::size_t loseAfter = 0;
  std::size_t targets = 0;
  std::size_t ends = 0;
};

TEST(MoveScope, SetsTheFlagAsLongAsOneOfThemLives) {
  WatchRig rig;
  {
    const MoveScope outer(rig.moving, rig.units);
    EXPECT_TRUE(*rig.moving);
    {
      // Its end leaves the flag to the outer one.
      const MoveScope inner(rig.moving, rig.units);
    }
    EXPECT_TRUE(*rig.moving);
  }
  EXPECT_FALSE(*rig.moving);
}

TEST(MoveScope, IsLostWithItsPage) {
  WatchRig rig;
  const MoveScope scope(rig.moving, rig.units);
  EXPECT_FALSE(scope.IsLost());
  rig.moving.reset();
  EXPECT_TRUE(scope.IsLost());
}

TEST(MoveScope, IsLostWithItsConnection) {
  WatchRig rig;
  const MoveScope scope(rig.moving, rig.units);
  rig.units.Disconnect();
  EXPECT_TRUE(scope.IsLost());
  rig.units.Connect(0);
  EXPECT_TRUE(scope.IsLost());
}

TEST(WatchMove, AnAnswerStopsAndAsksNothing) {
  for (const Answer answer : {Answer::Ok, Answer::Cancel}) {
    WatchRig rig;
    const MoveScope scope(rig.moving, rig.units);
    rig.ExpectWatch(1000, answer);
    WatchMove(scope, rig.prompts, rig.Move(0, {}, {}));
    EXPECT_EQ(rig.asked, Lines{"stop"});
  }
}

struct RoundRow {
  bool atTarget;
  bool ended;
  bool again;
};

TEST(WatchMove, AsksForTheTargetThenForTheEndAndGoesOnIfBothAreNot) {
  for (const RoundRow& row : {RoundRow{true, true, false}, RoundRow{true, false, false},
                              RoundRow{false, true, false}, RoundRow{false, false, true}}) {
    WatchRig rig;
    const MoveScope scope(rig.moving, rig.units);
    rig.ExpectWatch(1000, Answer::TimedOut);
    if (row.again) rig.ExpectWatch(1000, Answer::Ok);
    WatchMove(scope, rig.prompts, rig.Move(0, {row.atTarget}, {row.ended}));
    Lines expected{"target", "end"};
    if (row.again) expected.emplace_back("stop");
    EXPECT_EQ(rig.asked, expected);
  }
}

struct TimeRow {
  std::int64_t distance;
  int milliseconds;
};

// Half a millisecond goes to the even one.
TEST(WatchMove, ItsTimeIsAMillisecondForEachMicrometreAndASecond) {
  for (const TimeRow& row :
       {TimeRow{0, 1000}, TimeRow{9, 1000}, TimeRow{10, 1000}, TimeRow{11, 1001}, TimeRow{20, 1001},
        TimeRow{30, 1002}, TimeRow{4294967295, 214749365}, TimeRow{8589934590, 429497730}}) {
    WatchRig rig;
    const MoveScope scope(rig.moving, rig.units);
    rig.ExpectWatch(row.milliseconds, Answer::Ok);
    WatchMove(scope, rig.prompts, rig.Move(row.distance, {}, {}));
  }
}

TEST(WatchMove, AsksNothingMoreOfAMoveThatIsLost) {
  for (std::size_t loseAfter = 1; loseAfter <= 4; ++loseAfter) {
    WatchRig rig;
    rig.loseAfter = loseAfter;
    const MoveScope scope(rig.moving, rig.units);
    rig.ExpectWatch(1000, Answer::TimedOut);
    if (loseAfter > 2) rig.ExpectWatch(1000, Answer::TimedOut);
    WatchMove(scope, rig.prompts, rig.Move(0, {false, false}, {false, false}));
    EXPECT_EQ(rig.asked.size(), loseAfter);
  }
}

TEST(WatchMove, ShowsNoBoxForAMoveThatWasLostBefore) {
  WatchRig rig;
  const MoveScope scope(rig.moving, rig.units);
  rig.moving.reset();
  WatchMove(scope, rig.prompts, rig.Move(0, {}, {}));
  EXPECT_TRUE(rig.asked.empty());
}

}  // namespace
}  // namespace mortane::test
