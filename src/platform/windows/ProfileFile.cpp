#include "platform/ProfileFile.h"

#include <windows.h>

#include "platform/windows/Wide.h"

namespace mortane {
namespace {

constexpr DWORD kBufferCharacters = 32767;

// Names one after the other, each ended by a NUL.
std::vector<std::string> SplitNames(std::wstring_view names) {
  std::vector<std::string> split;
  while (!names.empty()) {
    const std::size_t length = names.find(L'\0');
    if (length == 0) break;
    split.push_back(ToUtf8(names.substr(0, length)));
    names.remove_prefix(length == std::wstring_view::npos ? names.size() : length + 1);
  }
  return split;
}

bool Write(const std::string& path, std::string_view section, const wchar_t* key,
           const wchar_t* value) {
  return WritePrivateProfileStringW(ToWide(section).c_str(), key, value, ToWide(path).c_str()) != 0;
}

// A line break in a text would begin another line of the file.
bool FitsInLine(std::string_view text) {
  return text.find_first_of(std::string_view("\r\n\0", 3)) == std::string_view::npos;
}

std::wstring Read(const std::string& path, std::string_view section, const wchar_t* key,
                  std::string_view otherwise) {
  std::wstring buffer(kBufferCharacters, L'\0');
  const DWORD length =
      GetPrivateProfileStringW(ToWide(section).c_str(), key, ToWide(otherwise).c_str(),
                               buffer.data(), kBufferCharacters, ToWide(path).c_str());
  buffer.resize(length);
  return buffer;
}

}  // namespace

std::string ProfileFile::Text(std::string_view section, std::string_view key,
                              std::string_view otherwise) const {
  return ToUtf8(Read(path_, section, ToWide(key).c_str(), otherwise));
}

std::int32_t ProfileFile::Int(std::string_view section, std::string_view key,
                              std::int32_t otherwise) const {
  return static_cast<std::int32_t>(GetPrivateProfileIntW(
      ToWide(section).c_str(), ToWide(key).c_str(), otherwise, ToWide(path_).c_str()));
}

std::vector<std::string> ProfileFile::SectionNames() const {
  std::wstring buffer(kBufferCharacters, L'\0');
  buffer.resize(
      GetPrivateProfileSectionNamesW(buffer.data(), kBufferCharacters, ToWide(path_).c_str()));
  return SplitNames(buffer);
}

std::vector<std::string> ProfileFile::KeyNames(std::string_view section) const {
  return SplitNames(Read(path_, section, nullptr, {}));
}

bool ProfileFile::WriteText(std::string_view section, std::string_view key,
                            std::string_view value) const {
  if (!FitsInLine(section) || !FitsInLine(key) || !FitsInLine(value)) return false;
  return Write(path_, section, ToWide(key).c_str(), ToWide(value).c_str());
}

bool ProfileFile::DeleteKey(std::string_view section, std::string_view key) const {
  return Write(path_, section, ToWide(key).c_str(), nullptr);
}

bool ProfileFile::DeleteSection(std::string_view section) const {
  return Write(path_, section, nullptr, nullptr);
}

}  // namespace mortane
