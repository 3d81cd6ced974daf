// Each operation of the drives' motion: its calls, its failures, its box.
#include "drives/MotionRig.h"

namespace mortane::test {
namespace {

// One operation, what it answers (a boolean as 0 or 1), the box of its failure, and what the
// journal holds when all goes well.
struct MotionRow {
  const char* what;
  std::function<std::int32_t(clsK70&)> run;
  const char* box;
  std::int32_t answer;
  Lines journal;
};

template <typename Operation>
std::function<std::int32_t(clsK70&)> Silent(Operation operation) {
  return [operation](clsK70& k70) {
    operation(k70);
    return 0;
  };
}

const std::vector<MotionRow>& AllMotions() {
  static const std::vector<MotionRow> rows{
      {"Z CurPosition",
       [](clsK70& k70) { return k70.CZDrive.CurPosition(); },
       "GetPosition Error!!",
       400,
       {"ZDriveDevice.Position -> 400"}},
      {"Z MoveStart",
       Silent([](clsK70& k70) { k70.CZDrive.MoveStart(); }),
       "MoveStart Error!!",
       0,
       {"NosepieceDevice.BeginZPositioning()", "ZDriveDevice.MoveProfile = 9",
        "ZDriveDevice.MoveOption = 0"}},
      {"Z Move",
       Silent([](clsK70& k70) { k70.CZDrive.Move(-50); }),
       "Move Error!!",
       0,
       {"ZDriveDevice.Position -> 400", "ZDriveDevice.Position = 350"}},
      {"Z MoveAsyncStart",
       Silent([](clsK70& k70) { k70.CZDrive.MoveAsyncStart(1000); }),
       "MoveAsyncStart Error!!",
       0,
       {"DeviceList.Item(1).AsyncMode = true", "ZDriveDevice.Position = 1000",
        "DeviceList.Item(1).AsyncMode = false"}},
      {"Z IsMoveAsyncEnd",
       [](clsK70& k70) { return k70.CZDrive.IsMoveAsyncEnd() ? 1 : 0; },
       "MoveAsyncEnd Error!!",
       1,
       {"DeviceList.Item(1).WaitMove(1) -> 0"}},
      {"Z SelectNose",
       Silent([](clsK70& k70) { k70.CZDrive.SelectNose(2); }),
       "SelectNose Error!!",
       0,
       {"NosepieceDevice.BeginPositioning()", "NosepieceDevice.Position = 2"}},
      {"Z NosePosition",
       [](clsK70& k70) { return k70.CZDrive.NosePosition(); },
       "NosePosition Error!!",
       3,
       {"NosepieceDevice.Position -> 3"}},
      {"CurPositionX",
       [](clsK70& k70) { return k70.CXYDrive.CurPositionX(); },
       "GetPositionX Error!!",
       -50,
       {"XYDriveDevice.PositionX -> -50"}},
      {"CurPositionY",
       [](clsK70& k70) { return k70.CXYDrive.CurPositionY(); },
       "GetPositionY Error!!",
       60,
       {"XYDriveDevice.PositionY -> 60"}},
      {"XY MoveStart",
       Silent([](clsK70& k70) { k70.CXYDrive.MoveStart(); }),
       "MoveStart Error!!",
       0,
       {"NosepieceDevice.BeginPositioning()", "XYDriveDevice.MoveProfile = 9"}},
      {"MoveX",
       Silent([](clsK70& k70) { k70.CXYDrive.MoveX(50); }),
       "MoveX Error!!",
       0,
       {"XYDriveDevice.PositionX -> -50", "XYDriveDevice.PositionX = 0"}},
      {"MoveY",
       Silent([](clsK70& k70) { k70.CXYDrive.MoveY(-1); }),
       "MoveY Error!!",
       0,
       {"XYDriveDevice.PositionY -> 60", "XYDriveDevice.PositionY = 59"}},
      {"XY MoveAsyncStart",
       Silent([](clsK70& k70) { k70.CXYDrive.MoveAsyncStart(7, -8); }),
       "MoveAsyncStart Error!!",
       0,
       {"DeviceList.Item(1).AsyncMode = true", "XYDriveDevice.PositionX = 7",
        "XYDriveDevice.PositionY = -8", "DeviceList.Item(1).AsyncMode = false"}},
      {"XY IsMoveAsyncEnd",
       [](clsK70& k70) { return k70.CXYDrive.IsMoveAsyncEnd() ? 1 : 0; },
       "MoveAsyncEnd Error!!",
       1,
       {"DeviceList.Item(1).WaitMove(1) -> 0"}},
      {"XY SelectNose",
       Silent([](clsK70& k70) { k70.CXYDrive.SelectNose(6); }),
       "SelectNose Error!!",
       0,
       {"NosepieceDevice.BeginPositioning()", "NosepieceDevice.Position = 6"}},
      {"XY NosePosition",
       [](clsK70& k70) { return k70.CXYDrive.NosePosition(); },
       "NosePosition Error!!",
       3,
       {"NosepieceDevice.Position -> 3"}},
  };
  return rows;
}

TEST(DriveOperations, EachOperationMakesItsCallsInOrder) {
  for (const MotionRow& row : AllMotions()) {
    const auto rig = MakeMotionRig();
    EXPECT_EQ(row.run(rig->k70), row.answer) << row.what;
    EXPECT_EQ(rig->journal.Lines(), row.journal) << row.what;
  }
}

// With the application's title as its caption.
TEST(DriveOperations, EachCallThatFailsIsOneCriticalBoxAndTheAnswerIsNone) {
  for (const MotionRow& row : AllMotions()) {
    const std::size_t calls = FailEachCallOf(MakeMotionRig, row.run, [&](Rig& rig, std::size_t k) {
      rig.prompts.ExpectBox(row.box, 16, Answer::Ok, "");
      EXPECT_EQ(row.run(rig.k70), 0) << row.what << " call " << k;
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
      row.run(rig.k70);
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
    rig->k70.Disconnect();
    rig->prompts.ExpectBox(row.box, 16);
    EXPECT_EQ(row.run(rig->k70), 0) << row.what;
  }
}

// Nothing decides beforehand whether a drive is there.
TEST(DriveOperations, ADriveThatIsNotThereIsAskedAllTheSame) {
  const std::vector<std::pair<const char*, std::function<void(clsK70&)>>> rows{
      {"GetPosition Error!!", [](clsK70& k70) { EXPECT_EQ(k70.CZDrive.CurPosition(), 0); }},
      {"MoveStart Error!!", [](clsK70& k70) { k70.CZDrive.MoveStart(); }},
      {"Move Error!!", [](clsK70& k70) { k70.CZDrive.Move(1); }},
      {"MoveAsyncStart Error!!", [](clsK70& k70) { k70.CZDrive.MoveAsyncStart(1); }},
      {"GetPositionX Error!!", [](clsK70& k70) { EXPECT_EQ(k70.CXYDrive.CurPositionX(), 0); }},
      {"GetPositionY Error!!", [](clsK70& k70) { EXPECT_EQ(k70.CXYDrive.CurPositionY(), 0); }},
      {"MoveStart Error!!", [](clsK70& k70) { k70.CXYDrive.MoveStart(); }},
      {"MoveX Error!!", [](clsK70& k70) { k70.CXYDrive.MoveX(1); }},
      {"MoveY Error!!", [](clsK70& k70) { k70.CXYDrive.MoveY(1); }},
      {"MoveAsyncStart Error!!", [](clsK70& k70) { k70.CXYDrive.MoveAsyncStart(1, 1); }}};
  for (const auto& [box, run] : rows) {
    MotionRig rig("Shell");
    rig.prompts.ExpectBox(box, 16);
    run(rig.k70);
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
