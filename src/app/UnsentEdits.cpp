#include "app/UnsentEdits.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <chrono>

#include "common/Failure.h"
#include "hub/clsK70.h"
#include "platform/Folder.h"
#include "platform/SpecialFolder.h"
#include "record/Backups.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

constexpr char kPresent[] = "Unsent.xml";
// With the time of the last edit.
constexpr char kFromBefore[] = "Unsent-%1.xml";

QFileInfoList AllFromBefore(const std::string& folder) {
  return QDir(QString::fromStdString(folder))
      .entryInfoList({QString::fromLatin1(kFromBefore).arg(u"*"_s)}, QDir::Files, QDir::Time);
}

}  // namespace

std::string UnsentEdits::DefaultFolder() {
  const std::string folder = UserDataFolder();
  return folder.empty() ? folder : folder + "/Mortane/Unsent";
}

void UnsentEdits::Follow(const std::string& device) {
  if (folder_.empty()) return;
  device_ = device;
  const QFileInfo left(QString::fromStdString(Path(kPresent)));
  if (!left.exists()) return;
  const auto time = BackupTime(std::chrono::milliseconds(left.lastModified().toMSecsSinceEpoch()));
  const QString aside =
      QString::fromLatin1(kFromBefore).arg(QString::fromStdString(TimeInFileName(time)));
  QFile::rename(left.filePath(), left.dir().filePath(aside));
}

void UnsentEdits::FollowNone() {
  device_.reset();
}

std::optional<UnsentEdits::Left> UnsentEdits::FromBefore() const {
  if (!device_) return std::nullopt;
  const QFileInfoList files = AllFromBefore(FolderOf(*device_));
  if (files.isEmpty()) return std::nullopt;
  return Left{files.constFirst().filePath().toStdString(), files.constFirst().lastModified()};
}

void UnsentEdits::Forget(const Left& left) const {
  QFile::remove(QString::fromStdString(left.path));
}

void UnsentEdits::Rename(const std::string& device) {
  if (!device_ || device == *device_) return;
  Remove();
  const QFileInfoList left = AllFromBefore(FolderOf(*device_));
  device_ = device;
  if (left.isEmpty() || !MakeFolder(FolderOf(device))) return;
  for (const QFileInfo& file : left) {
    QFile::rename(file.filePath(), QString::fromStdString(Path(file.fileName().toStdString())));
  }
}

void UnsentEdits::Keep() {
  if (!device_) return;
  try {
    DomDocument document;
    k70_.WriteSections(document);
    const std::string text = document.ToText();
    if (text == written_ || !MakeFolder(FolderOf(*device_))) return;
    document.Save(Path(kPresent));
    written_ = text;
  } catch (const Failure&) {
    return;  // the file of the edits before is still whole
  }
}

void UnsentEdits::Remove() {
  if (!device_) return;
  written_.clear();
  QFile::remove(QString::fromStdString(Path(kPresent)));
}

std::string UnsentEdits::FolderOf(const std::string& device) const {
  return folder_ + "/" + DeviceFolderName(device);
}

std::string UnsentEdits::Path(const std::string& name) const {
  return FolderOf(*device_) + "/" + name;
}

}  // namespace mortane
