#include "platform/ProfileFile.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <optional>

#include "common/Failure.h"
#include "common/TemporaryName.h"
#include "platform/AtomicFile.h"
#include "platform/windows/FileFailure.h"
#include "platform/windows/SystemPath.h"
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

// A line break in a text would begin another line of the file.
bool FitsInLine(std::string_view text) {
  return text.find_first_of(std::string_view("\r\n\0", 3)) == std::string_view::npos;
}

bool FitInLines(const std::vector<ProfileValue>& values) {
  return std::all_of(values.begin(), values.end(), [](const ProfileValue& row) {
    return FitsInLine(row.key) && FitsInLine(row.value);
  });
}

std::wstring FolderForTemporaryFiles() {
  std::array<wchar_t, MAX_PATH + 1> folder{};
  return {folder.data(), GetTempPathW(MAX_PATH, folder.data())};
}

// An empty file in the system's folder for temporary files, gone with its owner. Its name is that
// of a save's, so that a later edit removes what a killed process left.
class ScratchFile {
 public:
  ScratchFile() {
    const std::wstring folder = FolderForTemporaryFiles();
    DWORD error = ERROR_FILE_EXISTS;
    for (int number = 0; error == ERROR_FILE_EXISTS && number < kTemporaryNames; ++number) {
      path_ = folder + ToWide(TemporaryName(GetCurrentProcessId(), number));
      const Handle made(CreateFileW(path_.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                    FILE_ATTRIBUTE_NORMAL, nullptr));
      if (made.IsOpen()) return;
      error = GetLastError();
    }
    RaiseFileFailure("write", ToUtf8(path_), error);
  }
  ~ScratchFile() { DeleteFileW(path_.c_str()); }
  ScratchFile(const ScratchFile&) = delete;
  ScratchFile& operator=(const ScratchFile&) = delete;

  const std::wstring& Path() const { return path_; }

 private:
  std::wstring path_;
};

std::string ContentOf(const std::string& path) {
  try {
    return ReadWholeFile(path);
  } catch (const Failure& failure) {
    if (failure.Number() != kMissingFileError) throw;
    return {};
  }
}

// The system's calls write into the file that stands there, and a process killed meanwhile would
// leave a part of it. They get a copy, which then takes the file's place.
template <typename Edit>
bool EditCopy(const std::string& path, Edit&& edit) {
  try {
    const std::string before = ContentOf(path);
    const ScratchFile copy;
    const std::string copyPath = ToUtf8(copy.Path());
    WriteFileAtomically(copyPath, before);
    if (!edit(copy.Path().c_str())) return false;
    WritePrivateProfileStringW(nullptr, nullptr, nullptr, copy.Path().c_str());  // nothing cached
    const std::string after = ReadWholeFile(copyPath);
    if (after != before) WriteFileAtomically(path, after);
    return true;
  } catch (const Failure&) {
    return false;
  }
}

// Where the system's calls read the file. They look in a folder of their own for a path that is not
// absolute, and take none that is empty or as long as MAX_PATH: such a file they read in a copy,
// which is empty when the file cannot be read.
class ReadableFile {
 public:
  explicit ReadableFile(const std::string& utf8Path) : path_(PlainPath(SystemPath(utf8Path))) {
    if (!path_.empty() && path_.size() < MAX_PATH) return;
    try {
      copy_.emplace();
      path_ = copy_->Path();
      WriteFileAtomically(ToUtf8(path_), ReadWholeFile(utf8Path));
    } catch (const Failure&) {
      return;
    }
  }

  const wchar_t* Path() const { return path_.c_str(); }

 private:
  std::wstring path_;
  std::optional<ScratchFile> copy_;
};

// Deletes a key; without one the section.
bool Delete(const std::string& path, std::string_view section, const wchar_t* key) {
  return EditCopy(path, [&](const wchar_t* copy) {
    return WritePrivateProfileStringW(ToWide(section).c_str(), key, nullptr, copy) != 0;
  });
}

std::wstring Read(const std::string& path, std::string_view section, const wchar_t* key,
                  std::string_view otherwise) {
  const ReadableFile file(path);
  std::wstring buffer(kBufferCharacters, L'\0');
  const DWORD length =
      GetPrivateProfileStringW(ToWide(section).c_str(), key, ToWide(otherwise).c_str(),
                               buffer.data(), kBufferCharacters, file.Path());
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
  const ReadableFile file(path_);
  return static_cast<std::int32_t>(
      GetPrivateProfileIntW(ToWide(section).c_str(), ToWide(key).c_str(), otherwise, file.Path()));
}

std::vector<std::string> ProfileFile::SectionNames() const {
  const ReadableFile file(path_);
  std::wstring buffer(kBufferCharacters, L'\0');
  buffer.resize(GetPrivateProfileSectionNamesW(buffer.data(), kBufferCharacters, file.Path()));
  return SplitNames(buffer);
}

std::vector<std::string> ProfileFile::KeyNames(std::string_view section) const {
  return SplitNames(Read(path_, section, nullptr, {}));
}

bool ProfileFile::WriteText(std::string_view section, std::string_view key,
                            std::string_view value) const {
  return WriteTexts(section, {{std::string(key), std::string(value)}});
}

bool ProfileFile::WriteTexts(std::string_view section,
                             const std::vector<ProfileValue>& values) const {
  if (!FitsInLine(section) || !FitInLines(values)) return false;
  return EditCopy(path_, [&](const wchar_t* copy) {
    return std::all_of(values.begin(), values.end(), [&](const ProfileValue& row) {
      return WritePrivateProfileStringW(ToWide(section).c_str(), ToWide(row.key).c_str(),
                                        ToWide(row.value).c_str(), copy) != 0;
    });
  });
}

bool ProfileFile::DeleteKey(std::string_view section, std::string_view key) const {
  return Delete(path_, section, ToWide(key).c_str());
}

bool ProfileFile::DeleteSection(std::string_view section) const {
  return Delete(path_, section, nullptr);
}

}  // namespace mortane
