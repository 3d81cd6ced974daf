// The files that were chosen last in file dialogs, remembered from one session to the next.
#pragma once

#include <QString>
#include <QStringList>
#include <string>

namespace mortane {

// At most eight, the last one first. Every file is written down at once, beside the place of the
// window, so that programs that run at the same time share them.
class RecentFiles {
 public:
  // Remembers nothing beyond its own life.
  RecentFiles() = default;
  // `file` is that of the window's place; empty: as above. `documents` is the folder in which the
  // first dialog begins.
  RecentFiles(std::string file, QString documents);

  void Add(const QString& path);
  [[nodiscard]] const QStringList& Files() const { return files_; }

  // Where a dialog begins: the folder of the last file, that of the documents where there is none
  // or it is gone; empty where that is gone, too.
  [[nodiscard]] QString Folder() const;

 private:
  void Read();

  std::string file_;
  QString documents_;
  QStringList files_;
};

// The user's folder of documents.
QString UsersDocuments();

}  // namespace mortane
