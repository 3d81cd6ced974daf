// The commands of the main window.
#include <QAction>
#include <QPointer>

#include "app/CommandBoundary.h"
#include "app/MortaneMainForm.h"
#include "app/SettingsFiles.h"
#include "hub/clsK70.h"
#include "widgets/CommandKey.h"
#include "widgets/Page.h"

namespace mortane {
namespace {

constexpr int kWaitAfterSendMs = 3000;
constexpr std::size_t kControlPage = 5;

// Whether a Send lists what differs before it writes.
constexpr bool ModifyBeforeSend() {
  return false;
}

}  // namespace

void MortaneMainForm::Run(Command command) {
  RunCommand([this, command] { (this->*command)(); });
}

void MortaneMainForm::OnToolbarButton(int position) {
  switch (position) {
    case 1:
      return Run(&MortaneMainForm::DoOpen);
    case 2:
      return Run(&MortaneMainForm::DoSave);
    case 4:
      return Run(&MortaneMainForm::DoSelect);
    case 5:
      return Run(&MortaneMainForm::DoReceive);
    case 6:
      return Run(&MortaneMainForm::DoSend);
    default:
      return;
  }
}

void MortaneMainForm::DoOpen() {
  if (OpenSettings(prompts(), CommonDialog1, this)) LoadAllPages();
  prompts().FlushInput();
}

void MortaneMainForm::DoSave() {
  SaveCurrentPage();
  SaveSettings(prompts(), CommonDialog1);
  prompts().FlushInput();
}

void MortaneMainForm::DoReceive() {
  {
    const HourglassScope hourglass(prompts());
    RunStep(prompts(), [] { GetK70().Receive(); });
    LoadAllPages();
  }
  prompts().FlushInput();
}

void MortaneMainForm::DoSend() {
  const QPointer<QWidget> focus = focusWidget();
  {
    const HourglassScope hourglass(prompts());
    setEnabled(false);
    repaint();  // the thread stands still from here on
    SaveCurrentPage();
    RunStep(prompts(), [] {
      if (ModifyBeforeSend()) static_cast<void>(GetK70().Modify());
    });
    RunStep(prompts(), [] { GetK70().Send(); });
    if (Page* control = pages_[kControlPage]) {
      RunStep(prompts(), [control] { control->SendData(); });
    }
    repaint();  // over what a box of failures leaves on the display
    prompts().Wait(kWaitAfterSendMs);
  }
  setEnabled(true);
  if (focus) focus->setFocus();
  prompts().FlushInput();
}

void MortaneMainForm::DoExit() {
  AskAndUnload();
  prompts().FlushInput();
}

void MortaneMainForm::DoSelect() {
  const std::int16_t device = AskDevice();
  if (device < 0 || device == GetK70().lConnectDevice) {
    prompts().FlushInput();
    return;
  }
  GetK70().Disconnect();
  if (!GetK70().CreateConnectionName(std::to_string(device))) {
    prompts().MsgBox("Other Application has already used this Microscope.", box::kOk);
    EnableTransfers(false);
    return;
  }
  if (!GetK70().Connect(device)) {
    prompts().MsgBox("Device Connect Error.", box::kCritical);
    return;
  }
  DoReceive();
  EnableTransfers(true);
  RefreshPages();
  prompts().FlushInput();
}

// The tool bar's own buttons are not among them: there a transfer can still be tried.
void MortaneMainForm::EnableTransfers(bool enabled) {
  ImageCommand[1]->setEnabled(enabled);
  ImageCommand[2]->setEnabled(enabled);
  MenuConnectReceive->setEnabled(enabled);
  MenuConnectSend->setEnabled(enabled);
}

}  // namespace mortane
