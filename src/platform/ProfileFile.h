// A file of "[section]" and "key=value" lines, as Windows' profile calls read and write it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace mortane {

struct ProfileValue {
  std::string key;
  std::string value;
};

// Sections and keys are found without regard to case, blanks around them ignored; the first of
// equal names counts. A line that begins with a semicolon is a comment. A missing file reads as
// an empty one. The writers keep all other lines as they are, create a missing file (but no
// folder) and answer false when nothing could be written. Each replaces the file in one step: a
// process killed at any moment leaves the old file or the new one. A path that is not absolute
// begins in the current folder.
class ProfileFile {
 public:
  explicit ProfileFile(std::string utf8Path) : path_(std::move(utf8Path)) {}

  // The value without the blanks around it and without one pair of quotation marks.
  std::string Text(std::string_view section, std::string_view key,
                   std::string_view otherwise) const;

  // The whole number that the value begins with, also with a sign or as "0x" hexadecimal; 0 when
  // it begins with none, `otherwise` when key or value is missing. Numbers beyond 32 bits wrap.
  std::int32_t Int(std::string_view section, std::string_view key, std::int32_t otherwise) const;

  std::vector<std::string> SectionNames() const;
  std::vector<std::string> KeyNames(std::string_view section) const;

  bool WriteText(std::string_view section, std::string_view key, std::string_view value) const;
  // All of them or none, in one step; each as WriteText would write it.
  bool WriteTexts(std::string_view section, const std::vector<ProfileValue>& values) const;
  bool DeleteKey(std::string_view section, std::string_view key) const;
  bool DeleteSection(std::string_view section) const;

 private:
  std::string path_;
};

}  // namespace mortane
