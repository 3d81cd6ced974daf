#include "app/MortaneMainForm.h"

#include <QApplication>
#include <QDir>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QRadioButton>
#include <QTimer>

#include "app/CommandBoundary.h"
#include "app/GetAppIcon.h"
#include "app/PageArea.h"
#include "common/Numbers.h"
#include "hub/clsK70.h"
#include "widgets/CommandKey.h"
#include "widgets/Page.h"
#include "widgets/PageButton.h"
#include "widgets/Rail.h"

namespace mortane {

using namespace Qt::StringLiterals;

namespace {

constexpr int kLastLoadStep = 6;

// The one settings file; empty for anything else, and under a box.
QString DroppedFile(const QMimeData& data) {
  if (QApplication::activeModalWidget() != nullptr) return {};
  const QList<QUrl> urls = data.urls();
  if (urls.size() != 1 || !urls.front().isLocalFile()) return {};
  const QFileInfo file(urls.front().toLocalFile());
  const bool isSettings =
      file.isFile() && file.suffix().compare(u"xml"_s, Qt::CaseInsensitive) == 0;
  return isSettings ? QDir::toNativeSeparators(file.filePath()) : QString();
}

}  // namespace

void MortaneMainForm::Load() {
  for (int step = 0; step <= kLastLoadStep; ++step) {
    try {
      LoadStep(step);
    } catch (const std::exception&) {
      prompts().MsgBox("Form_Load Error" + Hex(step), box::kOk);
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
      ShowVersion();
      break;
    case 2:
      for (Page* page : pages_) {
        if (page != nullptr) page->hide();
      }
      break;
    case 3:
      for (Page* page : pages_) {
        if (page != nullptr) area_->Add(page);
      }
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

void MortaneMainForm::OnConnected(Outcome received) {
  NoteConnection();
  NoteTransfer(SessionNote::Act::Received, received);
  NoteKept();
  RefreshPages();
}

void MortaneMainForm::RefreshPages() {
  for (std::size_t i = 0; i < pages_.size(); ++i) {
    Page* page = pages_[i];
    const PageRow& row = table_[i];
    const bool enabled = page != nullptr && (!row.isEnabled || row.isEnabled(GetK70()));
    EnablePage(i, enabled, row.whyDisabled);
    if (!enabled) continue;
    RunStep(prompts(), [page] { page->LoadData(); });
    RunStep(prompts(), [page] { page->SetNosePostiton(); });
    if (i == 0) optMenu[0]->setChecked(true);
  }
}

void MortaneMainForm::ShowPending(const std::vector<ItemChange>& changes) {
  std::array<int, kPageCount> counts{};
  for (const ItemChange& change : changes) ++counts[PageOf(change.to.key)];
  for (std::size_t i = 0; i < kPageCount; ++i) {
    ImageButton[i]->SetPending(counts[i] > 0);
    ImageButton[i]->setAccessibleDescription(ChangesNotSent(counts[i]));
  }
  note_->ShowPending(static_cast<int>(changes.size()));
}

QString MortaneMainForm::Chapter() const {
  std::size_t shown = 0;
  while (shown + 1 < kPageCount && !optMenu[shown]->isChecked()) ++shown;
  return table_[shown].chapter;
}

// The toolkit would hand the focus of a button that gets disabled to the next control, which is a
// field that nobody went to.
void MortaneMainForm::EnablePage(std::size_t index, bool enabled, const QString& whyDisabled) {
  if (!enabled && focusWidget() == ImageButton[index]) ImageButton[0]->setFocus();
  PictureMenu->SetPageEnabled(static_cast<int>(index), enabled);
  ImageButton[index]->setToolTip(enabled ? QString() : whyDisabled);
}

void MortaneMainForm::OnMenuChanged(std::size_t index) {
  PictureMenu->select(static_cast<int>(index));
  area_->Show(pages_[index]);
}

void MortaneMainForm::dragEnterEvent(QDragEnterEvent* event) {
  if (!DroppedFile(*event->mimeData()).isEmpty()) event->acceptProposedAction();
}

// The program that the file comes from waits until this handler returns, so the dialog comes later.
void MortaneMainForm::dropEvent(QDropEvent* event) {
  const QString path = DroppedFile(*event->mimeData());
  if (path.isEmpty()) return;
  event->acceptProposedAction();
  QTimer::singleShot(0, this, [this, path] { OpenDropped(path.toStdString()); });
}

Page* MortaneMainForm::CurrentPage() const {
  for (std::size_t i = 0; i < kPageCount; ++i) {
    if (optMenu[i]->isChecked()) return pages_[i];
  }
  return nullptr;
}

// A page that is not visible wrote its edits to the model when they were made.
void MortaneMainForm::SaveCurrentPage() {
  if (Page* page = CurrentPage()) RunStep(prompts(), [page] { page->SaveData(); });
}

// Kept: the pages whose buttons are disabled, too.
void MortaneMainForm::LoadAllPages() {
  for (Page* page : pages_) {
    if (page != nullptr) RunStep(prompts(), [page] { page->LoadData(); });
  }
}

}  // namespace mortane
