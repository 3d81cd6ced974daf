// A file dialog made from the question of the core.
#pragma once

#include <QFileDialog>

#include "common/Prompts.h"

class QListWidgetItem;

namespace mortane {

class RecentFiles;

class FileDialog : public QFileDialog {
 public:
  // Begins in the folder of the recent files, or in the current one where they have none. Those of
  // the asked kind stand in the side bar; the system's own dialog does not show them.
  FileDialog(AcceptMode mode, const FileQuestion& question, const RecentFiles& recent);

  // The chosen path; empty when the person gave none, or when the window ended meanwhile.
  QString Ask();

 protected:
  // A file in a folder that must be there and is not is refused with the toolkit's words.
  void accept() override;

 private:
  void ShowInSideBar(const QStringList& files);
  void Choose(const QListWidgetItem& file);

  bool pathMustExist_;
};

}  // namespace mortane
