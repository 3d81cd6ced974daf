#include "drives/ControlOtherCtl.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QLabel>
#include <QPointer>
#include <QSignalBlocker>
#include <algorithm>
#include <array>
#include <cstdint>
#include <exception>
#include <optional>
#include <string>
#include <vector>

#include "common/CheckedIndex.h"
#include "drives/clsControlOther.h"
#include "model/FirmwareVersion.h"
#include "widgets/Card.h"
#include "widgets/ComboBox.h"
#include "widgets/OptionGroup.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

constexpr std::int32_t kManual = 0;
constexpr std::int32_t kAutomatic = 1;
constexpr std::int32_t kEnabled = 1;
constexpr std::int32_t kCoarse = 1;
constexpr std::int32_t kFine = 3;
constexpr std::int32_t kBright = 2;

constexpr int kAutoOption = 0;
constexpr int kManualOption = 1;

// The steps of LoadData that ask for the version of the body, and the last one.
constexpr int kKnobStep = 3;
constexpr int kTactorStep = 6;
constexpr int kFiberStep = 8;

enum class Value { IsIndex, IsEnabledByFirst };

// A group of options that stands for one field.
struct Choice {
  Control<OptionGroup> ControlOtherCtl::*group;
  std::int32_t clsControlOther::*field;
  Value value;
};

constexpr std::array<Choice, 7> kChoices{{
    {&ControlOtherCtl::optBuzzer, &clsControlOther::curBuzzer, Value::IsIndex},
    {&ControlOtherCtl::optSwitch, &clsControlOther::curSwEnable, Value::IsEnabledByFirst},
    {&ControlOtherCtl::optTactorSwitch, &clsControlOther::curTactorSwEnable,
     Value::IsEnabledByFirst},
    {&ControlOtherCtl::optR_TLPO_Switch, &clsControlOther::curR_TLPOSwEnable,
     Value::IsEnabledByFirst},
    {&ControlOtherCtl::optR_TLPO_LED, &clsControlOther::curR_TLPOLED, Value::IsIndex},
    {&ControlOtherCtl::optFiber_Switch, &clsControlOther::curFiberSwEnable, Value::IsIndex},
    {&ControlOtherCtl::optFiber_LED, &clsControlOther::curFiberLED, Value::IsIndex},
}};

struct Knob {
  Control<OptionGroup> ControlOtherCtl::*mode;
  Control<QCheckBox> ControlOtherCtl::*check;
  Control<ComboBox> ControlOtherCtl::*combo;
  std::int32_t clsControlOther::*automatic;
  std::int32_t clsControlOther::*sensitivity;
};

constexpr std::array<Knob, 2> kKnobs{{
    {&ControlOtherCtl::optAuto, &ControlOtherCtl::CheckFocusAuto, &ControlOtherCtl::ComboFocus,
     &clsControlOther::curAutoZ, &clsControlOther::curSensitivityZ},
    {&ControlOtherCtl::optXYAuto, &ControlOtherCtl::CheckStageAuto, &ControlOtherCtl::ComboStage,
     &clsControlOther::curAutoXY, &clsControlOther::curSensitivityXY},
}};

// A value that no option stands for raises a subscript failure.
void SelectOption(OptionGroup& group, std::int32_t value) {
  CheckedIndex(value, 0, static_cast<std::size_t>(group.count()));
  group.select(value);
}

void SelectMode(OptionGroup& group, std::int32_t automatic) {
  switch (automatic) {
    case kAutomatic:
      return group.select(kAutoOption);
    case kManual:
      return group.select(kManualOption);
    default:
      return group.clear();
  }
}

void SelectSwitch(OptionGroup& group, std::int32_t enabled) {
  group.select(enabled == kEnabled ? 0 : 1);
}

bool HasFocusKnob(const clsControlOther& other) {
  return other.parent.IsControllable(accessory::kZFocusDrive) && other.curAutoZ != kUnknown;
}

bool HasStageKnob(const clsControlOther& other) {
  return other.parent.IsMounted(accessory::kXYStage) != kNotMounted && other.curAutoXY != kUnknown;
}

// Whether no control that shows the values would store another, or has no place for one.
bool AreOrdinary(const clsControlOther& other) {
  struct Range {
    std::int32_t value;
    std::int32_t least;
    std::int32_t most;
  };
  std::vector<Range> ranges{{other.curSensitivityXY, kUnknown, kFine},
                            {other.curBuzzer, kUnknown, clsControlOther::kBuzzersDiffer},
                            {other.curSwEnable, kUnknown, kEnabled},
                            {other.curTactorSwEnable, kUnknown, kEnabled},
                            {other.curR_TLPOSwEnable, kUnknown, kEnabled}};
  if (other.curFiberStatus) {
    ranges.push_back({other.curFiberSwEnable, 0, kEnabled});
    ranges.push_back({other.curFiberLED, 0, kBright});
  }
  return std::all_of(ranges.begin(), ranges.end(), [](const Range& range) {
    return range.value >= range.least && range.value <= range.most;
  });
}

void ShowFailure(const clsControlOther& other, int step) {
  other.parent.prompts().MsgBox("Data_Load Error" + std::to_string(step), box::kOk);
}

bool IsShown(const QWidget& frame) {
  return !frame.isHidden();
}

bool ReadIntoCaption(InnerFrame& frame) {
  frame.SetCaption(IsShown(frame) ? u"True"_s : u"False"_s);
  return false;
}

}  // namespace

ControlOtherCtl::ControlOtherCtl(clsControlOther& other, QWidget* parent)
    : CardPage(u"Other Settings"_s, parent), other_(other) {
  Build();
  StoreEdits();
}

void ControlOtherCtl::StoreEdits() {
  for (const Choice& choice : kChoices) {
    connect(this->*choice.group, &OptionGroup::selectionChanged, this, [this, &choice](int index) {
      const bool byIndex = choice.value == Value::IsIndex;
      other_.*choice.field = byIndex ? index : (index == 0 ? kEnabled : 0);
    });
  }
  for (const Knob& knob : kKnobs) {
    connect(this->*knob.mode, &OptionGroup::selectionChanged, this, [this, &knob](int index) {
      other_.*knob.automatic = index == kAutoOption ? kAutomatic : kManual;
      if (index == kManualOption) other_.*knob.sensitivity = kCoarse;
    });
    connect(this->*knob.check, &QCheckBox::toggled, this, [this, &knob](bool ticked) {
      other_.*knob.automatic = ticked ? kAutomatic : kManual;
      if (other_.*knob.sensitivity != kUnknown) (this->*knob.combo)->setVisible(!ticked);
    });
    connect(this->*knob.combo, &ComboBox::selectionChanged, this,
            [this, &knob](int row) { other_.*knob.sensitivity = row + kCoarse; });
  }
}

bool ControlOtherCtl::ManualHandleVisible() const {
  return IsShown(*FrameManualHandle);
}

void ControlOtherCtl::ManualHandleVisible(bool visible) {
  FrameManualHandle->setVisible(visible);
  ArrangeColumns();
}

bool ControlOtherCtl::BuzzerVisible() {
  return ReadIntoCaption(*FrameBuzzer);
}

void ControlOtherCtl::BuzzerVisible(bool visible) {
  FrameBuzzer->setVisible(visible);
}

bool ControlOtherCtl::SwitchVisible() {
  return ReadIntoCaption(*FrameSwitch);
}

void ControlOtherCtl::SwitchVisible(bool visible) {
  FrameSwitch->setVisible(visible);
}

bool ControlOtherCtl::R_TLPORemoteVisible() {
  return ReadIntoCaption(*FrameR_TLPORemote);
}

void ControlOtherCtl::R_TLPORemoteVisible(bool visible) {
  FrameR_TLPORemote->setVisible(visible);
  ArrangeColumns();
}

void ControlOtherCtl::LoadData() {
  const QPointer<ControlOtherCtl> page(this);
  Prompts& prompts = other_.parent.prompts();
  std::optional<HourglassScope> hourglass;
  int step = 1;
  try {
    for (; step <= kFiberStep; ++step) {
      if (step == kFiberStep) hourglass.emplace(prompts);
      LoadStep(step);
    }
  } catch (const std::exception&) {
    ShowFailure(other_, step);
  }
  // The box runs the event loop, which may have destroyed the page.
  if (page) ArrangeColumns();
  prompts.FlushInput();
}

bool ControlOtherCtl::Load(Loading& loading, const clsControlOther& other) {
  loading = {};
  loading.isOrdinary = AreOrdinary(other);
  if (!loading.isOrdinary) return false;
  const ConnectedMicroscope& microscope = other.parent;
  std::optional<HourglassScope> hourglass;
  int step = kKnobStep;
  try {
    if (HasFocusKnob(other) || HasStageKnob(other)) {
      loading.knobVersion = microscope.ReadMicVer(controllerunit::kBody);
    }
    step = kTactorStep;
    loading.tactorVersion = microscope.ReadMicVer(controllerunit::kBody);
    hourglass.emplace(microscope.prompts());
  } catch (const std::exception&) {
    loading.failedStep = step;
    ShowFailure(other, step);
  }
  microscope.prompts().FlushInput();
  return true;
}

void ControlOtherCtl::Fill(const Loading& loading) {
  if (!loading.isOrdinary) return LoadData();
  loaded_ = &loading;
  for (int step = 1; step <= kFiberStep && step != loading.failedStep; ++step) LoadStep(step);
  loaded_ = nullptr;
  ArrangeColumns();
}

double ControlOtherCtl::BodyVersion(Version version) const {
  return loaded_ == nullptr ? other_.parent.ReadMicVer(controllerunit::kBody) : loaded_->*version;
}

void ControlOtherCtl::LoadStep(int step) {
  static constexpr std::array<Step, 8> kSteps{
      &ControlOtherCtl::LoadFocusKnob,    &ControlOtherCtl::LoadStageKnob,
      &ControlOtherCtl::LoadKnobFrame,    &ControlOtherCtl::LoadBuzzer,
      &ControlOtherCtl::LoadBodySwitches, &ControlOtherCtl::LoadTactorSwitches,
      &ControlOtherCtl::LoadRemote,       &ControlOtherCtl::LoadFiber};
  (this->*kSteps[CheckedIndex(step, 1, kSteps.size())])();
}

// Selecting Manual sets the sensitivity to coarse, so it is read before and selected again after.
// Kept: the focus knob's list and check box are never shown.
void ControlOtherCtl::LoadFocusKnob() {
  const bool fitted = other_.parent.IsControllable(accessory::kZFocusDrive);
  const std::int32_t automatic = fitted ? other_.curAutoZ : kUnknown;
  const std::int32_t sensitivity = other_.curSensitivityZ;
  hasFocusKnob_ = automatic != kUnknown;
  lblFocusDrive->setVisible(hasFocusKnob_);
  CheckFocusAuto->hide();
  ComboFocus->hide();
  SelectMode(*optAuto, automatic);
  other_.curSensitivityZ = sensitivity;
  if (fitted && sensitivity >= kCoarse && sensitivity <= kFine) {
    ComboFocus->setIndex(sensitivity - kCoarse);
  }
}

// Kept: other than the focus knob's, the controls appear also for a stage that is only sensed, and
// a sensitivity that is not in the list is a failure.
void ControlOtherCtl::LoadStageKnob() {
  const bool fitted = other_.parent.IsMounted(accessory::kXYStage) != kNotMounted;
  const std::int32_t automatic = fitted ? other_.curAutoXY : kUnknown;
  const std::int32_t read = other_.curSensitivityXY;
  const std::int32_t sensitivity = fitted ? read : kUnknown;
  hasStageKnob_ = automatic != kUnknown;
  Frame1->setVisible(fitted);
  for (int i = 0; i < optXYAuto->count(); ++i) optXYAuto->button(i)->setVisible(fitted);
  lblXYStage->setVisible(hasStageKnob_);
  CheckStageAuto->setVisible(hasStageKnob_);
  ComboStage->setVisible(sensitivity != kUnknown);
  SelectMode(*optXYAuto, automatic);
  other_.curSensitivityXY = read;
  if (sensitivity != kUnknown) {
    CheckedIndex(sensitivity, kCoarse - 1, static_cast<std::size_t>(ComboStage->count()) + 1);
    ComboStage->setIndex(sensitivity - kCoarse);
  }
  if (automatic != kManual) ComboStage->hide();
}

void ControlOtherCtl::LoadKnobFrame() {
  FrameManualHandle->setVisible(hasFocusKnob_ || hasStageKnob_);
  if (!hasFocusKnob_ && !hasStageKnob_) return;
  const bool changeable = BodyVersion(&Loading::knobVersion) < kFullFirmware;
  for (OptionGroup* group : std::initializer_list<OptionGroup*>{optAuto, optXYAuto}) {
    for (int i = 0; i < group->count(); ++i) group->button(i)->setEnabled(changeable);
  }
}

void ControlOtherCtl::LoadBuzzer() {
  using namespace controllerunit;
  bool hasBuzzer = false;
  for (const std::int32_t unit : {kBody, kHub, kHandController, kUnit5}) {
    hasBuzzer = hasBuzzer || other_.parent.Controller(unit);
  }
  hasBuzzer = hasBuzzer && other_.curBuzzer != kUnknown;
  FrameBuzzer->setVisible(hasBuzzer);
  if (hasBuzzer) SelectOption(*optBuzzer, other_.curBuzzer);
}

void ControlOtherCtl::LoadBodySwitches() {
  const bool offered =
      other_.parent.Controller(controllerunit::kBody) && other_.curSwEnable != kUnknown;
  FrameSwitch->setVisible(offered);
  if (offered) SelectSwitch(*optSwitch, other_.curSwEnable);
}

void ControlOtherCtl::LoadTactorSwitches() {
  const bool offered = BodyVersion(&Loading::tactorVersion) >= kFullFirmware &&
                       other_.parent.Controller(controllerunit::kHandController) &&
                       other_.curTactorSwEnable != kUnknown;
  FrameTactorSwich->setVisible(offered);
  if (offered) SelectSwitch(*optTactorSwitch, other_.curTactorSwEnable);
}

void ControlOtherCtl::LoadRemote() {
  const bool offered =
      other_.parent.Controller(controllerunit::kRemote) && other_.curR_TLPOSwEnable != kUnknown;
  FrameR_TLPORemote->setVisible(offered);
  if (!offered) return;
  if (optR_TLPO_LED->button(other_.curR_TLPOLED) != nullptr) {
    optR_TLPO_LED->select(other_.curR_TLPOLED);
  } else {
    const QSignalBlocker quiet(optR_TLPO_LED);  // the field keeps what no option stands for
    optR_TLPO_LED->select(0);
  }
  SelectSwitch(*optR_TLPO_Switch, other_.curR_TLPOSwEnable);
}

void ControlOtherCtl::LoadFiber() {
  FrameFiberRemote->setVisible(other_.curFiberStatus);
  if (!other_.curFiberStatus) return;
  SelectOption(*optFiber_Switch, other_.curFiberSwEnable);
  SelectOption(*optFiber_LED, other_.curFiberLED);
}

}  // namespace mortane
