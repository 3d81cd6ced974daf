// Prompts that agree to every box and show nothing.
#pragma once

#include <string>

#include "common/Prompts.h"

namespace mortane::test {

// Files are never chosen. Unlike ScriptedPrompts it keeps no record, however long it runs.
class QuietPrompts : public Prompts {
 public:
  Answer MsgBox(const std::string&, int, const std::string&) override { return Answer::Ok; }
  Answer TimedMsgBox(int, const std::string&, int, const std::string&, const std::string&,
                     int) override {
    return Answer::Ok;
  }
  std::string AskFileToOpen(const FileQuestion&) override { return {}; }
  std::string AskFileToSave(const FileQuestion&) override { return {}; }
  void SetPointer(Pointer) override {}
  void FlushInput() override {}
  void Wait(int) override {}
  void ShowProgress(int, int) override {}
};

}  // namespace mortane::test
