// What the controller moves along when the objective, the light path or the optical zoom changes.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "interlocks/Interlock.h"

namespace mortane {

struct OtherAccessory;

// Owned by clsK70. States: -1 unknown, 0 does not follow, 1 follows. The zoom and the light path
// need only be sensed: the controller sees them change.
class clsInterLockOther {
 public:
  explicit clsInterLockOther(ConnectedMicroscope& microscope) : parent(microscope) {}

  static constexpr std::string_view kElement = "OTHER";
  static constexpr std::string_view kLightPathElement = "LIGHTPATH";
  static constexpr std::string_view kZoomElement = "ZOOM";

  ConnectedMicroscope& parent;

  // What follows the nosepiece, the light path and the zoom, for accessory number 1 to 14; any
  // other raises kSubscriptError. Storing changes a known state only. Kept: Status(10) and
  // Status(11) hold the interlock of the epi field stop after the zoom and after the light path.
  std::int32_t Status(std::int32_t i) const { return status_.Get(i); }
  void Status(std::int32_t i, std::int32_t state) { status_.SetKnown(i, state); }
  std::int32_t LightPathStatus(std::int32_t i) const { return lightPathStatus_.Get(i); }
  void LightPathStatus(std::int32_t i, std::int32_t state) { lightPathStatus_.SetKnown(i, state); }
  std::int32_t ZoomStatus(std::int32_t i) const { return zoomStatus_.Get(i); }
  void ZoomStatus(std::int32_t i, std::int32_t state) { zoomStatus_.SetKnown(i, state); }

  // Kept: the stage alone does not enable.
  bool IsEnable() const;

  // Whether the body's firmware is of the versions 1.0 to 1.2, which have no interlock of the
  // stage. A body that gives no answer, or no number, is of none of them.
  bool LacksStageInterlock() const;

  std::string ReadSdk();
  std::string ModifySdk(std::string& list) const;
  std::string WriteSdk() const;

  // An element holds one accessory, and makes an unknown state known. Kept: one of an accessory
  // that its table does not have is ignored without a word.
  std::string ReadDom(const DomNode& node);
  std::string ReadLPDom(const DomNode& node);
  std::string ReadZMDom(const DomNode& node);
  // Elements of all three kinds, without those of unknown states.
  void WriteDom(DomDocument& document, DomNode section) const;

 private:
  using States = InterlockStates<accessory::kCount>;
  struct Change;
  static const Change kNosepiece;
  static const Change kLightPath;
  static const Change kZoom;

  bool TakesPart(const Change& change, const OtherAccessory& follower) const;
  bool Differs(const Change& change, const OtherAccessory& follower) const;
  void ReadFollower(const Change& change, std::int32_t follower);
  void ReadPath(const Change& change);
  void Compare(const Change& change, const OtherAccessory& follower, std::string& lines) const;
  void ComparePath(const Change& change, std::string& lines) const;
  void WriteFollowers(const Change& change, std::string& lines) const;
  std::string ReadEntry(const Change& change, const DomNode& node);
  void AppendEntries(const Change& change, DomDocument& document, DomNode section) const;

  States status_;
  States lightPathStatus_;
  States zoomStatus_;
};

}  // namespace mortane
