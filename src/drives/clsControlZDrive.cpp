#include "drives/clsControlZDrive.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "common/CheckedIndex.h"
#include "common/ErrorTrap.h"
#include "drives/FileSettings.h"
#include "model/FirmwareVersion.h"
#include "model/UnitReport.h"

namespace mortane {
namespace {

constexpr std::string_view kFailure = "Control Focus Drive (";
constexpr std::string_view kCompensationRefused = "Control Focus Drive FocusCompensation";
constexpr std::string_view kLowerLimitRefused = "Control Focus Drive DownLimitation";
constexpr std::string_view kEscapeRefused = "Control Focus Drive EscapeMode";

constexpr std::int32_t kUnknownEscapeMode = -1;

// Values that the controller requires before real moves.
constexpr std::int32_t kMoveProfile = 9;
constexpr std::int32_t kMoveOption = 0;

constexpr int kVerifyingReads = 5;
constexpr std::int64_t kTolerance = 3;

constexpr DriveAxis kAxis{
    "GetPosition", "Move",
    [](const controller::Microscope& mic) { return mic.ZDriveDevice().Position().Number(); },
    [](const controller::Microscope& mic, std::int32_t steps) {
      mic.ZDriveDevice().PutPosition(steps);
    }};

constexpr std::string_view kCode = "CODE";

// The file names a limit by its steps.
constexpr std::array<FileWord, 2> kLimitWords{{{"-300000", 0}, {"-500000", 1}}};
constexpr std::array<FileWord, 2> kEscapeWords{{{"Off", 0}, {"On", 1}}};

using ZSetting = FileSetting<clsControlZDrive>;

template <std::int32_t Axis>
constexpr ZSetting EscapeSetting(std::string_view child) {
  return {child,
          kCode,
          kEscapeWords,
          kEscapeWords,
          [](const clsControlZDrive& unit) -> std::int32_t { return unit.SetEscape(Axis); },
          [](clsControlZDrive& unit, std::int32_t value) {
            unit.SetEscape(Axis, static_cast<std::int16_t>(value));
          },
          "Control Focus Drive EscapeSetting"};
}

constexpr std::array<ZSetting, 4> kSettings{
    FieldSetting<clsControlZDrive, &clsControlZDrive::curFocusCompensation>(
        "FocusCompensation", kCode, kCompensationWords, kCompensationWords, kCompensationRefused),
    FieldSetting<clsControlZDrive, &clsControlZDrive::curLowerLimit>(
        "DownLimitation", kCode, kLimitWords, kLimitWords, kLowerLimitRefused),
    EscapeSetting<clsControlZDrive::kFocusAxis>("Escape_ZDrive"),
    EscapeSetting<clsControlZDrive::kStageAxis>("Escape_XYStage"),
};

std::string OnOrOff(std::int16_t flag) {
  return flag == 1 ? "ON" : "OFF";
}

}  // namespace

struct clsControlZDrive::EscapeRow {
  std::int32_t mode;
  EscapeFlags flags;
};

constexpr std::array<clsControlZDrive::EscapeRow, 4> clsControlZDrive::kEscapeModes{
    {{0, {0, 0}}, {1, {1, 0}}, {2, {0, 1}}, {3, {1, 1}}}};

const clsControlZDrive::EscapeRow* clsControlZDrive::FindMode(std::int32_t mode) {
  const auto* const row = std::find_if(kEscapeModes.begin(), kEscapeModes.end(),
                                       [&](const EscapeRow& known) { return known.mode == mode; });
  return row == kEscapeModes.end() ? nullptr : row;
}

std::int16_t clsControlZDrive::SetEscape(std::int32_t axis) const {
  return escape_[CheckedIndex(axis, 0, escape_.size())];
}

void clsControlZDrive::SetEscape(std::int32_t axis, std::int16_t nVal) {
  escape_[CheckedIndex(axis, 0, escape_.size())] = nVal;
}

std::int32_t clsControlZDrive::Position(std::int32_t address) const {
  if (address < 1 || address > kAddresses) return -1;
  return positions_[static_cast<std::size_t>(address - 1)];
}

void clsControlZDrive::Position(std::int32_t address, std::int32_t steps) {
  if (address < 1 || address > kAddresses) return;
  positions_[static_cast<std::size_t>(address - 1)] = steps;
}

// A condenser that is only sensed rules it out as well.
bool clsControlZDrive::HasLowerLimit() const {
  return parent.IsMounted(accessory::kCondenser) == kNotMounted;
}

bool clsControlZDrive::IsEnable() const {
  if (!parent.IsControllable(accessory::kZFocusDrive)) return false;
  return parent.IsControllable(accessory::kNosepiece) ||
         (HasLowerLimit() && curLowerLimit != kUnknown);
}

EscapeFirmware clsControlZDrive::BodyFirmware() const {
  double version = kNoVersion;
  ErrorTrap trap;
  const bool wasRead = trap.Run([&] { version = parent.ReadMicVer(controllerunit::kBody); });
  if (!wasRead || parent.lConnectDevice < 0) return EscapeFirmware::Unknown;
  return version >= kFullFirmware ? EscapeFirmware::With : EscapeFirmware::Without;
}

std::int32_t clsControlZDrive::CurPosition() const {
  return motion_.Position(kAxis);
}

void clsControlZDrive::MoveStart() const {
  motion_.Run("MoveStart", [this] {
    parent.Mic.NosepieceDevice().BeginZPositioning();
    parent.Mic.ZDriveDevice().PutMoveProfile(kMoveProfile);
    parent.Mic.ZDriveDevice().PutMoveOption(kMoveOption);
  });
}

void clsControlZDrive::Move(std::int32_t delta) const {
  motion_.Move(kAxis, delta);
}

void clsControlZDrive::MoveAsyncStart(std::int32_t target) const {
  motion_.MoveAsyncStart({{kAxis, target}});
}

void clsControlZDrive::SelectNose(std::int32_t address) const {
  motion_.SelectNose(address, kAddresses);
}

bool clsControlZDrive::IsAt(std::int32_t target) const {
  for (int read = 0; read < kVerifyingReads; ++read) {
    if (std::abs(std::int64_t{kAxis.position(parent.Mic)} - target) < kTolerance) return true;
  }
  return false;
}

bool clsControlZDrive::MoveVerified(std::int32_t target) const {
  if (IsAt(target)) return true;
  kAxis.put(parent.Mic, target);
  return IsAt(target);
}

std::string clsControlZDrive::ReadSdk() {
  curFocusCompensation = curLowerLimit = kUnknown;
  positions_.fill(0);
  try {
    if (parent.IsControllable(accessory::kZFocusDrive)) ReadDrive();
    return {};
  } catch (const Failure& failure) {
    // Kept: this report alone has its number in decimal.
    return std::string(kFailure) + failure.Source() + ":" + std::to_string(failure.Number()) + ")";
  }
}

// Flags of a former read must not be sent after one that failed.
void clsControlZDrive::ReadDrive() {
  const EscapeFlags former = std::exchange(escape_, {kUnknownEscape, kUnknownEscape});
  curFocusCompensation = parent.Mic.ZDriveDevice().FocusCompensation();
  if (HasLowerLimit()) curLowerLimit = parent.Mic.ZDriveDevice().LowerLimit();
  const std::int32_t mode = parent.Mic.ControllerSettings().EscapeMode();
  if (mode == kUnknownEscapeMode) return;
  const EscapeRow* const row = FindMode(mode);
  escape_ = row == nullptr ? former : row->flags;
}

std::string clsControlZDrive::ModifySdk(std::string& list) const {
  return CollectDifferences(list, kFailure, [this](std::string& lines) {
    if (parent.IsControllable(accessory::kZFocusDrive)) ListDifferences(lines);
  });
}

void clsControlZDrive::ListDifferences(std::string& lines) const {
  if (HasLowerLimit() && curLowerLimit != kUnknown &&
      curLowerLimit != parent.Mic.ZDriveDevice().LowerLimit()) {
    lines = AppendLine(lines, "Control FocusDrive[DownLimitation]");
  }
  const EscapeRow* const row = FindMode(parent.Mic.ControllerSettings().EscapeMode());
  if (escape_ != (row == nullptr ? EscapeFlags{} : row->flags)) {
    lines = AppendLine(lines, "Control FocusDrive[EscapeMode]Z:" + OnOrOff(escape_[kFocusAxis]) +
                                  " XY:" + OnOrOff(escape_[kStageAxis]));
  }
}

std::string clsControlZDrive::WriteSdk() const {
  if (!parent.IsControllable(accessory::kZFocusDrive)) return {};
  std::string report = WriteCompensation();
  if (HasLowerLimit()) report = AppendLine(report, WriteLowerLimit());
  return AppendLine(report, WriteEscape());
}

std::string clsControlZDrive::WriteCompensation() const {
  return LineIfFailed(kCompensationRefused, [this] {
    if (curFocusCompensation == kUnknown) return;
    const controller::ZDriveDevice drive = parent.Mic.ZDriveDevice();
    if (drive.FocusCompensation() != curFocusCompensation) {
      drive.PutFocusCompensation(curFocusCompensation);
    }
  });
}

std::string clsControlZDrive::WriteLowerLimit() const {
  if (curLowerLimit == kUnknown) return {};
  ErrorTrap trap;
  bool differs = false;
  trap.Run([&] { differs = parent.Mic.ZDriveDevice().LowerLimit() != curLowerLimit; });
  if (differs) {
    trap.Run([&] { parent.Mic.ZDriveDevice().PutLowerLimit(curLowerLimit); });
    WarnOfLimits(trap);
  }
  return trap.TakeFailed() ? std::string(kLowerLimitRefused) : std::string();
}

// What the controller holds now decides, also after a write that failed.
void clsControlZDrive::WarnOfLimits(ErrorTrap& trap) const {
  std::int32_t lower = 0;
  std::int32_t upper = 0;
  const bool hasLower = trap.Run([&] { lower = parent.Mic.ZDriveDevice().LowerLimit(); });
  const bool hasUpper = trap.Run([&] { upper = parent.Mic.ZDriveDevice().UpperLimit(); });
  if (hasLower && hasUpper && lower > upper) {
    parent.prompts().MsgBox("Upper Limit lower than Lower Limit.", box::kExclamation);
  }
}

std::string clsControlZDrive::WriteEscape() const {
  const auto* const row =
      std::find_if(kEscapeModes.begin(), kEscapeModes.end(),
                   [&](const EscapeRow& known) { return known.flags == escape_; });
  if (row == kEscapeModes.end()) return {};
  return LineIfFailed(kEscapeRefused,
                      [&] { parent.Mic.ControllerSettings().PutEscapeMode(row->mode); });
}

std::string clsControlZDrive::ReadDom(const DomNode& node) {
  return ReadSettings<clsControlZDrive>(*this, node, kSettings, MissingAttribute::EmptyText);
}

void clsControlZDrive::WriteDom(DomDocument& document, DomNode section) const {
  WriteSettings<clsControlZDrive>(*this, document, section, kSettings);
}

}  // namespace mortane
