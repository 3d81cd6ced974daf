// The wizard: ten steps, one page each, from the system's name to the sending.
#pragma once

#include <array>
#include <cstdint>

#include "app/ProgramForm.h"
#include "widgets/Control.h"
#include "widgets/LatePage.h"
#include "wizard/StepTable.h"

class QFrame;
class QLabel;
class QPushButton;
class QRadioButton;

namespace mortane {

class CondenserSettingsCtl;
class FilterQubeSettingsCtl;
class HelpLine;
class InterlockSettingsCtl;
class KeptButton;
class ObjectiveSettingsCtl;
class Page;
class PageArea;
class SadrelControlFocusDriveCtl;
class SadrelControlOtherCtl;
class SadrelControlTactorSwitch;
class SadrelControlXYStageCtl;
class SadrelEndingCtl;
class SelSetupItemCtl;
class StepButton;
class StepRail;
class SystemSettingsCtl;
class ValueLabel;

inline constexpr char kWizardTitle[] = "Sadrel";

// It owns its pages, which the table makes and which stay to its end. Pages store edits as they are
// made: nothing else is taken from their controls before a Send. A Send ends the window.
class SadrelMainForm : public ProgramForm {
 public:
  explicit SadrelMainForm(const FormServices& services, const StepTable& steps);

  void Load() override;

  // -1 for a step in the sequence, 0 for one left out.
  std::array<std::int16_t, kStepCount> stepEnabled{};
  int currentStep = -1;  // -1 before the first
  Page* currentPage = nullptr;
  int menuIndex = -1;  // of the highlighted picture

  Control<StepRail> PictureMenu{"PictureMenu"};
  Controls<StepButton, kStepCount> ImageMenu{"ImageMenu"};
  Control<QFrame> FrameOptionButton{"FrameOptionButton"};
  Controls<QRadioButton, kStepCount> optMenu{"optMenu"};
  QLabel* LabelHelp = nullptr;  // of the help line
  Control<QFrame> FrameControl{"FrameControl"};
  Control<QPushButton> ButtonCancel{"ButtonCancel"};
  Control<QPushButton> ButtonPrevious{"ButtonPrevious"};
  Control<QPushButton> ButtonNext{"ButtonNext"};
  Control<QPushButton> ButtonFinish{"ButtonFinish"};
  Control<SystemSettingsCtl> SystemSettingsCtl1{"SystemSettingsCtl1"};
  Control<SelSetupItemCtl> SelSetupItemCtl1{"SelSetupItemCtl1"};
  Control<ObjectiveSettingsCtl> ObjectiveSettingsCtl1{"ObjectiveSettingsCtl1"};
  Control<FilterQubeSettingsCtl> FilterQubeSettingsCtl1{"FilterQubeSettingsCtl1"};
  Control<CondenserSettingsCtl> CondenserSettingsCtl1{"CondenserSettingsCtl1"};
  Control<SadrelControlOtherCtl> SadrelControlOtherCtl1{"SadrelControlOtherCtl1"};
  Control<InterlockSettingsCtl> InterlockSettingsCtl1{"InterlockSettingsCtl1"};
  Control<SadrelControlFocusDriveCtl> SadrelControlFocusDriveCtl1{"SadrelControlFocusDriveCtl1"};
  Control<SadrelControlTactorSwitch> SadrelControlTactorSwitch1{"SadrelControlTactorSwitch1"};
  // Kept: no step shows it.
  LateControl<SadrelControlXYStageCtl> SadrelControlXYStageCtl1{"SadrelControlXYStageCtl1"};
  Control<SadrelEndingCtl> SadrelEndingCtl1{"SadrelEndingCtl1"};

  // What the pages' events bring about; connected where the pages are made.
  void OnItemChanged(int item, bool enabled);
  void OnSent();

 protected:
  void OnConnected(Outcome received) override;
  void ShowPending(const std::vector<ItemChange>& changes) override;
  [[nodiscard]] QString Chapter() const override;

 private:
  using Act = void (SadrelMainForm::*)();

  void BuildRail();
  void BuildPages(const FormServices& services);
  QWidget* BuildButtons();
  QPushButton* AddButton(const QString& text, Act act, QWidget* bar);
  void Arrange(QWidget* buttons);
  void TakeOpened(const FileResult& file);

  void EnableStep(int step, bool enabled, const QString& whyOff);
  void OnPicture(int index);
  void OnMenuChanged(int index);
  void OnTab(int step, int tab);

  void GoToStep(int step);
  void EnterStep(int step);
  void ShowPage(Page* page);
  void MarkMainButton();
  void FocusPage();
  int NextStep() const;
  int PreviousStep() const;

  void DoPrevious();
  void DoNext();
  void DoFinish();
  void DoCancel();

  StepTable table_;
  std::array<Page*, kStepCount> pages_{};
  HelpLine* help_ = nullptr;
  Control<KeptButton> kept_{"ButtonKept"};
  Control<ValueLabel> note_{"SessionNote"};  // which microscope is connected
  Control<PageArea> area_{"ScrollControl"};
};

}  // namespace mortane
