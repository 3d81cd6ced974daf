// Prompts that agree to every box and show nothing.
#pragma once

#include <string>

#include "common/UnattendedPrompts.h"

namespace mortane::test {

// Unlike ScriptedPrompts it keeps no record, however long it runs.
class QuietPrompts : public UnattendedPrompts {
 public:
  Answer MsgBox(const std::string&, int, const std::string&) override { return Answer::Ok; }
};

}  // namespace mortane::test
