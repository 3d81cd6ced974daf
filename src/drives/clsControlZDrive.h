// The focus drive: its settings, a position for each nosepiece address, and its real moves.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "document/Dom.h"
#include "drives/DriveMotion.h"
#include "model/ConnectedMicroscope.h"

namespace mortane {

class ErrorTrap;

enum class EscapeFirmware { Unknown, Without, With };

// Owned by clsK70. Positions are steps of 0.05 micrometres. Only a drive that can be commanded
// has settings; -1 is a setting that is unknown or not applicable.
class clsControlZDrive {
 public:
  explicit clsControlZDrive(ConnectedMicroscope& microscope)
      : parent(microscope), motion_(microscope) {}

  static constexpr std::string_view kElement = "FOCUSDRIVE";

  ConnectedMicroscope& parent;

  // 1 none, 2 absolute, 3 relative.
  std::int32_t curFocusCompensation = kUnknown;
  // 0 is -15 mm, 1 is -25 mm. Applies only where no condenser is fitted, not even a sensed one.
  std::int32_t curLowerLimit = kUnknown;
  // Kept: 0 or 1 as the page shows it, neither sent nor saved.
  std::int32_t curUpperLimit = 0;
  // Nosepiece addresses; told by the microscope object on connecting and on each read.
  std::int32_t NoseCount = 0;

  static constexpr std::int32_t kFocusAxis = 0;
  static constexpr std::int32_t kStageAxis = 1;
  static constexpr std::int16_t kUnknownEscape = 2;
  // The escape of an axis: 1 on, 0 off, kUnknownEscape when the controller told an unknown mode.
  // An axis that is neither of the two raises error 9.
  std::int16_t SetEscape(std::int32_t axis) const;
  void SetEscape(std::int32_t axis, std::int16_t nVal);

  // The position of address 1 to 10; for other addresses -1, and nothing is stored.
  std::int32_t Position(std::int32_t address) const;
  void Position(std::int32_t address, std::int32_t steps);

  bool IsEnable() const;

  // By the version of the body's firmware, from 1.3 on with. A connected microscope without a body
  // is Without; a version that cannot be read, and no connection, is Unknown.
  EscapeFirmware BodyFirmware() const;

  // Real moves, as DriveMotion tells. MoveStart prepares the hardware for them.
  std::int32_t CurPosition() const;
  void MoveStart() const;
  void Move(std::int32_t delta) const;
  void MoveAsyncStart(std::int32_t target) const;
  bool IsMoveAsyncEnd() const { return motion_.IsMoveAsyncEnd(); }
  // Kept: does nothing, since the controller cannot be told to stop. A drive that was started
  // arrives.
  void MoveStop() const {}
  void SelectNose(std::int32_t address) const;
  std::int32_t NosePosition() const { return motion_.NosePosition(); }

  // A read that fails leaves the escape unknown, which is not written. A mode outside the table
  // leaves the flags.
  std::string ReadSdk();
  // Kept: does not compare the compensation, which WriteSdk writes.
  std::string ModifySdk(std::string& list) const;
  // Kept: writes the escape mode whether it changed or not. A lower limit that it writes above the
  // upper one is shown and stays.
  std::string WriteSdk() const;

  // One "FOCUSDRIVE" element holds all settings, each in a child of its own.
  std::string ReadDom(const DomNode& node);
  void WriteDom(DomDocument& document, DomNode section) const;

 protected:
  // Moves to the target unless the drive is there already, and answers whether it arrived, both to
  // less than 3 steps. Asks five times before it believes that the drive is elsewhere. Raises what
  // the controller raises.
  bool MoveVerified(std::int32_t target) const;

 private:
  static constexpr std::int32_t kAddresses = 10;

  // By axis.
  using EscapeFlags = std::array<std::int16_t, 2>;
  struct EscapeRow;
  static const std::array<EscapeRow, 4> kEscapeModes;

  static const EscapeRow* FindMode(std::int32_t mode);
  bool HasLowerLimit() const;
  bool IsAt(std::int32_t target) const;
  void ReadDrive();
  void ListDifferences(std::string& lines) const;
  std::string WriteCompensation() const;
  std::string WriteLowerLimit() const;
  void WarnOfLimits(ErrorTrap& trap) const;
  std::string WriteEscape() const;

  DriveMotion motion_;
  std::array<std::int32_t, kAddresses> positions_{};
  EscapeFlags escape_{};
};

}  // namespace mortane
