#include "platform/ProfileFile.h"

#include <algorithm>
#include <optional>

#include "common/Failure.h"
#include "common/Text.h"
#include "platform/AtomicFile.h"

namespace mortane {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

std::string_view WithoutBlanks(std::string_view text) {
  constexpr std::string_view kBlanks = " \t\r\n\v\f";
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

// A line with its own line end, and what it means.
struct Line {
  enum class Kind { Other, Section, Key };

  explicit Line(std::string whole) : text(std::move(whole)) {
    std::string_view content = text;
    if (content.starts_with(kByteOrderMark)) content.remove_prefix(kByteOrderMark.size());
    content = WithoutBlanks(content);
    if (content.empty() || content.front() == ';') return;
    if (content.front() == '[') {
      kind = Kind::Section;
      name = WithoutBlanks(content.substr(1, content.rfind(']') - 1));
      return;
    }
    kind = Kind::Key;
    const std::size_t equals = content.find('=');
    name = WithoutBlanks(content.substr(0, equals));
    if (equals != std::string_view::npos) value = WithoutBlanks(content.substr(equals + 1));
  }

  bool Is(Kind wanted, std::string_view wantedName) const {
    return kind == wanted && EqualsIgnoringCase(name, WithoutBlanks(wantedName));
  }

  std::string text;
  Kind kind = Kind::Other;
  std::string name;
  std::string value;
};

using Lines = std::vector<Line>;

// Nothing when an existing file cannot be read: a writer must not replace it then, since its
// content would be lost.
std::optional<Lines> ReadLines(const std::string& path) {
  std::string bytes;
  try {
    bytes = ReadWholeFile(path);
  } catch (const Failure& failure) {
    if (failure.Number() == kMissingFileError) return Lines();
    return std::nullopt;
  }
  Lines lines;
  std::string_view rest = bytes;
  while (!rest.empty()) {
    const std::size_t end = rest.find('\n');
    const std::size_t length = end == std::string_view::npos ? rest.size() : end + 1;
    lines.emplace_back(std::string(rest.substr(0, length)));
    rest.remove_prefix(length);
  }
  return lines;
}

bool WriteLines(const std::string& path, const Lines& lines) {
  std::string bytes;
  for (const Line& line : lines) bytes += line.text;
  try {
    WriteFileAtomically(path, bytes);
    return true;
  } catch (const Failure&) {
    return false;
  }
}

// The lines of a section, its own line first; empty when there is none.
struct Range {
  std::size_t begin = 0;
  std::size_t end = 0;
  bool IsEmpty() const { return begin == end; }
};

Range FindSection(const Lines& lines, std::string_view section) {
  Range range;
  while (range.begin < lines.size() && !lines[range.begin].Is(Line::Kind::Section, section))
    ++range.begin;
  range.end = std::min(range.begin + 1, lines.size());
  while (range.end < lines.size() && lines[range.end].kind != Line::Kind::Section) ++range.end;
  return range;
}

std::optional<std::size_t> FindKey(const Lines& lines, const Range& range, std::string_view key) {
  for (std::size_t i = range.begin; i < range.end; ++i)
    if (lines[i].Is(Line::Kind::Key, key)) return i;
  return std::nullopt;
}

std::string Unquoted(const std::string& value) {
  const bool quoted = value.size() >= 2 && value.front() == value.back() &&
                      (value.front() == '"' || value.front() == '\'');
  return quoted ? value.substr(1, value.size() - 2) : value;
}

void EndLastLine(Lines& lines, std::size_t end, const std::string& lineEnd) {
  if (end > 0 && !lines[end - 1].text.ends_with('\n')) lines[end - 1].text += lineEnd;
}

void SetValue(Lines& lines, std::string_view section, std::string_view key,
              std::string_view value) {
  const std::string lineEnd =
      !lines.empty() && lines.front().text.ends_with("\r\n") ? "\r\n" : "\n";
  const std::string rest = "=" + std::string(value) + lineEnd;
  Range range = FindSection(lines, section);
  if (const std::optional<std::size_t> found = FindKey(lines, range, key)) {
    lines[*found] = Line(lines[*found].name + rest);
    return;
  }
  if (range.IsEmpty()) {
    EndLastLine(lines, lines.size(), lineEnd);
    lines.emplace_back("[" + std::string(section) + "]" + lineEnd);
    range.end = lines.size();
  }
  // Empty lines between this section and the next stay between them.
  while (WithoutBlanks(lines[range.end - 1].text).empty()) --range.end;
  EndLastLine(lines, range.end, lineEnd);
  lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(range.end),
               Line(std::string(key) + rest));
}

bool FitsInLine(std::string_view text) {
  return text.find_first_of(std::string_view("\r\n\0", 3)) == std::string_view::npos;
}

bool FitInLines(const std::vector<ProfileValue>& values) {
  return std::all_of(values.begin(), values.end(), [](const ProfileValue& row) {
    return FitsInLine(row.key) && FitsInLine(row.value);
  });
}

int DigitValue(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return 16;
}

int TakeBase(std::string_view& text) {
  int base = 10;
  if (text.starts_with("0x")) base = 16;
  if (text.starts_with("0o")) base = 8;
  if (text.starts_with("0b")) base = 2;
  if (base != 10) text.remove_prefix(2);
  return base;
}

std::int32_t LeadingInt(std::string_view text) {
  const bool negative = text.starts_with('-');
  if (negative || text.starts_with('+')) text.remove_prefix(1);
  const int base = TakeBase(text);
  std::uint32_t value = 0;
  for (const char c : text) {
    const int digit = DigitValue(c);
    if (digit >= base) break;
    value = value * static_cast<std::uint32_t>(base) + static_cast<std::uint32_t>(digit);
  }
  return static_cast<std::int32_t>(negative ? 0U - value : value);
}

// The key's line in the file as it stands; nothing when it is not there.
std::optional<Line> FindLine(const std::string& path, std::string_view section,
                             std::string_view key) {
  const Lines lines = ReadLines(path).value_or(Lines());
  const std::optional<std::size_t> found = FindKey(lines, FindSection(lines, section), key);
  return found ? std::optional<Line>(lines[*found]) : std::nullopt;
}

}  // namespace

std::string ProfileFile::Text(std::string_view section, std::string_view key,
                              std::string_view otherwise) const {
  const std::optional<Line> line = FindLine(path_, section, key);
  return line ? Unquoted(line->value) : RightTrim(otherwise);
}

std::int32_t ProfileFile::Int(std::string_view section, std::string_view key,
                              std::int32_t otherwise) const {
  const std::string value = Text(section, key, {});
  return value.empty() ? otherwise : LeadingInt(WithoutBlanks(value));
}

std::vector<std::string> ProfileFile::SectionNames() const {
  std::vector<std::string> names;
  for (const Line& line : ReadLines(path_).value_or(Lines()))
    if (line.kind == Line::Kind::Section) names.push_back(line.name);
  return names;
}

std::vector<std::string> ProfileFile::KeyNames(std::string_view section) const {
  const Lines lines = ReadLines(path_).value_or(Lines());
  const Range range = FindSection(lines, section);
  std::vector<std::string> names;
  for (std::size_t i = range.begin; i < range.end; ++i)
    if (lines[i].kind == Line::Kind::Key) names.push_back(lines[i].name);
  return names;
}

bool ProfileFile::WriteText(std::string_view section, std::string_view key,
                            std::string_view value) const {
  return WriteTexts(section, {{std::string(key), std::string(value)}});
}

bool ProfileFile::WriteTexts(std::string_view section,
                             const std::vector<ProfileValue>& values) const {
  if (!FitsInLine(section) || !FitInLines(values)) return false;
  std::optional<Lines> lines = ReadLines(path_);
  if (!lines) return false;
  for (const ProfileValue& row : values) SetValue(*lines, section, row.key, row.value);
  return WriteLines(path_, *lines);
}

bool ProfileFile::DeleteKey(std::string_view section, std::string_view key) const {
  std::optional<Lines> lines = ReadLines(path_);
  if (!lines) return false;
  const std::optional<std::size_t> found = FindKey(*lines, FindSection(*lines, section), key);
  if (!found) return true;
  lines->erase(lines->begin() + static_cast<std::ptrdiff_t>(*found));
  return WriteLines(path_, *lines);
}

bool ProfileFile::DeleteSection(std::string_view section) const {
  std::optional<Lines> lines = ReadLines(path_);
  if (!lines) return false;
  const Range range = FindSection(*lines, section);
  if (range.IsEmpty()) return true;
  lines->erase(lines->begin() + static_cast<std::ptrdiff_t>(range.begin),
               lines->begin() + static_cast<std::ptrdiff_t>(range.end));
  return WriteLines(path_, *lines);
}

}  // namespace mortane
