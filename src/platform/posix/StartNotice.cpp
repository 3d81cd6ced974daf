#include "platform/StartNotice.h"

#include <iostream>

namespace mortane {

void ShowStartNotice(const std::string& program, const std::string& text) {
  std::cerr << program << ": " << text << '\n';
}

}  // namespace mortane
