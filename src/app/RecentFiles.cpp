#include "app/RecentFiles.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <utility>

#include "platform/ProfileFile.h"

namespace mortane {
namespace {

constexpr int kMost = 8;
constexpr char kSection[] = "Files";

// File1 is the last one.
std::string KeyOf(qsizetype index) {
  return "File" + std::to_string(index + 1);
}

// In quotation marks, which keep the blanks at its ends.
std::string Quoted(const QString& path) {
  return '"' + path.toStdString() + '"';
}

bool FitsALine(const QString& path) {
  return !path.contains(u'\n') && !path.contains(u'\r');
}

}  // namespace

RecentFiles::RecentFiles(std::string file, QString documents)
    : file_(std::move(file)), documents_(std::move(documents)) {
  Read();
}

void RecentFiles::Read() {
  if (file_.empty()) return;
  const ProfileFile kept(file_);
  files_.clear();
  for (qsizetype i = 0; i < kMost; ++i) {
    const std::string path = kept.Text(kSection, KeyOf(i), "");
    if (!path.empty()) files_.append(QString::fromStdString(path));
  }
}

void RecentFiles::Add(const QString& path) {
  Read();
  files_.removeAll(path);
  files_.prepend(path);
  files_.resize(qMin(files_.size(), qsizetype{kMost}));
  if (file_.empty()) return;
  std::vector<ProfileValue> values;
  for (const QString& one : std::as_const(files_)) {
    if (!FitsALine(one)) continue;
    values.push_back({KeyOf(static_cast<qsizetype>(values.size())), Quoted(one)});
  }
  QDir().mkpath(QFileInfo(QString::fromStdString(file_)).path());
  ProfileFile(file_).WriteTexts(kSection, values);
}

QString RecentFiles::Folder() const {
  const QString last = files_.isEmpty() ? QString() : QFileInfo(files_.constFirst()).path();
  for (const QString& folder : {last, documents_}) {
    if (!folder.isEmpty() && QDir(folder).exists()) return folder;
  }
  return {};
}

QString UsersDocuments() {
  return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

}  // namespace mortane
