#include "platform/StartNotice.h"

#include <iostream>

namespace mortane {

void ShowStartNotice(const std::string& program, const std::string& text) {
  std::cerr << program << ": " << text << '\n';
}

bool ShowStartAnswer(const std::string& /*title*/, const std::string& text) {
  std::cout << text << '\n' << std::flush;
  return static_cast<bool>(std::cout);
}

}  // namespace mortane
