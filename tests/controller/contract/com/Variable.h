// A variable of the environment, for as long as a test needs it.
#pragma once

#include <windows.h>

#include <string>

namespace mortane::controller::test {

// Of this process and of those that it starts.
class Variable {
 public:
  Variable(const wchar_t* name, const std::wstring& value) : name_(name) {
    SetEnvironmentVariableW(name, value.c_str());
  }
  ~Variable() { SetEnvironmentVariableW(name_, nullptr); }
  Variable(const Variable&) = delete;
  Variable& operator=(const Variable&) = delete;

 private:
  const wchar_t* name_;
};

}  // namespace mortane::controller::test
