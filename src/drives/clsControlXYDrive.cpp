#include "drives/clsControlXYDrive.h"

#include "common/CheckedIndex.h"
#include "drives/FileSettings.h"
#include "model/UnitReport.h"

namespace mortane {
namespace {

constexpr std::string_view kFailure = "Control XY Stage (";
constexpr std::string_view kRefused = "Control XY Stage FocusCompensation";

// Values that the controller requires before real moves.
constexpr std::int32_t kMoveProfile = 9;

constexpr DriveAxis kAxisX{
    "GetPositionX", "MoveX",
    [](const controller::Microscope& mic) { return mic.XYDriveDevice().PositionX().Number(); },
    [](const controller::Microscope& mic, std::int32_t steps) {
      mic.XYDriveDevice().PutPositionX(steps);
    }};
constexpr DriveAxis kAxisY{
    "GetPositionY", "MoveY",
    [](const controller::Microscope& mic) { return mic.XYDriveDevice().PositionY().Number(); },
    [](const controller::Microscope& mic, std::int32_t steps) {
      mic.XYDriveDevice().PutPositionY(steps);
    }};

constexpr std::array<FileSetting<clsControlXYDrive>, 1> kSettings{
    FieldSetting<clsControlXYDrive, &clsControlXYDrive::curFocusCompensation>(
        "FocusCompensation", "CODE", kCompensationWords, kCompensationWords, kRefused)};

}  // namespace

bool clsControlXYDrive::IsSlot(std::int32_t address) const {
  return address >= 1 && address - 1 <= NoseCount;
}

std::int32_t clsControlXYDrive::Stored(const Positions& positions, std::int32_t address) const {
  return IsSlot(address) ? positions[CheckedIndex(address, 1, positions.size())] : -1;
}

void clsControlXYDrive::Store(Positions& positions, std::int32_t address,
                              std::int32_t steps) const {
  if (IsSlot(address)) positions[CheckedIndex(address, 1, positions.size())] = steps;
}

bool clsControlXYDrive::IsEnable() const {
  return parent.IsControllable(accessory::kXYStage) && parent.IsControllable(accessory::kNosepiece);
}

std::int32_t clsControlXYDrive::CurPositionX() const {
  return motion_.Position(kAxisX);
}

std::int32_t clsControlXYDrive::CurPositionY() const {
  return motion_.Position(kAxisY);
}

void clsControlXYDrive::MoveStart() const {
  motion_.Run("MoveStart", [this] {
    parent.Mic.NosepieceDevice().BeginPositioning();
    parent.Mic.XYDriveDevice().PutMoveProfile(kMoveProfile);
  });
}

void clsControlXYDrive::MoveX(std::int32_t delta) const {
  motion_.Move(kAxisX, delta);
}

void clsControlXYDrive::MoveY(std::int32_t delta) const {
  motion_.Move(kAxisY, delta);
}

void clsControlXYDrive::MoveAsyncStart(std::int32_t posx, std::int32_t posy) const {
  motion_.MoveAsyncStart({{kAxisX, posx}, {kAxisY, posy}});
}

void clsControlXYDrive::SelectNose(std::int32_t address) const {
  motion_.SelectNose(address, NoseCount);
}

std::string clsControlXYDrive::ReadSdk() {
  curFocusCompensation = kUnknown;
  positionsX_.fill(0);
  positionsY_.fill(0);
  return FailureOf(kFailure, [this] {
    curFocusCompensation = parent.IsControllable(accessory::kXYStage)
                               ? parent.Mic.XYDriveDevice().FocusCompensation()
                               : compensation::kNone;
  });
}

// Asks the controller only for a stage and a compensation that can be written.
bool clsControlXYDrive::Differs() const {
  return parent.IsControllable(accessory::kXYStage) && curFocusCompensation != kUnknown &&
         curFocusCompensation != parent.Mic.XYDriveDevice().FocusCompensation();
}

std::string clsControlXYDrive::ModifySdk(std::string& list) const {
  return CollectDifferences(list, kFailure, [this](std::string& lines) {
    if (Differs()) lines = "Control XYStage[FocusCompensation]";
  });
}

std::string clsControlXYDrive::WriteSdk() const {
  return LineIfFailed(kRefused, [this] {
    if (Differs()) parent.Mic.XYDriveDevice().PutFocusCompensation(curFocusCompensation);
  });
}

std::string clsControlXYDrive::ReadDom(const DomNode& node) {
  return ReadSettings<clsControlXYDrive>(*this, node, kSettings, MissingAttribute::EmptyText);
}

void clsControlXYDrive::WriteDom(DomDocument& document, DomNode section) const {
  WriteSettings<clsControlXYDrive>(*this, document, section, kSettings);
}

}  // namespace mortane
