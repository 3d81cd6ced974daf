// Prompts of tests, measurements and tools: nobody sits before them.
#pragma once

#include <string>

#include "common/Prompts.h"

namespace mortane {

// No file is ever chosen, no input dropped, nothing waited for and nothing shown. What becomes of a
// box is left open; one that would close itself is as any other.
class UnattendedPrompts : public Prompts {
 public:
  Answer TimedMsgBox(int /*milliseconds*/, const std::string& prompt, int style,
                     const std::string& title, const std::string& /*helpFile*/,
                     int /*context*/) override {
    return MsgBox(prompt, style, title);
  }
  std::string AskFileToOpen(const FileQuestion& /*question*/) override { return {}; }
  std::string AskFileToSave(const FileQuestion& /*question*/) override { return {}; }
  void SetPointer(Pointer /*pointer*/) override {}
  void FlushInput() override {}
  void Wait(int /*milliseconds*/) override {}
  void ShowProgress(int /*done*/, int /*total*/) override {}
};

}  // namespace mortane
