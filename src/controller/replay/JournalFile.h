// The file that a session's journal is written to.
#pragma once

#include <cstddef>
#include <cstdint>
#include <fstream>
#include <functional>
#include <string>
#include <string_view>

#include "controller/replay/SessionHeader.h"
#include "platform/NamedMutex.h"

namespace mortane::controller {

// A file that would grow beyond this goes on in a new one.
inline constexpr std::uint64_t kLargestJournal = std::uint64_t{16} * 1024 * 1024;
// Former files that are kept: FILE.1, the youngest, to FILE.3.
inline constexpr int kFormerJournals = 3;

// The name that a full file gets when a new one takes its place: "J" becomes "J.1", "J.1" becomes
// "J.2".
std::string FormerJournal(const std::string& path);

// Writes at the end of the file, behind former sessions, each line at once. Nothing raises a
// failure: the first thing that goes wrong is told in one line, and from then on nothing is
// written. One program at a time writes a journal.
class JournalFile {
 public:
  using Notice = std::function<void(const std::string&)>;

  JournalFile(std::string path, SessionHeader header, Notice notice,
              std::uint64_t largest = kLargestJournal);

  // The line without its end.
  void Write(std::string_view line);

 private:
  bool Open();
  void BeginPart();
  void Put(std::string_view line);
  void GoOnInNewFile();
  void End(const std::string& reason);

  std::string path_;
  SessionHeader header_;
  Notice notice_;
  std::uint64_t largest_;
  NamedMutex use_;
  std::ofstream file_;
  std::uint64_t size_ = 0;
  bool ended_ = false;
};

}  // namespace mortane::controller
