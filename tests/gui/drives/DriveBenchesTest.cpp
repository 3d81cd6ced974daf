// Both drive pages on every instrument: what loading does to the model, and what the move buttons
// write altogether.
#include "gui/drives/DrivePages.h"
#include "support/UnitText.h"

namespace mortane::test {
namespace {

// All that a settings file holds.
std::string Settings(const DrivePageUnits& k70) {
  return FileTextOf(k70.ILOther) + FileTextOf(k70.CZDrive) + FileTextOf(k70.CXYDrive) +
         FileTextOf(k70.COther);
}

// What the drive units hold beside it.
std::string Unsaved(DrivePageUnits& k70) {
  std::string text = std::to_string(k70.CZDrive.curUpperLimit);
  for (std::int32_t address = 1; address <= 10; ++address) {
    text += ' ' + std::to_string(k70.CZDrive.Position(address));
  }
  for (std::int32_t address = 1; address <= k70.CXYDrive.NoseCount && address <= 10; ++address) {
    text += ' ' + std::to_string(k70.CXYDrive.PositionX(address)) + ' ' +
            std::to_string(k70.CXYDrive.PositionY(address));
  }
  return text;
}

void SetPositions(DrivePageUnits& k70) {
  k70.CZDrive.curUpperLimit = 1;
  for (std::int32_t address = 1; address <= 10; ++address) {
    k70.CZDrive.Position(address, 1000 + address);
    if (address > k70.CXYDrive.NoseCount) continue;
    k70.CXYDrive.PositionX(address, 2000 + address);
    k70.CXYDrive.PositionY(address, 3000 + address);
  }
}

struct LoadRow {
  const char* bench;
  bool escapeSetOn;        // the body's firmware is below 1.3, or there is none
  std::int32_t interlock;  // of the focus drive after the nosepiece, afterwards
};

const std::vector<LoadRow>& AllBenches() {
  static const std::vector<LoadRow> rows{
      {"Quay", true, 1},        {"Harbour", false, 1}, {"Lantern", true, 0}, {"Hub", true, -1},
      {"Pair", false, -1},      {"Outpost", true, -1}, {"Relay", false, -1}, {"Deck", true, -1},
      {"DeckRemote", true, -1}, {"Watch", false, -1},  {"Shell", true, -1},  {"Hollow", false, -1},
      {"Attic", false, 0},      {"Crowd", true, -1},
  };
  return rows;
}

TEST(DriveBenches, AreAllThereAre) {
  std::vector<std::string> names;
  for (const LoadRow& row : AllBenches()) names.emplace_back(row.bench);
  EXPECT_EQ(names, benches::Names());
}

// The compensation that is selected sets its interlock, where that is known.
TEST(DriveBenches, LoadingTheFocusPageChangesTheEscapeAndTheInterlockAndNothingElse) {
  for (const LoadRow& row : AllBenches()) {
    PageRig rig(row.bench, Link::Reported);
    rig.prompts.AcceptAnyBox();
    DrivePageUnits& k70 = rig.k70();
    SetPositions(k70);
    for (const std::int16_t flag : {std::int16_t{0}, std::int16_t{2}, std::int16_t{1}}) {
      const std::unique_ptr<Page> page(MakeControlFocusDriveCtl(k70));
      k70.CZDrive.SetEscape(0, flag);
      const std::int32_t interlock = k70.ILOther.Status(12);
      const std::string settings = Settings(k70);
      const std::string unsaved = Unsaved(k70);
      page->LoadData();
      page->LoadData();
      EXPECT_EQ(k70.CZDrive.SetEscape(0), row.escapeSetOn ? 1 : flag) << row.bench;
      EXPECT_EQ(k70.ILOther.Status(12), row.interlock) << row.bench;
      k70.CZDrive.SetEscape(0, flag);
      k70.ILOther.Status(12, interlock);
      EXPECT_EQ(Settings(k70), settings) << row.bench;
      EXPECT_EQ(Unsaved(k70), unsaved) << row.bench;
    }
  }
}

TEST(DriveBenches, LoadingTheStagePageChangesNothing) {
  for (const LoadRow& row : AllBenches()) {
    PageRig rig(row.bench, Link::Reported);
    rig.prompts.AcceptAnyBox();
    SetPositions(rig.k70());
    const std::string settings = Settings(rig.k70());
    const std::string unsaved = Unsaved(rig.k70());
    auto& page = rig.Show(MakeControlXYStageCtl(rig.k70()));
    page.LoadData();
    EXPECT_EQ(Settings(rig.k70()), settings) << row.bench;
    EXPECT_EQ(Unsaved(rig.k70()), unsaved) << row.bench;
  }
}

// What a journal's writes to a member add up to, move by move.
std::vector<std::int32_t> Moves(const Lines& writes, const std::string& member,
                                std::int32_t start) {
  std::vector<std::int32_t> moves;
  for (const std::string& line : writes) {
    const std::string opening = member + " = ";
    if (line.compare(0, opening.size(), opening) != 0) continue;
    if (line.find('!') != std::string::npos) continue;  // refused by the drive
    const std::int32_t position = std::stoi(line.substr(opening.size()));
    moves.push_back(position - start);
    start = position;
  }
  return moves;
}

bool AllAreTo(const Lines& writes, const std::string& opening) {
  return std::all_of(writes.begin(), writes.end(), [&](const std::string& line) {
    return line.compare(0, opening.size(), opening) == 0;
  });
}

using Steps = std::vector<std::int32_t>;

bool CanBeDriven(DrivePageUnits& k70, std::int32_t accessory) {
  return k70.IsMounted(accessory) == kControllable;
}

TEST(DriveBenches, TheFocusDrivesButtonsWriteWhatTheySayAndNothingElse) {
  for (const LoadRow& row : AllBenches()) {
    for (const bool real : {true, false}) {
      PageRig rig(Standing(benches::Named(row.bench)), Link::Reported);
      rig.prompts.AcceptAnyBox();
      auto& page = rig.Show(MakeControlFocusDriveCtl(rig.k70()));
      page.FrameZNose->show();
      page.CheckRealMove->setChecked(real);
      rig.journal.Clear();
      for (MoveButton* button :
           std::initializer_list<MoveButton*>{page.ButtonUpLarge, page.ButtonUpSmall,
                                              page.ButtonDownLarge, page.ButtonDownSmall}) {
        ClickButton(*button);
      }
      const bool moves = real && CanBeDriven(rig.k70(), accessory::kZFocusDrive);
      EXPECT_EQ(Moves(rig.journal.Writes(), "ZDriveDevice.Position", 400),
                moves ? (Steps{50, 1, -50, -1}) : Steps{})
          << row.bench;
      EXPECT_TRUE(AllAreTo(rig.journal.Writes(), "ZDriveDevice.Position")) << row.bench;
      EXPECT_EQ(rig.journal.CallCount() == 0, !real) << row.bench;
      EXPECT_EQ(rig.instrument().zDrive.position, 400) << row.bench << ": in sum nothing";
    }
  }
}

TEST(DriveBenches, TheStagesButtonsWriteWhatTheySayAndNothingElse) {
  for (const LoadRow& row : AllBenches()) {
    for (const bool real : {true, false}) {
      PageRig rig(Standing(benches::Named(row.bench)), Link::Reported);
      rig.prompts.AcceptAnyBox();
      auto& page = rig.Show(MakeControlXYStageCtl(rig.k70()));
      page.FrameXYControl->show();
      page.CheckRealMove->setChecked(real);
      rig.journal.Clear();
      for (MoveButton* button : std::initializer_list<MoveButton*>{
               page.ButtonLeftLarge, page.ButtonLeftSmall, page.ButtonRightLarge,
               page.ButtonRightSmall, page.ButtonUpLarge, page.ButtonUpSmall, page.ButtonDownLarge,
               page.ButtonDownSmall}) {
        ClickButton(*button);
      }
      const bool moves = real && CanBeDriven(rig.k70(), accessory::kXYStage);
      const Steps expected = moves ? Steps{-50, -1, 50, 1} : Steps{};
      EXPECT_EQ(Moves(rig.journal.Writes(), "XYDriveDevice.PositionX", -50), expected) << row.bench;
      EXPECT_EQ(Moves(rig.journal.Writes(), "XYDriveDevice.PositionY", 60), expected) << row.bench;
      EXPECT_TRUE(AllAreTo(rig.journal.Writes(), "XYDriveDevice.Position")) << row.bench;
      EXPECT_EQ(rig.journal.CallCount() == 0, !real) << row.bench;
    }
  }
}

}  // namespace
}  // namespace mortane::test
