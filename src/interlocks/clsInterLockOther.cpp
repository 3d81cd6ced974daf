#include "interlocks/clsInterLockOther.h"

#include <algorithm>

#include "common/ErrorTrap.h"
#include "common/Numbers.h"
#include "controller/ControllerNumbers.h"
#include "interlocks/OtherAccessories.h"
#include "model/FirmwareVersion.h"
#include "model/UnitReport.h"

namespace mortane {
namespace {

constexpr std::string_view kFailure = "InterLock Other (";

// Versions of a body that has no interlock of the stage, both ends included.
constexpr double kFirstVersionWithoutStage = 1.0;
constexpr double kLastVersionWithoutStage = 1.2;

bool IsPresent(const ConnectedMicroscope& microscope, std::int32_t item) {
  return microscope.IsMounted(item) != kNotMounted;
}

// Kept: files have the epi field stop under light path and zoom only.
bool HasNosepieceEntry(const OtherAccessory& row) {
  return row.number != accessory::kEpiFieldStop;
}

bool HasPathEntry(const OtherAccessory& row) {
  return row.FollowsPath();
}

}  // namespace

// A change that accessories follow.
struct clsInterLockOther::Change {
  std::int32_t accessory;     // that changes
  std::int32_t leastMounted;  // of it, for others to follow
  std::int32_t cause;         // one of namespace trigger
  States clsInterLockOther::*states;
  bool (OtherAccessory::*isFollowed)() const;
  bool (*hasEntry)(const OtherAccessory&);  // that is taken from a settings file
  std::string_view element;                 // in a settings file
  // How the lines begin of an element that is refused, of a difference and of a failed write. An
  // empty difference or failed stands for the line that the follower has of its own.
  std::string_view refused;
  std::string_view difference;
  std::string_view failed;

  std::string DifferenceLine(const OtherAccessory& row) const {
    if (difference.empty()) return std::string(row.line);
    return std::string(difference) + std::string(row.pathItem) + "]";
  }
  std::string FailedLine(const OtherAccessory& row) const {
    if (failed.empty()) return std::string(row.line);
    return std::string(failed) + std::to_string(row.number) + " " + std::string(row.word) + "]";
  }
};

constexpr clsInterLockOther::Change clsInterLockOther::kNosepiece{
    accessory::kNosepiece,
    kControllable,
    trigger::kNosepiece,
    &clsInterLockOther::status_,
    &OtherAccessory::FollowsNosepiece,
    HasNosepieceEntry,
    clsInterLockOther::kElement,
    "InterLock Other[",
    "",
    "",
};

constexpr clsInterLockOther::Change clsInterLockOther::kLightPath{
    accessory::kLightPath,
    kSensorOnly,
    trigger::kLightPath,
    &clsInterLockOther::lightPathStatus_,
    &OtherAccessory::FollowsPath,
    HasPathEntry,
    clsInterLockOther::kLightPathElement,
    "InterLock LightPath[",
    "InterLock Light Path [",
    "InterLock Other [Light Path : ",
};

constexpr clsInterLockOther::Change clsInterLockOther::kZoom{
    accessory::kOpticalZoom,         kSensorOnly,
    trigger::kOpticalZoom,           &clsInterLockOther::zoomStatus_,
    &OtherAccessory::FollowsPath,    HasPathEntry,
    clsInterLockOther::kZoomElement, "InterLock Zoom[",
    "InterLock Optical Zoom [",      "InterLock Other [Optical Zoom : ",
};

bool clsInterLockOther::TakesPart(const Change& change, const OtherAccessory& follower) const {
  return (follower.*change.isFollowed)() &&
         parent.IsMounted(change.accessory) >= change.leastMounted &&
         parent.IsControllable(follower.number);
}

// Asks the controller for a known state only.
bool clsInterLockOther::Differs(const Change& change, const OtherAccessory& follower) const {
  const std::int32_t state = (this->*change.states).Get(follower.number);
  return state != kUnknown && state != ReadInterlock(parent, follower.number, change.cause);
}

// Kept: stricter than reading and writing. A zoom or a light path that is only sensed does not
// enable, and of the light path the epi field stop must be controllable too.
bool clsInterLockOther::IsEnable() const {
  const auto follows = [this](const OtherAccessory& row) {
    return row.number != accessory::kXYStage && TakesPart(kNosepiece, row) &&
           Status(row.number) != kUnknown;
  };
  if (std::any_of(kOtherAccessories.begin(), kOtherAccessories.end(), follows)) return true;
  const bool zoom = Status(accessory::kOpticalZoom) != kUnknown &&
                    parent.IsControllable(accessory::kOpticalZoom) &&
                    IsPresent(parent, accessory::kEpiFieldStop);
  const bool lightPath = Status(accessory::kLightPath) != kUnknown &&
                         parent.IsControllable(accessory::kLightPath) &&
                         parent.IsControllable(accessory::kEpiFieldStop);
  return zoom || lightPath;
}

bool clsInterLockOther::LacksStageInterlock() const {
  double version = 0;
  ErrorTrap trap;
  trap.Run([&] {
    const std::string text =
        parent.Mic.ControllerVersion(controllerunit::NumberInLibrary(controllerunit::kBody));
    const std::size_t length = CharacterCount(text);
    if (length > 0) version = ToDouble(LastCharacters(text, length - 1), PointFormat());
  });
  return version >= kFirstVersionWithoutStage && version <= kLastVersionWithoutStage;
}

void clsInterLockOther::ReadFollower(const Change& change, std::int32_t follower) {
  (this->*change.states).Set(follower, ReadInterlock(parent, follower, change.cause));
}

// Kept: whether the followers are mounted is not asked.
void clsInterLockOther::ReadPath(const Change& change) {
  if (!IsPresent(parent, change.accessory)) return;
  if (!parent.Controller(controllerunit::kBody) && !parent.Controller(controllerunit::kHub)) return;
  ReadFollower(change, accessory::kEpiFieldStop);
  status_.Set(change.accessory, ReadInterlock(parent, accessory::kEpiFieldStop, change.cause));
  if (parent.ReadMicVer(controllerunit::kBody) < kFullFirmware) return;
  ReadFollower(change, accessory::kNDFilter);
  ReadFollower(change, accessory::kDiaFieldStop);
}

std::string clsInterLockOther::ReadSdk() {
  status_.Forget();
  lightPathStatus_.Forget();
  zoomStatus_.Forget();
  return FailureOf(kFailure, [this] {
    for (const OtherAccessory& row : kOtherAccessories) {
      if (TakesPart(kNosepiece, row)) ReadFollower(kNosepiece, row.number);
    }
    ReadPath(kZoom);
    ReadPath(kLightPath);
  });
}

void clsInterLockOther::Compare(const Change& change, const OtherAccessory& follower,
                                std::string& lines) const {
  if (!TakesPart(change, follower) || !Differs(change, follower)) return;
  lines = AppendLine(lines, change.DifferenceLine(follower));
}

// The epi field stop first, down to the ND filter.
void clsInterLockOther::ComparePath(const Change& change, std::string& lines) const {
  std::for_each(kOtherAccessories.rbegin(), kOtherAccessories.rend(),
                [&](const OtherAccessory& row) { Compare(change, row, lines); });
}

std::string clsInterLockOther::ModifySdk(std::string& list) const {
  return CollectWhenComplete(list, kFailure, [this](std::string& lines) {
    for (const OtherAccessory& row : kOtherAccessories) {
      if (row.number == kZoom.accessory) ComparePath(kZoom, lines);
      if (row.number == kLightPath.accessory) ComparePath(kLightPath, lines);
      Compare(kNosepiece, row, lines);
    }
  });
}

void clsInterLockOther::WriteFollowers(const Change& change, std::string& lines) const {
  for (const OtherAccessory& row : kOtherAccessories) {
    if (!TakesPart(change, row)) continue;
    AppendIfFailed(lines, change.FailedLine(row), [&] {
      if (!Differs(change, row)) return;
      WriteInterlock(parent, row.number, change.cause, (this->*change.states).Get(row.number));
    });
  }
}

std::string clsInterLockOther::WriteSdk() const {
  std::string lines;
  WriteFollowers(kNosepiece, lines);
  WriteFollowers(kZoom, lines);
  WriteFollowers(kLightPath, lines);
  return lines;
}

// CODE is checked before POSITION, so a bad CODE is reported even for an unknown accessory.
std::string clsInterLockOther::ReadEntry(const Change& change, const DomNode& node) {
  const InterlockElement element = ReadInterlockElement(node);
  if (!element.state) return std::string(change.refused) + element.position + "]";
  if (*element.state == kUnknown) return {};
  for (const OtherAccessory& row : kOtherAccessories) {
    if (change.hasEntry(row) && EqualsIgnoringCase(row.word, element.position)) {
      (this->*change.states).Set(row.number, *element.state);
    }
  }
  return {};
}

std::string clsInterLockOther::ReadDom(const DomNode& node) {
  return ReadEntry(kNosepiece, node);
}

std::string clsInterLockOther::ReadLPDom(const DomNode& node) {
  return ReadEntry(kLightPath, node);
}

std::string clsInterLockOther::ReadZMDom(const DomNode& node) {
  return ReadEntry(kZoom, node);
}

void clsInterLockOther::AppendEntries(const Change& change, DomDocument& document,
                                      DomNode section) const {
  for (const OtherAccessory& row : kOtherAccessories) {
    const std::int32_t state = (this->*change.states).Get(row.number);
    if (state == kUnknown) continue;
    AppendInterlockElement(document, section, change.element, row.word, state);
  }
}

void clsInterLockOther::WriteDom(DomDocument& document, DomNode section) const {
  AppendEntries(kNosepiece, document, section);
  AppendEntries(kLightPath, document, section);
  AppendEntries(kZoom, document, section);
}

}  // namespace mortane
