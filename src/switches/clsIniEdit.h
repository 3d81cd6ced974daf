// One profile file, with the operations and answers of the system's profile calls.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/ProfileFile.h"

namespace mortane {

// The calls answer into a buffer of 32767 characters: longer texts are cut, a list of names as a
// whole. Writers answer 0 when nothing was written, else another number.
class clsIniEdit {
 public:
  // The file that all other operations work on.
  std::string IniFilePath;

  // Writes only with a key and data that are not empty; DeleteKey removes a key.
  std::int32_t WriteString(std::string_view SectionName, std::string_view KeyName,
                           std::string_view WriteData) const;
  // WriteString for each, in one step of the file: a process that ends meanwhile leaves all old
  // values or all new ones.
  std::int32_t WriteStrings(std::string_view SectionName,
                            const std::vector<ProfileValue>& values) const;

  std::string GetString(std::string_view SectionName, std::string_view KeyName,
                        std::string_view Default) const;
  // The number that the value begins with.
  std::int32_t GetInt(std::string_view SectionName, std::string_view KeyName,
                      std::int32_t Default) const;

  // Fill the array with names, from its first entry to its end or to the first name that is empty;
  // what lies behind keeps its text. Answer the characters in the buffer: each name with the NUL
  // that ends it, also of names that the array had no room for.
  std::int32_t GetSectionNames(std::span<std::string> SectionBuffer) const;
  std::int32_t GetKeyNames(std::string_view SectionName, std::span<std::string> KeyBuffer) const;

  std::int32_t DeleteSection(std::string_view SectionName) const;
  std::int32_t DeleteKey(std::string_view SectionName, std::string_view KeyName) const;

 private:
  ProfileFile File() const { return ProfileFile(IniFilePath); }
};

}  // namespace mortane
