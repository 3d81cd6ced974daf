#include "app/UnsentEdits.h"

#include <QFile>
#include <QFileInfo>

#include "common/Failure.h"
#include "hub/clsK70.h"
#include "platform/Folder.h"
#include "platform/SpecialFolder.h"
#include "record/Backups.h"

namespace mortane {
namespace {

constexpr char kPresent[] = "Unsent.xml";
constexpr char kFromBefore[] = "Unsent-before.xml";

}  // namespace

std::string UnsentEdits::DefaultFolder() {
  const std::string folder = UserDataFolder();
  return folder.empty() ? folder : folder + "/Mortane/Unsent";
}

void UnsentEdits::Follow(const std::string& device) {
  device_ = device;
  if (folder_.empty() || device_.empty()) return;
  const QString left = QString::fromStdString(Path(kPresent));
  if (!QFileInfo::exists(left)) return;
  const QString aside = QString::fromStdString(Path(kFromBefore));
  QFile::remove(aside);
  QFile::rename(left, aside);
}

std::optional<UnsentEdits::Left> UnsentEdits::FromBefore() const {
  if (folder_.empty() || device_.empty()) return std::nullopt;
  const std::string path = Path(kFromBefore);
  const QFileInfo file(QString::fromStdString(path));
  if (!file.exists()) return std::nullopt;
  return Left{path, file.lastModified()};
}

void UnsentEdits::ForgetFromBefore() const {
  QFile::remove(QString::fromStdString(Path(kFromBefore)));
}

void UnsentEdits::Rename(const std::string& device) {
  if (device == device_) return;
  Remove();
  device_ = device;
}

void UnsentEdits::Keep() {
  if (folder_.empty() || device_.empty()) return;
  try {
    DomDocument document;
    k70_.WriteSections(document);
    const std::string text = document.ToText();
    if (text == written_) return;
    const std::string path = Path(kPresent);
    if (!MakeFolder(QFileInfo(QString::fromStdString(path)).path().toStdString())) return;
    document.Save(path);
    written_ = text;
  } catch (const Failure&) {
    return;  // the file of the edits before is still whole
  }
}

void UnsentEdits::Remove() {
  if (folder_.empty() || device_.empty()) return;
  written_.clear();
  QFile::remove(QString::fromStdString(Path(kPresent)));
}

std::string UnsentEdits::Path(const char* name) const {
  return folder_ + "/" + DeviceFolderName(device_) + "/" + name;
}

}  // namespace mortane
