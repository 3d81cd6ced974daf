// Each operation of the drives' motion: its calls, its failures, its box.
#include "drives/MotionRig.h"

namespace mortane::test {
namespace {

// One operation, what it answers (a boolean as 0 or 1), the box of its failure, and what the
// journal holds when all goes well.
struct MotionRow {
  const char* what;
  std::function<std::int32_t(DriveUnits&)> run;
  const char* box;
  std::int32_t answer;
  Lines journal;
};

template <typename Operation>
std::function<std::int32_t(DriveUnits&)> Silent(Operation operation) {
  return [operation](DriveUnits& units) {
    operation(units);
    return 0;
  };
}

const std::vector<MotionRow>& AllMotions() {
  static const std::vector<MotionRow> rows{
      {"Z CurPosition",
       [](DriveUnits& units) { return units.CZDrive.CurPosition(); },
       "GetPosition Error!!",
       400,
       {"ZDriveDevice.Position -> 400"}},
      {"Z MoveStart",
       Silent([](DriveUnits& units) { units.CZDrive.MoveStart(); }),
       "MoveStart Error!!",
       0,
       {"NosepieceDevice.BeginZPositioning()", "ZDriveDevice.MoveProfile = 9",
        "ZDriveDevice.MoveOption = 0"}},
      {"Z Move",
       Silent([](DriveUnits& units) { units.CZDrive.Move(-50); }),
       "Move Error!!",
       0,
       {"ZDriveDevice.Position -> 400", "ZDriveDevice.Position = 350"}},
      {"Z MoveAsyncStart",
       Silent([](DriveUnits& units) { units.CZDrive.MoveAsyncStart(1000); }),
       "MoveAsyncStart Error!!",
       0,
       {"DeviceList.Item(1).AsyncMode = true", "ZDriveDevice.Position = 1000",
        "DeviceList.Item(1).AsyncMode = false"}},
      {"Z IsMoveAsyncEnd",
       [](DriveUnits& units) { return units.CZDrive.IsMoveAsyncEnd() ? 1 : 0; },
       "MoveAsyncEnd Error!!",
       1,
       {"DeviceList.Item(1).WaitMove(1) -> 0"}},
      {"Z SelectNose",
       Silent([](DriveUnits& units) { units.CZDrive.SelectNose(2); }),
       "SelectNose Error!!",
       0,
       {"NosepieceDevice.BeginPositioning()", "NosepieceDevice.Position = 2"}},
      {"Z NosePosition",
       [](DriveUnits& units) { return units.CZDrive.NosePosition(); },
       "NosePosition Error!!",
       3,
       {"NosepieceDevice.Position -> 3"}},
      {"CurPositionX",
       [](DriveUnits& units) { return units.CXYDrive.CurPositionX(); },
       "GetPositionX Error!!",
       -50,
       {"XYDriveDevice.PositionX -> -50"}},
      {"CurPositionY",
       [](DriveUnits& units) { return units.CXYDrive.CurPositionY(); },
       "GetPositionY Error!!",
       60,
       {"XYDriveDevice.PositionY -> 60"}},
      {"XY MoveStart",
       Silent([](DriveUnits& units) { units.CXYDrive.MoveStart(); }),
       "MoveStart Error!!",
       0,
       {"NosepieceDevice.BeginPositioning()", "XYDriveDevice.MoveProfile = 9"}},
      {"MoveX",
       Silent([](DriveUnits& units) { units.CXYDrive.MoveX(50); }),
       "MoveX Error!!",
       0,
       {"XYDriveDevice.PositionX -> -50", "XYDriveDevice.PositionX = 0"}},
      {"MoveY",
       Silent([](DriveUnits& units) { units.CXYDrive.MoveY(-1); }),
       "MoveY Error!!",
       0,
       {"XYDriveDevice.PositionY -> 60", "XYDriveDevice.PositionY = 59"}},
      {"XY MoveAsyncStart",
       Silent([](DriveUnits& units) { units.CXYDrive.MoveAsyncStart(7, -8); }),
       "MoveAsyncStart Error!!",
       0,
       {"DeviceList.Item(1).AsyncMode = true", "XYDriveDevice.PositionX = 7",
        "XYDriveDevice.PositionY = -8", "DeviceList.Item(1).AsyncMode = false"}},
      {"XY IsMoveAsyncEnd",
       [](DriveUnits& units) { return units.CXYDrive.IsMoveAsyncEnd() ? 1 : 0; },
       "MoveAsyncEnd Error!!",
       1,
       {"DeviceList.Item(1).WaitMove(1) -> 0"}},
      {"XY SelectNose",
       Silent([](DriveUnits& units) { units.CXYDrive.SelectNose(6); }),
       "SelectNose Error!!",
       0,
       {"NosepieceDevice.BeginPositioning()", "NosepieceDevice.Position = 6"}},
      {"XY NosePosition",
       [](DriveUnits& units) { return units.CXYDrive.NosePosition(); },
       "NosePosition Error!!",
       3,
       {"NosepieceDevice.Position -> 3"}},
  };
  return rows;
}

TEST(DriveOperations, EachOperationMakesItsCallsInOrder) {
  for (const MotionRow& row : AllMotions()) {
    const auto rig = MakeMotionRig();
    EXPECT_EQ(row.run(rig->units), row.answer) << row.what;
    EXPECT_EQ(rig->journal.Lines(), row.journal) << row.what;
  }
}

// With the application's title as its caption.
TEST(DriveOperations, EachCallThatFailsIsOneCriticalBoxAndTheAnswerIsNone) {
  for (const MotionRow& row : AllMotions()) {
    const std::size_t calls = FailEachCallOf(MakeMotionRig, row.run, [&](Rig& rig, std::size_t k) {
      rig.prompts.ExpectBox(row.box, 16, Answer::Ok, "");
      EXPECT_EQ(row.run(rig.units), 0) << row.what << " call " << k;
      EXPECT_TRUE(rig.prompts.AllAnswersUsed()) << row.what << " call " << k;
    });
    EXPECT_GE(calls, 2U) << row.what;
  }
}

// Save for the blocking mode, which is set back.
TEST(DriveOperations, AFailureEndsAnOperationBeforeItsLaterWrites) {
  for (const MotionRow& row : AllMotions()) {
    FailEachCallOf(MakeMotionRig, row.run, [&](Rig& rig, std::size_t k) {
      rig.prompts.AcceptAnyBox();
      row.run(rig.units);
      Lines writes;
      for (const std::string& line : rig.journal.Writes()) {
        if (line.find("AsyncMode = false") == std::string::npos) writes.push_back(line);
      }
      for (std::size_t i = 0; i + 1 < writes.size(); ++i) {
        EXPECT_FALSE(writes[i].ends_with(kFailed)) << row.what << " call " << k << ' ' << writes[i];
      }
    });
  }
}

TEST(DriveOperations, WithoutAConnectionEachOperationSaysSo) {
  for (const MotionRow& row : AllMotions()) {
    const auto rig = MakeMotionRig();
    rig->units.Disconnect();
    rig->prompts.ExpectBox(row.box, 16);
    EXPECT_EQ(row.run(rig->units), 0) << row.what;
  }
}

// Nothing decides beforehand whether a drive is there.
TEST(DriveOperations, ADriveThatIsNotThereIsAskedAllTheSame) {
  const std::vector<std::pair<const char*, std::function<void(DriveUnits&)>>> rows{
      {"GetPosition Error!!", [](DriveUnits& units) { EXPECT_EQ(units.CZDrive.CurPosition(), 0); }},
      {"MoveStart Error!!", [](DriveUnits& units) { units.CZDrive.MoveStart(); }},
      {"Move Error!!", [](DriveUnits& units) { units.CZDrive.Move(1); }},
      {"MoveAsyncStart Error!!", [](DriveUnits& units) { units.CZDrive.MoveAsyncStart(1); }},
      {"GetPositionX Error!!",
       [](DriveUnits& units) { EXPECT_EQ(units.CXYDrive.CurPositionX(), 0); }},
      {"GetPositionY Error!!",
       [](DriveUnits& units) { EXPECT_EQ(units.CXYDrive.CurPositionY(), 0); }},
      {"MoveStart Error!!", [](DriveUnits& units) { units.CXYDrive.MoveStart(); }},
      {"MoveX Error!!", [](DriveUnits& units) { units.CXYDrive.MoveX(1); }},
      {"MoveY Error!!", [](DriveUnits& units) { units.CXYDrive.MoveY(1); }},
      {"MoveAsyncStart Error!!", [](DriveUnits& units) { units.CXYDrive.MoveAsyncStart(1, 1); }}};
  for (const auto& [box, run] : rows) {
    MotionRig rig("Shell");
    rig.prompts.ExpectBox(box, 16);
    run(rig.units);
  }
}

TEST(DriveOperations, ADriveThatIsOnlySensedRefusesToMove) {
  MotionRig rig("Pair");
  rig.prompts.ExpectBox("Move Error!!", 16);
  rig.z().Move(1);
  EXPECT_EQ(rig.z().CurPosition(), 0);
}

struct NoseRow {
  std::int32_t address;
  bool byFocus;
  bool byStage;
};

TEST(DriveOperations, TheNosepieceIsTurnedToAddressesWithinTheBounds) {
  for (const NoseRow& row :
       {NoseRow{-1, false, false}, NoseRow{0, false, false}, NoseRow{1, true, true},
        NoseRow{6, true, true}, NoseRow{7, true, false}, NoseRow{10, true, false},
        NoseRow{11, false, false}, NoseRow{2147483647, false, false}}) {
    for (const bool focus : {true, false}) {
      MotionRig rig("Attic");
      rig.xy().NoseCount = 6;
      if (focus) rig.z().SelectNose(row.address);
      if (!focus) rig.xy().SelectNose(row.address);
      const Lines turn{"NosepieceDevice.BeginPositioning()",
                       "NosepieceDevice.Position = " + std::to_string(row.address)};
      EXPECT_EQ(rig.journal.Lines(), (focus ? row.byFocus : row.byStage) ? turn : Lines{})
          << row.address;
    }
  }
}

TEST(DriveOperations, ANosepieceThatCannotBeTurnedIsNeitherTurnedNorAsked) {
  for (const char* bench : {"Outpost", "Hub"}) {
    MotionRig rig(bench);
    rig.xy().NoseCount = 6;
    rig.z().SelectNose(1);
    rig.xy().SelectNose(1);
    EXPECT_EQ(rig.z().NosePosition(), 0);
    EXPECT_EQ(rig.xy().NosePosition(), 0);
    EXPECT_EQ(rig.journal.CallCount(), 0U) << bench;
  }
}

TEST(DriveOperations, ADrivePreparesForMovesWhereANosepieceTurnsToo) {
  struct Row {
    const char* bench;
    bool focus;
    bool stage;
  };
  for (const Row& row :
       {Row{"Quay", true, true}, Row{"Harbour", true, true}, Row{"Hub", false, false},
        Row{"Outpost", false, false}, Row{"Relay", false, false}, Row{"Deck", false, false},
        Row{"Watch", false, false}, Row{"Shell", false, false}, Row{"Hollow", true, false},
        Row{"Attic", true, true}}) {
    MotionRig rig(row.bench);
    rig.prompts.AcceptAnyBox();
    rig.z().MoveStart();
    EXPECT_EQ(rig.prompts.Boxes().size(), row.focus ? 0U : 1U) << row.bench;
    rig.prompts.ClearRecords();
    rig.xy().MoveStart();
    EXPECT_EQ(rig.prompts.Boxes().size(), row.stage ? 0U : 1U) << row.bench;
  }
}

}  // namespace
}  // namespace mortane::test
