#include "app/FileDialog.h"

#include <QDir>
#include <QFileIconProvider>
#include <QFileInfo>
#include <QKeyEvent>
#include <QListWidget>
#include <QMessageBox>
#include <QSplitter>
#include <QVBoxLayout>

#include "app/PromptBox.h"
#include "app/RecentFiles.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

QStringList PatternsOf(const std::string& filter) {
  return QString::fromStdString(filter).section(u'|', -1).split(u';');
}

// "XML File (*.xml)|*.xml" as the toolkit spells it: "XML File (*.xml)".
QString NameFilter(const std::string& filter) {
  const QString label = QString::fromStdString(filter).section(u'(', 0, 0).trimmed();
  return u"%1 (%2)"_s.arg(label, PatternsOf(filter).join(u' '));
}

QStringList Matching(const QStringList& files, const QStringList& patterns) {
  QStringList matching;
  for (const QString& file : files) {
    if (QDir::match(patterns, QFileInfo(file).fileName())) matching.append(file);
  }
  return matching;
}

// The Enter key opens the file at once; the toolkit would also press the dialog's button.
class FileList : public QListWidget {
 public:
  using QListWidget::QListWidget;

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!enter || currentItem() == nullptr) return QListWidget::keyPressEvent(event);
    Q_EMIT itemActivated(currentItem());
  }
};

}  // namespace

FileDialog::FileDialog(AcceptMode mode, const FileQuestion& question, const RecentFiles& recent)
    : QFileDialog(ParentOfBoxes()),
      pathMustExist_((question.flags & dialogflag::kPathMustExist) != 0) {
  setAcceptMode(mode);
  // The system's own dialog gets no title by itself.
  setWindowTitle(mode == AcceptSave ? u"Save As"_s : u"Open"_s);
  setNameFilter(NameFilter(question.filter));
  setFileMode((question.flags & dialogflag::kFileMustExist) != 0 ? ExistingFile : AnyFile);
  setOption(DontConfirmOverwrite, (question.flags & dialogflag::kOverwritePrompt) == 0);
  // The extension is given with its dot, which the toolkit adds by itself.
  QString suffix = QString::fromStdString(question.defaultExtension);
  if (suffix.startsWith(u'.')) suffix.remove(0, 1);
  setDefaultSuffix(suffix);
  if (const QString folder = recent.Folder(); !folder.isEmpty()) setDirectory(folder);
  ShowInSideBar(Matching(recent.Files(), PatternsOf(question.filter)));
}

// The toolkit's side bar takes folders only, so that the files stand in a list below it.
void FileDialog::ShowInSideBar(const QStringList& files) {
  auto* places = findChild<QWidget*>(u"sidebar"_s);
  auto* splitter = places == nullptr ? nullptr : qobject_cast<QSplitter*>(places->parentWidget());
  if (splitter == nullptr || files.isEmpty()) return;
  auto* bar = new QWidget(splitter);
  auto* list = new FileList(bar);
  list->setObjectName("RecentFiles");
  list->setAccessibleName(u"Recent Files"_s);
  for (const QString& file : files) {
    auto* item = new QListWidgetItem(iconProvider()->icon(QFileIconProvider::File),
                                     QFileInfo(file).fileName(), list);
    item->setToolTip(QDir::toNativeSeparators(file));
    item->setData(Qt::UserRole, file);
  }
  auto* column = new QVBoxLayout(bar);
  column->setContentsMargins({});
  column->addWidget(places);
  column->addWidget(list);
  splitter->insertWidget(0, bar);
  setTabOrder(places, list);
  connect(list, &QListWidget::itemClicked, this, [this](auto* file) { Choose(*file); });
  connect(list, &QListWidget::itemActivated, this, [this](auto* file) {
    Choose(*file);
    accept();
  });
}

void FileDialog::Choose(const QListWidgetItem& file) {
  selectFile(file.data(Qt::UserRole).toString());
}

QString FileDialog::Ask() {
  const bool accepted = exec() == Accepted && !selectedFiles().isEmpty();
  return accepted ? QDir::toNativeSeparators(selectedFiles().constFirst()) : QString();
}

void FileDialog::accept() {
  const QStringList files = selectedFiles();
  const QDir folder = files.isEmpty() ? directory() : QFileInfo(files.front()).dir();
  if (pathMustExist_ && !folder.exists()) {
    QMessageBox::warning(this, windowTitle(),
                         tr("%1\nDirectory not found.\nPlease verify the "
                            "correct directory name was given.")
                             .arg(QDir::toNativeSeparators(folder.path())));
    return;
  }
  QFileDialog::accept();
}

}  // namespace mortane
