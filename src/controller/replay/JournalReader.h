// Reads the last session of a journal, line by line.
#pragma once

#include <cstddef>
#include <cstdint>
#include <fstream>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "controller/replay/SessionHeader.h"
#include "controller/replay/SessionLine.h"

namespace mortane::controller {

// The lines of a file, with a limit to their length, in a buffer that grows to the size of one
// line.
class JournalLines {
 public:
  // Longer ones are no lines of a journal.
  static constexpr std::size_t kLongestLine = std::size_t{1024} * 1024;

  // Raises a Failure that names the file when it cannot be read.
  explicit JournalLines(const std::string& path);

  // Without its end, and valid until the next call; nothing at the end of the file. Raises a
  // Failure for a line that is too long.
  std::optional<std::string_view> Next();

  std::uint64_t LineNumber() const { return lineNumber_; }
  // Whether the last line has no end: its writer was cut off, and so may be its content.
  bool IsCut() const { return cut_; }

 private:
  bool Fill();

  std::ifstream file_;
  std::vector<char> buffer_;
  std::size_t begin_ = 0;
  std::size_t end_ = 0;
  std::uint64_t lineNumber_ = 0;
  bool cut_ = false;
};

// A file holds the sessions of one program after another; the last one counts. When it began in
// former files these are read, too. Memory does not depend on the size of the files.
class JournalReader {
 public:
  // Raises a Failure for a file that is missing or holds no journal of this form, and for a session
  // whose beginning is not there.
  explicit JournalReader(const std::string& path);

  const SessionHeader& Header() const { return header_; }

  // Nothing at the end of the session. Raises a Failure for a line that is none of a journal; Where
  // names it.
  std::optional<SessionLine> Next();

  // "FILE:LINE" of the line that was read last.
  std::string Where() const;
  // Whether the session ends with a line that was cut off, which is not given.
  bool IsCut() const { return cut_; }

 private:
  // One file's part of the session.
  struct Piece {
    std::string path;
    std::uint64_t headerLine;
    SessionHeader header;
  };

  static Piece LastPieceOf(const std::string& path);
  bool OpenNextPiece();

  SessionHeader header_;
  std::vector<Piece> pieces_;  // the youngest first, those that are not read yet
  std::string path_;
  std::optional<JournalLines> lines_;
  bool cut_ = false;
};

}  // namespace mortane::controller
