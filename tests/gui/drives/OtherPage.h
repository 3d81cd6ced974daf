// The page of the other controls over a model, and what it shows as a text.
#pragma once

#include <QAbstractButton>
#include <QCheckBox>
#include <QLabel>
#include <array>
#include <string>

#include "drives/ControlOtherCtl.h"
#include "gui/drives/DrivePageUnits.h"
#include "widgets/Card.h"
#include "widgets/ComboBox.h"
#include "widgets/OptionGroup.h"
#include "widgets/Theme.h"

namespace mortane::test {

inline ControlOtherCtl* MakeControlOtherCtl(DrivePageUnits& k70) {
  return new ControlOtherCtl(k70.COther);
}

// Reads the other controls alone: the databases of some instruments are not fit to be read.
struct OtherRig : PageRig {
  explicit OtherRig(Bench bench) : PageRig(std::move(bench), Link::None) {
    Read(static_cast<std::int32_t>(simulated.bench().instruments.size()) - 1);
  }
  explicit OtherRig(std::string_view benchName) : OtherRig(benches::Named(benchName)) {}

  void Read(std::int32_t device) {
    k70().Connect(device);
    EXPECT_EQ(k70().COther.ReadSdk(), "");
    journal.Clear();
    prompts.ClearRecords();
  }
};

// Knobs and sensitivities, buzzer, switches of body, hand controller and remote, LED, fiber.
inline std::string ValuesOf(const clsControlOther& other) {
  std::string text;
  for (const std::int32_t value :
       {other.curAutoZ, other.curAutoXY, other.curSensitivityZ, other.curSensitivityXY,
        other.curBuzzer, other.curSwEnable, other.curTactorSwEnable, other.curR_TLPOSwEnable,
        other.curR_TLPOLED, other.curFiberSwEnable, other.curFiberLED}) {
    text += std::to_string(value) + " ";
  }
  return text;
}

// The frames that are shown, in order, a letter each: knobs, remote, fiber, buzzer, K70 switch,
// Tactor switch.
inline std::string FramesOf(const ControlOtherCtl& page) {
  std::string frames;
  const auto add = [&frames](const QWidget* frame, char letter) {
    if (!frame->isHidden()) frames += letter;
  };
  add(page.FrameManualHandle, 'k');
  add(page.FrameR_TLPORemote, 'r');
  add(page.FrameFiberRemote, 'f');
  add(page.FrameBuzzer, 'b');
  add(page.FrameSwitch, 's');
  add(page.FrameTactorSwich, 't');
  return frames;
}

}  // namespace mortane::test
