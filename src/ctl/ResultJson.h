// The answers of the commands as JSON: one object each, on one line.
#pragma once

#include <string>
#include <vector>

#include "ctl/Results.h"

namespace mortane::ctl {

// The form of each object stands in the manual page. A byte that is no valid UTF-8 becomes U+FFFD.
std::string ToJson(const std::vector<DeviceRow>& devices);
std::string ToJson(const ComparisonResult& result);
std::string ToJson(const SendResult& result);
std::string ToJson(const std::vector<BackupRow>& backups, std::size_t removed);
// An entry of the list of files.
std::string ToJson(const CheckedFile& file);
std::string WatchedToJson(const std::string& time, const ComparisonResult& changes);

}  // namespace mortane::ctl
