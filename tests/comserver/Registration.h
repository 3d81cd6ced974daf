// Entries of the test server in the system's list of classes.
#pragma once

#include <windows.h>

#include <string>

#include "comserver/ServedClasses.h"

namespace mortane::comserver {

struct Registration {
  ClassFamily family;
  std::wstring progIdPrefix;
  const wchar_t* serverKey;  // "InprocServer32" or "LocalServer32"
  std::wstring command;      // the library's path, or the program's in quotes
  REGSAM view = 0;  // KEY_WOW64_32KEY or KEY_WOW64_64KEY for another list than this program's
};

// For the machine where that is allowed, else for the user alone. Not every system looks for
// classes among the user's.
HRESULT Register(const Registration& entry);
HRESULT Unregister(const Registration& entry);

// The file that a loaded module came from.
std::wstring ModulePath(HMODULE module);

}  // namespace mortane::comserver
