#include "wizard/SadrelMainForm.h"

#include <QPushButton>
#include <QRadioButton>
#include <algorithm>

#include "app/CommandBoundary.h"
#include "app/GetAppIcon.h"
#include "app/PageArea.h"
#include "app/SessionNote.h"
#include "app/SettingsFiles.h"
#include "common/Text.h"
#include "hub/clsK70.h"
#include "widgets/Page.h"
#include "widgets/StyleProperties.h"
#include "widgets/ValueLabel.h"
#include "wizard/HelpLine.h"
#include "wizard/SadrelEndingCtl.h"
#include "wizard/SelSetupItemCtl.h"
#include "wizard/SetupItems.h"
#include "wizard/StepButton.h"
#include "wizard/StepRail.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

constexpr std::int16_t kOn = -1;
constexpr std::int16_t kOff = 0;

constexpr int kSystemPicture = 0;
constexpr int kItemPicture = 1;

}  // namespace

void SadrelMainForm::Load() {
  setWindowIcon(GetAppIcon());
  ShowVersion();
  for (int step = 0; step < kStepCount; ++step) {
    const bool always = step == kSystemStep || step == kItemStep || step == kEndingStep;
    EnableStep(step, always, u"No microscope is connected."_s);
  }
}

void SadrelMainForm::OnConnected(Outcome) {
  const clsK70& k70 = GetK70();
  const std::string name = FirstCharacters(k70.SystemName, kSystemNameLength);
  note_->setText(MicroscopeInWords(QString::fromStdString(name), k70.lConnectDevice == kSimulator));
  note_->setAccessibleName(note_->text());  // a screen reader says the name of a label
  for (int item = 0; item < static_cast<int>(kSetupItemCount); ++item) {
    EnableStep(item + kFirstItem, false,
               QLatin1String(kSetupItems[static_cast<std::size_t>(item)].whyNotOffered));
  }
  NoteKept();
  RunStep(prompts(), [this] { pages_[kItemStep]->LoadData(); });
  GoToStep(kSystemStep);
}

// The other steps are loaded when they are entered.
void SadrelMainForm::TakeOpened(const FileResult& file) {
  if (!file.path.empty()) {
    EnterStep(currentStep);
    FocusPage();
  }
  prompts().FlushInput();
}

// The report of the last step tells them.
void SadrelMainForm::ShowPending(const std::vector<ItemChange>&) {
  for (std::size_t step = 0; step < pages_.size(); ++step) {
    ImageMenu[step]->SetPending(Marks().IsOnPage(*pages_[step]));
  }
}

void SadrelMainForm::OnItemChanged(int item, bool enabled) {
  EnableStep(item + kFirstItem, enabled, u"Left out in Setup Items."_s);
}

void SadrelMainForm::EnableStep(int step, bool enabled, const QString& whyOff) {
  stepEnabled[static_cast<std::size_t>(step)] = enabled ? kOn : kOff;
  PictureMenu->SetStepEnabled(step, enabled, whyOff);
}

// Kept: the picture of step 1 leads to step 0; Next and Previous alone reach step 1.
void SadrelMainForm::OnPicture(int index) {
  const int wanted = index == kItemPicture ? kSystemPicture : index;
  RunCommand([this, wanted] { optMenu[static_cast<std::size_t>(wanted)]->setChecked(true); });
}

void SadrelMainForm::OnMenuChanged(int index) {
  if (stepEnabled[static_cast<std::size_t>(index)] == kOff) {
    if (menuIndex >= 0) optMenu[static_cast<std::size_t>(menuIndex)]->setChecked(true);
    return;
  }
  menuIndex = index;
  PictureMenu->SetCurrent(index);
  GoToStep(index);
}

void SadrelMainForm::OnTab(int step, int tab) {
  const std::vector<QString>& help = table_[static_cast<std::size_t>(step)].help;
  if (tab >= 0 && tab < static_cast<int>(help.size()))
    help_->Show(help[static_cast<std::size_t>(tab)]);
}

void SadrelMainForm::GoToStep(int step) {
  if (stepEnabled[static_cast<std::size_t>(step)] == kOff || step == currentStep) return;
  currentStep = step;
  ButtonFinish->setText(u"&Finish"_s);
  ButtonPrevious->setEnabled(true);
  ButtonNext->setEnabled(true);
  if (step == kEndingStep) {
    const HourglassScope hourglass(prompts());
    EnterStep(step);
    ButtonFinish->setText(u"&Exit"_s);
    ButtonNext->setEnabled(false);
  } else {
    EnterStep(step);
    ButtonPrevious->setEnabled(step != kSystemStep);
  }
  MarkMainButton();
  optMenu[static_cast<std::size_t>(step)]->setChecked(true);
  FocusPage();
  if (step == kEndingStep) prompts().FlushInput();
}

void SadrelMainForm::EnterStep(int step) {
  const StepRow& row = table_[static_cast<std::size_t>(step)];
  Page* page = pages_[static_cast<std::size_t>(step)];
  OnTab(step, row.firstHelp ? row.firstHelp(*page) : 0);
  RunStep(prompts(), [&row, page] {
    if (row.enter) {
      row.enter(*page);
    } else {
      page->LoadData();
    }
  });
  ShowPage(page);
}

QString SadrelMainForm::Chapter() const {
  return table_[static_cast<std::size_t>(std::max(currentStep, kSystemStep))].chapter;
}

void SadrelMainForm::ShowPage(Page* page) {
  currentPage = page;
  area_->Show(page);
}

void SadrelMainForm::MarkMainButton() {
  const bool ending = currentStep == kEndingStep;
  ButtonNext->setProperty(kMainProperty, !ending);
  ButtonFinish->setProperty(kMainProperty, ending);
  ButtonNext->update();
  ButtonFinish->update();
}

// Work begins at the first control of the page. A name that only stands in for a missing one would
// become the microscope's name when its field is left, so that field is for the person to go to.
void SadrelMainForm::FocusPage() {
  const bool nameless = currentStep == kSystemStep && Trim(GetK70().SystemName).empty();
  if (nameless) return ButtonNext->setFocus();
  if (QWidget* first = FirstTabStop(*currentPage)) first->setFocus();
}

int SadrelMainForm::NextStep() const {
  const auto next = std::find_if(stepEnabled.begin() + currentStep + 1, stepEnabled.end(),
                                 [](std::int16_t enabled) { return enabled != kOff; });
  return next == stepEnabled.end() ? kEndingStep : static_cast<int>(next - stepEnabled.begin());
}

int SadrelMainForm::PreviousStep() const {
  int step = currentStep - 1;
  while (step > kSystemStep && stepEnabled[static_cast<std::size_t>(step)] == kOff) --step;
  return std::max(step, kSystemStep);
}

void SadrelMainForm::DoPrevious() {
  GoToStep(PreviousStep());
}

void SadrelMainForm::DoNext() {
  GoToStep(NextStep());
}

// The window may have ended when the sending returns.
void SadrelMainForm::DoFinish() {
  if (currentStep != kEndingStep) return GoToStep(kEndingStep);
  if (SadrelEndingCtl1->IsJustLoaded()) return;
  Prompts& asking = prompts();
  SadrelEndingCtl1->Send();
  asking.FlushInput();
}

void SadrelMainForm::DoCancel() {
  AskAndUnload();
}

void SadrelMainForm::OnSent() {
  const Answer answer =
      prompts().MsgBox("Save Settings?\r\nPush OK to Save.", box::kOkCancel + box::kQuestion,
                       windowTitle().toStdString());
  if (answer == Answer::Ok) SaveSettings(prompts(), CommonDialog1);
  Unload();
}

}  // namespace mortane
