// Handles and signals that are no position: knobs, buzzers, enabled switches, the remotes.
#pragma once

#include <cstdint>
#include <string>

#include "document/Dom.h"
#include "model/ConnectedMicroscope.h"

namespace mortane {

// Owned by clsK70. In every number -1 is unknown or not applicable.
class clsControlOther {
 public:
  explicit clsControlOther(ConnectedMicroscope& microscope) : parent(microscope) {}

  static constexpr std::string_view kElement = "OTHER";

  ConnectedMicroscope& parent;

  // Knobs of focus drive and stage: 1 automatic, 0 manual.
  std::int32_t curAutoZ = kUnknown;
  std::int32_t curAutoXY = kUnknown;
  // 1 coarse, 2 medium, 3 fine; read of a manual knob alone. Kept: never sent.
  std::int32_t curSensitivityZ = kUnknown;
  std::int32_t curSensitivityXY = kUnknown;
  // Of body and hub.
  static constexpr std::int32_t kBuzzersDiffer = 2;
  // 0 on, 1 off, kBuzzersDiffer. Kept: sending anything but 0 switches all off.
  std::int32_t curBuzzer = kUnknown;
  // Switches of the body, the hand controller and the remote: 1 enabled, 0 disabled.
  std::int32_t curSwEnable = kUnknown;
  std::int32_t curTactorSwEnable = kUnknown;
  std::int32_t curR_TLPOSwEnable = kUnknown;
  // 0 off, 1 dark, 2 bright. Kept: a settings file may make it 3, which no option stands for.
  std::int32_t curR_TLPOLED = kUnknown;
  // The fiber illuminator's remote: switch 0 off, 1 on; LED as above; whether its server answered.
  // The page that talks to that server fills them.
  std::int32_t curFiberSwEnable = kUnknown;
  std::int32_t curFiberLED = kUnknown;
  bool curFiberStatus = false;

  bool IsEnable() const;

  std::string ReadSdk();
  // Kept: compares the buzzer with what the last read found, the rest with the controller.
  std::string ModifySdk(std::string& list) const;
  // Kept: writes the buzzers whether they changed or not.
  std::string WriteSdk() const;

  // One "OTHER" element holds all, each in a child of its own. Kept: the remote's LED does not come
  // back from a file as it was written.
  std::string ReadDom(const DomNode& node);
  void WriteDom(DomDocument& document, DomNode section) const;

 private:
  void ReadControls();
  void ListDifferences(std::string& lines) const;
  bool BuzzerDiffers() const;
  bool LedDiffers() const;
  std::string WriteRemote() const;

  std::int32_t readBuzzer_ = kUnknown;  // curBuzzer as the last read left it
};

}  // namespace mortane
