// Reads whole files, and replaces them in one step: a reader sees the old content or the new.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "common/FileErrors.h"

namespace mortane {

// A Failure raised here has one of the numbers of FileErrors.h; its description names the path and
// the reason.

// Far above the size of any settings or bench file. Larger files are refused unread.
inline constexpr std::size_t kLargestFile = std::size_t{64} * 1024 * 1024;

// Raises a Failure for what is missing, unreadable, larger than `limit`, or no regular file.
std::string ReadWholeFile(const std::string& utf8Path, std::size_t limit = kLargestFile);

// Writes a file beside the target, flushes it to the disk and renames it over the target, whose
// permissions stay; a symbolic link is followed. Raises a Failure when a step fails, on Windows
// also for a file that another program has open without sharing it: the target is then as it was. A
// process killed at any moment leaves the old content or the new, and perhaps a temporary file,
// which the next save in that folder removes once the process is gone.
void WriteFileAtomically(const std::string& utf8Path, std::string_view bytes);

}  // namespace mortane
