#include "platform/FilePath.h"

#include "platform/windows/FileFailure.h"
#include "platform/windows/SystemPath.h"
#include "platform/windows/Wide.h"

namespace mortane {
namespace {

// Names are told apart without regard to case by a table of the file system; this is the same for
// all letters that names are made of.
std::wstring UpperCase(std::wstring text) {
  LCMapStringEx(LOCALE_NAME_INVARIANT, LCMAP_UPPERCASE, text.c_str(), static_cast<int>(text.size()),
                text.data(), static_cast<int>(text.size()), nullptr, nullptr, 0);
  return text;
}

std::wstring FollowedPath(const std::wstring& path) {
  const Handle file = OpenShared(path);
  if (file.IsOpen()) return FinalPath(file, path);
  const std::wstring folder = FolderOf(path);
  if (folder.size() >= path.size() || folder.empty()) return path;
  const Handle folderHandle = OpenShared(folder);
  if (!folderHandle.IsOpen()) return path;
  const std::wstring followed = FinalPath(folderHandle, folder);
  const bool ended = followed.ends_with(L'\\');
  return followed + (ended ? L"" : L"\\") + path.substr(folder.size());
}

}  // namespace

std::string ResolvedPath(const std::string& utf8Path) {
  return ToUtf8(UpperCase(FollowedPath(SystemPath(utf8Path))));
}

bool IsMissing(const std::string& utf8Path) {
  if (GetFileAttributesW(SystemPath(utf8Path).c_str()) != INVALID_FILE_ATTRIBUTES) return false;
  return IsMissingError(GetLastError());
}

}  // namespace mortane
