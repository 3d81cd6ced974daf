// Paths in the form in which Windows' file calls take them whatever their length.
#pragma once

#include <string>
#include <string_view>

#include "platform/windows/Handle.h"

namespace mortane {

// The absolute path after "\\?\": without that, the calls take more than MAX_PATH characters only
// where the system and the program are both set up for long paths. Slashes and "." and ".." are
// resolved, since the calls do not after that prefix. Empty for an empty path; a device's name
// ("NUL", "COM1.xml", "\\.\X") comes as "\\.\X".
std::wstring SystemPath(std::string_view utf8Path);

// The same path without the prefix, for calls that do not know it.
std::wstring PlainPath(const std::wstring& systemPath);

// True for what SystemPath gives for a device, which must not even be opened: it may be an
// instrument's port.
bool IsDevicePath(std::wstring_view systemPath);

// The folder part of a path that SystemPath gave, with the backslash at its end.
std::wstring FolderOf(const std::wstring& systemPath);

// Opens a file or folder beside all others that have it open, links followed. Without an access
// right it can be asked what it is.
Handle OpenShared(const std::wstring& systemPath, DWORD access = 0);

// Where an open file really stands; `otherwise` when the system does not say.
std::wstring FinalPath(const Handle& file, const std::wstring& otherwise);

}  // namespace mortane
