// How a test program tells the process that it starts of its part.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

namespace mortane::test {

// The handles are inherited, so both processes know them by the same numbers.
struct PartOption {
  std::string part;
  HANDLE in = nullptr;
  HANDLE out = nullptr;
  std::string mutexScope;

  std::string Text() const;
};

// Nothing when the text is no such option; raises for a broken one, since a program that took it
// for none would run all its tests.
std::optional<PartOption> ReadPartOption(const std::string& text);

// Raise when the other process has ended.
void SendByte(HANDLE pipe);
void ReceiveByte(HANDLE pipe);

}  // namespace mortane::test
