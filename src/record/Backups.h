// The kept states of a microscope: settings files in a folder of its own, named by time.
#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "document/Dom.h"

namespace mortane {

using BackupTime = std::chrono::sys_time<std::chrono::milliseconds>;

struct Backup {
  std::string path;
  BackupTime time;
};

// One device's backups. Files of other names in its folder are neither listed nor removed.
class Backups {
 public:
  using Clock = std::function<BackupTime()>;

  // `folder` holds the folders of all devices; the device's is made by the first Keep.
  Backups(const std::string& folder, const std::string& device, Clock clock = SystemTime);

  // The user's folder for backups; empty when the system names none.
  static std::string DefaultFolder();
  static BackupTime SystemTime();

  const std::string& Folder() const { return folder_; }

  // Writes the file whole and flushed to the disk, and never over another one. Raises a Failure
  // that names the path when that is not possible. Answers what was written.
  Backup Keep(const DomDocument& document) const;

  // The newest first. Empty without a folder.
  std::vector<Backup> List() const;

  // Removes all but the newest `count` and answers how many it removed. Raises a Failure for a
  // file that cannot be removed.
  std::size_t Prune(std::size_t count) const;

 private:
  std::string folder_;
  Clock clock_;
};

// The name of the folder of a device: its own as far as every file system takes it, and a number
// made of the whole name: "Lab_2_East-1F2E3D4C".
std::string DeviceFolderName(const std::string& device);

// "2026-11-22T04-15-30.123Z", in universal time.
std::string TimeInFileName(BackupTime time);

}  // namespace mortane
