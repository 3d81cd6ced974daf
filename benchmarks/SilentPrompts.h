// Prompts for measurements: nobody is asked, and a box ends the run.
#pragma once

#include <cstdio>
#include <cstdlib>

#include "common/UnattendedPrompts.h"

namespace mortane {

class SilentPrompts : public UnattendedPrompts {
 public:
  Answer MsgBox(const std::string& text, int, const std::string&) override {
    std::fprintf(stderr, "a box stood in the way: %s\n", text.c_str());
    std::exit(1);
  }
};

}  // namespace mortane
