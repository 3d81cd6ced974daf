// The commands of the main window.
#include <QAction>
#include <QPointer>
#include <utility>

#include "app/CommandBoundary.h"
#include "app/MortaneMainForm.h"
#include "app/SelFileItemDlg.h"
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

void MortaneMainForm::RunCommand(Command command) {
  if (std::exchange(commandRunning_, true)) return;
  RunStep(prompts_, [&] { (this->*command)(); });
  commandRunning_ = false;
}

void MortaneMainForm::OnToolbarButton(int position) {
  switch (position) {
    case 1:
      return RunCommand(&MortaneMainForm::DoOpen);
    case 2:
      return RunCommand(&MortaneMainForm::DoSave);
    case 4:
      return RunCommand(&MortaneMainForm::DoSelect);
    case 5:
      return RunCommand(&MortaneMainForm::DoReceive);
    case 6:
      return RunCommand(&MortaneMainForm::DoSend);
    default:
      return;
  }
}

void MortaneMainForm::DoOpen() {
  CommonDialog1.flags = kFileOpenFlags;
  const std::string name = prompts_.AskFileToOpen(CommonDialog1);
  if (!name.empty()) {
    RunStep(prompts_, [&] { GetK70().ReadXMLItems(name); });
    SelFileItemDlg(GetK70(), this).exec();
    RunStep(prompts_, [&] { GetK70().ReadXML(name); });
    LoadAllPages();
  }
  prompts_.FlushInput();
}

void MortaneMainForm::DoSave() {
  SaveCurrentPage();
  CommonDialog1.flags = kFileSaveFlags;
  const std::string name = prompts_.AskFileToSave(CommonDialog1);
  if (!name.empty()) RunStep(prompts_, [&] { GetK70().WriteXML(name); });
  prompts_.FlushInput();
}

void MortaneMainForm::DoReceive() {
  {
    const HourglassScope hourglass(prompts_);
    RunStep(prompts_, [] { GetK70().Receive(); });
    LoadAllPages();
  }
  prompts_.FlushInput();
}

void MortaneMainForm::DoSend() {
  const QPointer<QWidget> focus = focusWidget();
  {
    const HourglassScope hourglass(prompts_);
    setEnabled(false);
    repaint();  // the thread stands still from here on
    SaveCurrentPage();
    RunStep(prompts_, [] {
      if (ModifyBeforeSend()) static_cast<void>(GetK70().Modify());
    });
    RunStep(prompts_, [] { GetK70().Send(); });
    if (Page* control = pages_[kControlPage]) {
      RunStep(prompts_, [control] { control->SendData(); });
    }
    prompts_.Wait(kWaitAfterSendMs);
  }
  setEnabled(true);
  if (focus) focus->setFocus();
  prompts_.FlushInput();
}

void MortaneMainForm::DoExit() {
  AskAndUnload();
  prompts_.FlushInput();
}

void MortaneMainForm::AskAndUnload() {
  if (AskExit() == Answer::Ok) Unload();
}

void MortaneMainForm::DoSelect() {
  const std::int16_t device = AskDevice();
  if (device < 0 || device == GetK70().lConnectDevice) {
    prompts_.FlushInput();
    return;
  }
  GetK70().Disconnect();
  if (!GetK70().CreateConnectionName(std::to_string(device))) {
    prompts_.MsgBox("Other Application has already used this Microscope.", box::kOk);
    EnableTransfers(false);
    return;
  }
  if (!GetK70().Connect(device)) {
    prompts_.MsgBox("Device Connect Error.", box::kCritical);
    return;
  }
  DoReceive();
  EnableTransfers(true);
  RefreshPages();
  prompts_.FlushInput();
}

// The tool bar's own buttons are not among them: there a transfer can still be tried.
void MortaneMainForm::EnableTransfers(bool enabled) {
  ImageCommand[1]->setEnabled(enabled);
  ImageCommand[2]->setEnabled(enabled);
  MenuConnectReceive->setEnabled(enabled);
  MenuConnectSend->setEnabled(enabled);
}

}  // namespace mortane
