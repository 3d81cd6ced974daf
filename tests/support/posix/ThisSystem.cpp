#include "support/ThisSystem.h"

namespace mortane::test {

bool IsUnderWine() {
  return false;
}

std::string NativeLines(std::string_view text) {
  return std::string(text);
}

std::string NativeBytes(const std::string& utf8) {
  return utf8;
}

}  // namespace mortane::test
