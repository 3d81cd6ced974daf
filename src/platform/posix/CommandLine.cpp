#include "platform/CommandLine.h"

#include <filesystem>
#include <system_error>

namespace mortane {

std::vector<std::string> GetCommandLineArray(int argc, char** argv) {
  std::error_code error;
  const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", error);
  std::vector<std::string> arguments(argv, argv + argc);
  if (arguments.empty()) arguments.emplace_back();
  if (!error) arguments.front() = program.string();
  return arguments;
}

}  // namespace mortane
