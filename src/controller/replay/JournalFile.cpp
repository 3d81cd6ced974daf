#include "controller/replay/JournalFile.h"

#include <cerrno>
#include <filesystem>
#include <system_error>
#include <utility>

#include "controller/replay/SessionLine.h"
#include "platform/FilePath.h"

namespace mortane::controller {
namespace {

std::filesystem::path PathOf(const std::string& utf8Path) {
  return {std::u8string(utf8Path.begin(), utf8Path.end())};
}

std::string ReasonOf(int error) {
  return error == 0 ? "it does not take any more" : std::generic_category().message(error);
}

}  // namespace

std::string FormerJournal(const std::string& path) {
  for (int former = 1; former <= kFormerJournals; ++former) {
    const std::string ending = "." + std::to_string(former);
    if (!path.ends_with(ending)) continue;
    return path.substr(0, path.size() - ending.size()) + "." + std::to_string(former + 1);
  }
  return path + ".1";
}

JournalFile::JournalFile(std::string path, SessionHeader header, Notice notice,
                         std::uint64_t largest)
    : path_(std::move(path)),
      header_(std::move(header)),
      notice_(std::move(notice)),
      largest_(largest) {
  if (use_.Open("MortaneJournal-" + PathToken(path_)) == NamedMutex::Opened::AlreadyExisted) {
    End("another program is writing it");
    return;
  }
  if (!Open()) return;
  if (size_ >= largest_) {
    GoOnInNewFile();
  } else {
    BeginPart();
  }
}

bool JournalFile::Open() {
  errno = 0;
  file_.open(PathOf(path_), std::ios::app | std::ios::binary);
  if (!file_) {
    End(ReasonOf(errno));
    return false;
  }
  std::error_code error;
  const std::uintmax_t size = std::filesystem::file_size(PathOf(path_), error);
  size_ = error ? 0 : size;
  return true;
}

// A line that a crash or a full disk cut off gets its end first.
void JournalFile::BeginPart() {
  if (size_ > 0) {
    std::ifstream last(PathOf(path_), std::ios::binary);
    last.seekg(-1, std::ios::end);
    if (last.get() != '\n') Put("");
  }
  Put(FormatSessionHeader(header_));
  Put(kColumnHeads);
}

void JournalFile::Put(std::string_view line) {
  if (ended_) return;
  errno = 0;
  // Flushed, so that the last call before a crash is there.
  file_ << line << '\n' << std::flush;
  if (!file_) {
    End(ReasonOf(errno));
    return;
  }
  size_ += line.size() + 1;
}

void JournalFile::Write(std::string_view line) {
  if (ended_) return;
  if (size_ + line.size() >= largest_) {
    ++header_.part;
    GoOnInNewFile();
  }
  Put(line);
}

void JournalFile::GoOnInNewFile() {
  file_.close();
  std::vector<std::string> paths{path_};
  for (int i = 0; i < kFormerJournals; ++i) paths.push_back(FormerJournal(paths.back()));
  for (std::size_t i = paths.size() - 1; i > 0; --i) {
    std::error_code error;
    if (IsMissing(paths[i - 1])) continue;
    std::filesystem::rename(PathOf(paths[i - 1]), PathOf(paths[i]), error);
    if (error) {
      End("it cannot be renamed to " + paths[i] + ": " + error.message());
      return;
    }
  }
  file_.clear();
  if (Open()) BeginPart();
}

void JournalFile::End(const std::string& reason) {
  ended_ = true;
  file_.close();
  use_.Close();
  notice_("Cannot write the journal " + path_ + ": " + reason);
}

}  // namespace mortane::controller
