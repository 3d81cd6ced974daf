#include "platform/Environment.h"

#include <cstdlib>

namespace mortane {

std::string EnvironmentVariable(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? std::string() : std::string(value);
}

}  // namespace mortane
