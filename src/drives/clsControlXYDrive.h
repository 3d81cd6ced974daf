// The stage: its compensation, positions for each nosepiece address, and its real moves.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "document/Dom.h"
#include "drives/DriveMotion.h"
#include "model/ConnectedMicroscope.h"

namespace mortane {

// Owned by clsK70. Positions are steps of 0.05 micrometres.
class clsControlXYDrive {
 public:
  explicit clsControlXYDrive(ConnectedMicroscope& microscope)
      : parent(microscope), motion_(microscope) {}

  static constexpr std::string_view kElement = "XYSTAGE";

  ConnectedMicroscope& parent;

  // 1 none, 2 absolute, 3 relative; -1 is unknown. Kept: a read without a stage makes it 1.
  std::int32_t curFocusCompensation = kUnknown;
  // Nosepiece addresses; told by the microscope object on connecting and on each read.
  std::int32_t NoseCount = 0;

  // Kept: the position of address 1 to NoseCount + 1; for other addresses -1, and nothing is
  // stored. An address above 10 within these bounds raises error 9.
  std::int32_t PositionX(std::int32_t address) const { return Stored(positionsX_, address); }
  void PositionX(std::int32_t address, std::int32_t steps) { Store(positionsX_, address, steps); }
  std::int32_t PositionY(std::int32_t address) const { return Stored(positionsY_, address); }
  void PositionY(std::int32_t address, std::int32_t steps) { Store(positionsY_, address, steps); }

  bool IsEnable() const;

  // Real moves, as DriveMotion tells. MoveStart prepares the hardware for them.
  std::int32_t CurPositionX() const;
  std::int32_t CurPositionY() const;
  void MoveStart() const;
  void MoveX(std::int32_t delta) const;
  void MoveY(std::int32_t delta) const;
  // Starts X, then Y.
  void MoveAsyncStart(std::int32_t posx, std::int32_t posy) const;
  bool IsMoveAsyncEnd() const { return motion_.IsMoveAsyncEnd(); }
  // Kept: does nothing, since the controller cannot be told to stop. A stage that was started
  // arrives.
  void MoveStop() const {}
  void SelectNose(std::int32_t address) const;
  std::int32_t NosePosition() const { return motion_.NosePosition(); }

  std::string ReadSdk();
  std::string ModifySdk(std::string& list) const;
  std::string WriteSdk() const;

  // An "XYSTAGE" element holds the compensation in a child of its own.
  std::string ReadDom(const DomNode& node);
  void WriteDom(DomDocument& document, DomNode section) const;

 private:
  using Positions = std::array<std::int32_t, 10>;

  bool IsSlot(std::int32_t address) const;
  std::int32_t Stored(const Positions& positions, std::int32_t address) const;
  void Store(Positions& positions, std::int32_t address, std::int32_t steps) const;
  bool Differs() const;

  DriveMotion motion_;
  Positions positionsX_{};
  Positions positionsY_{};
};

}  // namespace mortane
