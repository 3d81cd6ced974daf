// The test program started once more, with two pipes between the processes.
#pragma once

#include <string>

#include "platform/windows/Handle.h"

namespace mortane::test {

// It ends with its owner, and with the test program however that ends.
class StartedProgram {
 public:
  // `arguments` stand on its command line as they are, after the option that names the part.
  StartedProgram(const std::string& part, const std::wstring& arguments);

  void Tell() const;
  void Await() const;
  void Kill();
  int Wait();

 private:
  Handle job_;
  Handle process_;
  Handle in_;
  Handle out_;
};

// An argument as CommandLineToArgvW takes it apart again.
std::wstring Quoted(const std::wstring& argument);

}  // namespace mortane::test
