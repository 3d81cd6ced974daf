#include "app/FileDialog.h"

#include <QDir>
#include <QFileInfo>
#include <QMessageBox>

#include "app/PromptBox.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

constexpr int kOverwritePrompt = 2;
constexpr int kPathMustExist = 2048;
constexpr int kFileMustExist = 4096;

// "XML File (*.xml)|*.xml" as the toolkit spells it: "XML File (*.xml)".
QString NameFilter(const std::string& filter) {
  const QStringList parts = QString::fromStdString(filter).split(u'|');
  const QString label = parts.front().section(u'(', 0, 0).trimmed();
  const QString patterns = parts.back().split(u';').join(u' ');
  return u"%1 (%2)"_s.arg(label, patterns);
}

}  // namespace

FileDialog::FileDialog(AcceptMode mode, const FileQuestion& question, const QString& folder)
    : QFileDialog(ParentOfBoxes()), pathMustExist_((question.flags & kPathMustExist) != 0) {
  setAcceptMode(mode);
  // The system's own dialog gets no title by itself.
  setWindowTitle(mode == AcceptSave ? u"Save As"_s : u"Open"_s);
  setNameFilter(NameFilter(question.filter));
  setFileMode((question.flags & kFileMustExist) != 0 ? ExistingFile : AnyFile);
  setOption(DontConfirmOverwrite, (question.flags & kOverwritePrompt) == 0);
  // The extension is given with its dot, which the toolkit adds by itself.
  QString suffix = QString::fromStdString(question.defaultExtension);
  if (suffix.startsWith(u'.')) suffix.remove(0, 1);
  setDefaultSuffix(suffix);
  if (!folder.isEmpty() && QDir(folder).exists()) setDirectory(folder);
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
