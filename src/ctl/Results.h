// What the commands answer, before it becomes text or JSON.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "ctl/MicroscopeLink.h"
#include "record/Backups.h"
#include "record/Comparison.h"

namespace mortane::ctl {

struct NamedItem {
  ItemKey key;
  std::string name;   // in words
  std::string value;  // as a settings file has it
  std::string words;  // the value in words
};

struct NamedChange {
  NamedItem from;
  NamedItem to;
};

// Of a microscope with a file, or of two files.
struct ComparisonResult {
  std::string device;  // empty for two files
  std::vector<std::string> files;
  std::vector<NamedChange> changed;
  std::vector<NamedItem> onlyFirst;  // of two files
  std::vector<NamedItem> onlySecond;
  std::vector<NamedItem> notOnMicroscope;
  std::vector<NamedChange> unknown;
  std::vector<std::string> refused;  // lines of reading the file
  std::vector<std::string> unread;   // lines of reading the microscope

  bool IsSame() const {
    return changed.empty() && onlyFirst.empty() && onlySecond.empty() && unknown.empty() &&
           refused.empty();
  }
};

enum class Sending {
  NothingToDo,  // the microscope holds everything already
  DryRun,
  Declined,  // the person said no
  Done,      // and everything was read back
  Partly,    // ended early, or not everything was taken
};

struct SendResult {
  ComparisonResult comparison;
  Sending sending = Sending::NothingToDo;
  std::string backup;  // path; empty without one
  std::vector<std::string> failures;
  std::vector<NamedChange> written;
  std::vector<NamedChange> notWritten;
  std::vector<NamedChange> notKnown;
  bool endAsked = false;
};

struct CheckedFile {
  std::string file;
  std::string problem;  // why it cannot be read; empty when it can
  std::vector<std::string> refused;
};

struct BackupRow {
  std::string device;
  std::size_t number;  // 1 is the newest
  Backup backup;
};

// In the words of the names that belong to each side.
NamedItem NameOf(const ConfigurationItem& item, const ItemNames& names);
std::vector<NamedItem> NamesOf(const std::vector<ConfigurationItem>& items, const ItemNames& names);
std::vector<NamedChange> NamesOf(const std::vector<ItemChange>& changes, const ItemNames& from,
                                 const ItemNames& to);

}  // namespace mortane::ctl
