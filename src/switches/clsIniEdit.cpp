#include "switches/clsIniEdit.h"

#include <algorithm>
#include <iterator>

#include "common/Text.h"

namespace mortane {
namespace {

constexpr std::size_t kBufferCharacters = 32767;
// One NUL ends a text, a second one a list of names.
constexpr std::size_t kLongestText = kBufferCharacters - 1;
constexpr std::size_t kLongestList = kBufferCharacters - 2;

bool IsWritable(std::string_view key, std::string_view data) {
  return !key.empty() && !data.empty();
}

// The names as the system lays them out in the buffer, without the last NUL.
std::string ListOf(const std::vector<std::string>& names) {
  std::string list;
  for (const std::string& name : names) list.append(name).push_back('\0');
  return FirstCharacters(list, kLongestList);
}

std::int32_t Split(const std::vector<std::string>& names, std::span<std::string> array) {
  const std::string list = ListOf(names);
  std::string_view rest = list;
  for (std::string& entry : array) {
    const std::string name = TruncateAtNul(rest);
    if (name.empty()) break;
    rest.remove_prefix(std::min(name.size() + 1, rest.size()));
    entry = name;
  }
  return static_cast<std::int32_t>(CharacterCount(list));
}

}  // namespace

std::int32_t clsIniEdit::WriteString(std::string_view SectionName, std::string_view KeyName,
                                     std::string_view WriteData) const {
  return WriteStrings(SectionName, {{std::string(KeyName), std::string(WriteData)}});
}

std::int32_t clsIniEdit::WriteStrings(std::string_view SectionName,
                                      const std::vector<ProfileValue>& values) const {
  std::vector<ProfileValue> writable;
  std::copy_if(values.begin(), values.end(), std::back_inserter(writable),
               [](const ProfileValue& row) { return IsWritable(row.key, row.value); });
  return !writable.empty() && File().WriteTexts(SectionName, writable) ? 1 : 0;
}

std::string clsIniEdit::GetString(std::string_view SectionName, std::string_view KeyName,
                                  std::string_view Default) const {
  return FirstCharacters(File().Text(SectionName, KeyName, Default), kLongestText);
}

std::int32_t clsIniEdit::GetInt(std::string_view SectionName, std::string_view KeyName,
                                std::int32_t Default) const {
  return File().Int(SectionName, KeyName, Default);
}

std::int32_t clsIniEdit::GetSectionNames(std::span<std::string> SectionBuffer) const {
  return Split(File().SectionNames(), SectionBuffer);
}

std::int32_t clsIniEdit::GetKeyNames(std::string_view SectionName,
                                     std::span<std::string> KeyBuffer) const {
  return Split(File().KeyNames(SectionName), KeyBuffer);
}

std::int32_t clsIniEdit::DeleteSection(std::string_view SectionName) const {
  return File().DeleteSection(SectionName) ? 1 : 0;
}

std::int32_t clsIniEdit::DeleteKey(std::string_view SectionName, std::string_view KeyName) const {
  return File().DeleteKey(SectionName, KeyName) ? 1 : 0;
}

}  // namespace mortane
