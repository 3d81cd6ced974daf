#include "controller/replay/JournalReader.h"

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <utility>

#include "common/Failure.h"
#include "common/FileErrors.h"
#include "controller/replay/JournalFile.h"

namespace mortane::controller {
namespace {

// In bytes. Most lines are shorter; for a longer one the buffer grows.
constexpr std::size_t kUsualBuffer = std::size_t{16} * 1024;

// How many bytes of a line that cannot be read a message shows.
constexpr std::size_t kShownOfLine = 80;

[[noreturn]] void RaiseInFile(const std::string& path, const std::string& problem) {
  RaiseOwnFailure(kConversionError, path + ": " + problem);
}

}  // namespace

JournalLines::JournalLines(const std::string& path) : buffer_(kUsualBuffer) {
  const std::filesystem::path file(std::u8string(path.begin(), path.end()));
  std::error_code error;
  const bool regular = std::filesystem::is_regular_file(file, error);
  if (regular) file_.open(file, std::ios::binary);
  if (!regular || !file_) RaiseOwnFailure(kFileError, "Cannot read " + path);
}

// Reads more behind the unread bytes; false at the end of the file and when the buffer may not grow
// any more.
bool JournalLines::Fill() {
  std::memmove(buffer_.data(), buffer_.data() + begin_, end_ - begin_);
  end_ -= begin_;
  begin_ = 0;
  if (end_ == buffer_.size()) {
    if (end_ == kLongestLine) return false;
    buffer_.resize(std::min(2 * end_, kLongestLine));
  }
  file_.read(buffer_.data() + end_, static_cast<std::streamsize>(buffer_.size() - end_));
  end_ += static_cast<std::size_t>(file_.gcount());
  return file_.gcount() > 0;
}

std::optional<std::string_view> JournalLines::Next() {
  std::size_t searched = 0;
  while (true) {
    const char* const from = buffer_.data() + begin_ + searched;
    const std::size_t left = end_ - begin_ - searched;
    const void* const found = left == 0 ? nullptr : std::memchr(from, '\n', left);
    if (found != nullptr) {
      const auto length = static_cast<std::size_t>(static_cast<const char*>(found) - from);
      std::string_view line(buffer_.data() + begin_, searched + length);
      begin_ += line.size() + 1;
      ++lineNumber_;
      if (line.ends_with('\r')) line.remove_suffix(1);
      return line;
    }
    searched = end_ - begin_;
    if (Fill()) continue;
    if (searched == 0) return std::nullopt;
    ++lineNumber_;
    if (searched == kLongestLine) {
      RaiseOwnFailure(kConversionError, "the line is too long for a journal");
    }
    cut_ = true;
    begin_ = end_;
    return std::string_view(buffer_.data(), searched);
  }
}

JournalReader::Piece JournalReader::LastPieceOf(const std::string& path) {
  JournalLines lines(path);
  std::string header;
  std::uint64_t headerLine = 0;
  try {
    while (const auto line = lines.Next()) {
      if (!IsSessionHeader(*line) || lines.IsCut()) continue;
      header = *line;
      headerLine = lines.LineNumber();
    }
  } catch (const Failure& failure) {
    RaiseInFile(path + ":" + std::to_string(lines.LineNumber()), failure.Description());
  }
  if (headerLine == 0) {
    RaiseInFile(path,
                "no journal of a session that could be replayed: no line begins with "
                "\"mortane-journal\"");
  }
  try {
    return {path, headerLine, ParseSessionHeader(header)};
  } catch (const Failure& failure) {
    RaiseInFile(path + ":" + std::to_string(headerLine), failure.Description());
  }
}

JournalReader::JournalReader(const std::string& path) {
  pieces_.push_back(LastPieceOf(path));
  while (pieces_.back().header.part > 1) {
    const SessionHeader& later = pieces_.back().header;
    const std::string former = FormerJournal(pieces_.back().path);
    const std::string missing = "the session began in another file, and its part " +
                                std::to_string(later.part - 1) + " is not at the end of " + former;
    if (pieces_.size() > kFormerJournals) RaiseInFile(path, missing);
    Piece piece;
    try {
      piece = LastPieceOf(former);
    } catch (const Failure&) {
      RaiseInFile(path, missing);
    }
    if (piece.header.session != later.session || piece.header.part + 1 != later.part) {
      RaiseInFile(path, missing);
    }
    pieces_.push_back(std::move(piece));
  }
  header_ = pieces_.back().header;
  OpenNextPiece();
}

bool JournalReader::OpenNextPiece() {
  if (pieces_.empty()) return false;
  const Piece piece = std::move(pieces_.back());
  pieces_.pop_back();
  path_ = piece.path;
  lines_.emplace(path_);
  while (lines_->LineNumber() < piece.headerLine) {
    if (!lines_->Next()) RaiseInFile(path_, "it has changed while it was read");
  }
  return true;
}

std::optional<SessionLine> JournalReader::Next() {
  while (!cut_) {
    const auto text = lines_->Next();
    if (!text) {
      if (!OpenNextPiece()) return std::nullopt;
      continue;
    }
    if (lines_->IsCut()) {
      cut_ = true;
      break;
    }
    if (*text == kColumnHeads) continue;
    // A program may have begun a session since the file was opened.
    if (IsSessionHeader(*text)) break;
    if (auto line = ParseSessionLine(*text)) return line;
    RaiseOwnFailure(kConversionError,
                    "no line of a journal: " + std::string(text->substr(0, kShownOfLine)));
  }
  return std::nullopt;
}

std::string JournalReader::Where() const {
  return path_ + ":" + std::to_string(lines_->LineNumber());
}

}  // namespace mortane::controller
