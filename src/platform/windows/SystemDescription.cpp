#include "platform/SystemDescription.h"

#include <windows.h>

namespace mortane {
namespace {

using RtlGetVersion = LONG(WINAPI*)(OSVERSIONINFOW*);

// GetVersionEx tells the version for which the program was made.
std::string Version() {
  const HMODULE system = GetModuleHandleW(L"ntdll.dll");
  if (system == nullptr) return {};
  const FARPROC function = GetProcAddress(system, "RtlGetVersion");
  if (function == nullptr) return {};
  OSVERSIONINFOW version = {};
  version.dwOSVersionInfoSize = sizeof version;
  // Through a pointer without a type, because the two function types differ.
  const auto ask = reinterpret_cast<RtlGetVersion>(reinterpret_cast<void*>(function));
  if (ask(&version) != 0) return {};
  return " " + std::to_string(version.dwMajorVersion) + "." +
         std::to_string(version.dwMinorVersion) + "." + std::to_string(version.dwBuildNumber);
}

std::string Processor() {
  SYSTEM_INFO info = {};
  GetNativeSystemInfo(&info);
  if (info.wProcessorArchitecture == PROCESSOR_ARCHITECTURE_AMD64) return "x86_64";
  if (info.wProcessorArchitecture == PROCESSOR_ARCHITECTURE_ARM64) return "ARM64";
  return "x86";
}

}  // namespace

std::string SystemDescription() {
  return "Windows" + Version() + ", " + Processor();
}

}  // namespace mortane
