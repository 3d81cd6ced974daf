#include "app/MortaneMainForm.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QLabel>
#include <QRadioButton>
#include <QTimer>
#include <utility>

#include "app/CommandBoundary.h"
#include "app/ConnectMicroscope.h"
#include "app/GetAppIcon.h"
#include "app/SelScopeDlg.h"
#include "common/Numbers.h"
#include "hub/clsK70.h"
#include "widgets/CommandKey.h"
#include "widgets/Page.h"
#include "widgets/PageButton.h"
#include "widgets/Rail.h"

namespace mortane {
namespace {

constexpr int kLastLoadStep = 6;

}  // namespace

void MortaneMainForm::Load() {
  for (int step = 0; step <= kLastLoadStep; ++step) {
    try {
      LoadStep(step);
    } catch (const std::exception&) {
      prompts_.MsgBox("Form_Load Error" + Hex(step), box::kOk);
      return;
    }
  }
}

void MortaneMainForm::LoadStep(int step) {
  switch (step) {
    case 0:
      setWindowIcon(GetAppIcon());
      break;
    case 1:
      versionPanel_->setText(QStringLiteral(MORTANE_VERSION));
      break;
    case 2:
      for (Page* page : pages_) {
        if (page != nullptr) page->hide();
      }
      break;
    case 3:
      StackPages();
      break;
    case 4:
      for (PageButton* button : ImageButton) button->SetSelected(false);
      break;
    case 5:
      for (CommandKey* key : ImageCommand) key->setDown(false);
      break;
    default:
      optMenu[0]->setChecked(true);
      break;
  }
}

bool MortaneMainForm::event(QEvent* event) {
  if (event->type() == QEvent::WindowActivate) Start();
  return QMainWindow::event(event);
}

// Some platforms never tell a window that it is active; the first painting stands in for it.
void MortaneMainForm::paintEvent(QPaintEvent* event) {
  QMainWindow::paintEvent(event);
  Start();
}

// The start path opens dialogs, so it runs from the event loop and not inside an event.
void MortaneMainForm::Start() {
  if (std::exchange(started_, true)) return;
  QTimer::singleShot(0, this, [this] { FirstActivation(); });
}

void MortaneMainForm::FirstActivation() {
  bool connected = false;
  RunStep(prompts_, [&] {
    connected = ConnectMicroscope(
        {GetK70(), library_, prompts_, arguments_, [this] { return std::int32_t{AskDevice()}; }});
  });
  if (connected) {
    RefreshPages();
  } else {
    Unload();
  }
}

void MortaneMainForm::RefreshPages() {
  for (std::size_t i = 0; i < pages_.size(); ++i) {
    Page* page = pages_[i];
    const bool enabled = page != nullptr && isPageEnabled_[i](GetK70());
    PictureMenu->SetPageEnabled(static_cast<int>(i), enabled);
    if (!enabled) continue;
    RunStep(prompts_, [page] { page->LoadData(); });
    RunStep(prompts_, [page] { page->SetNosePostiton(); });
    if (i == 0) optMenu[0]->setChecked(true);
  }
}

void MortaneMainForm::OnMenuChanged(std::size_t index) {
  PictureMenu->select(static_cast<int>(index));
  ShowPage(pages_[index]);
}

void MortaneMainForm::ShowPage(Page* page) {
  if (currentPage_ != nullptr) currentPage_->hide();
  currentPage_ = page;
  if (currentPage_ != nullptr) currentPage_->show();
}

// A page that is not visible wrote its edits to the model when they were made.
void MortaneMainForm::SaveCurrentPage() {
  for (std::size_t i = 0; i < optMenu.size(); ++i) {
    Page* page = pages_[i];
    if (optMenu[i]->isChecked() && page != nullptr) {
      RunStep(prompts_, [page] { page->SaveData(); });
    }
  }
}

// Disabled pages too: what was read is shown as soon as another microscope enables them.
void MortaneMainForm::LoadAllPages() {
  for (Page* page : pages_) {
    if (page != nullptr) RunStep(prompts_, [page] { page->LoadData(); });
  }
}

std::int16_t MortaneMainForm::AskDevice() {
  SelScopeDlg dialog(
      GetK70(), prompts_, [this](std::int32_t n) { return IsDeviceAvailable(library_, n); }, this);
  dialog.exec();
  return dialog.Selected;
}

Answer MortaneMainForm::AskExit() {
  return prompts_.MsgBox("Exit Setup?\r\nPush OK to Exit.", box::kOkCancel + box::kQuestion,
                         windowTitle().toStdString());
}

void MortaneMainForm::Unload() {
  close();
}

// Only a person who closes the window is asked: the program's own close and the end of the
// session come without a question. A request that arrives while a command ends waits for it.
void MortaneMainForm::closeEvent(QCloseEvent* event) {
  if (!event->spontaneous() || qGuiApp->isSavingSession()) return;
  if (commandRunning_) {
    event->ignore();
    QTimer::singleShot(0, this, [this] { RunCommand(&MortaneMainForm::AskAndUnload); });
  } else if (AskExit() != Answer::Ok) {
    event->ignore();
  }
}

}  // namespace mortane
