// Prompts for measurements: nobody is asked, and a box ends the run.
#pragma once

#include <cstdio>
#include <cstdlib>

#include "common/Prompts.h"

namespace mortane {

class SilentPrompts : public Prompts {
 public:
  Answer MsgBox(const std::string& text, int, const std::string&) override {
    std::fprintf(stderr, "a box stood in the way: %s\n", text.c_str());
    std::exit(1);
  }
  Answer TimedMsgBox(int, const std::string& prompt, int style, const std::string& title,
                     const std::string&, int) override {
    return MsgBox(prompt, style, title);
  }
  std::string AskFileToOpen(const FileQuestion&) override { return {}; }
  std::string AskFileToSave(const FileQuestion&) override { return {}; }
  void SetPointer(Pointer) override {}
  void FlushInput() override {}
  void Wait(int) override {}
  void ShowProgress(int, int) override {}
};

}  // namespace mortane
