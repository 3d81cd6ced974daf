#include "platform/FilePath.h"

#include <filesystem>
#include <system_error>

namespace mortane {

std::string ResolvedPath(const std::string& utf8Path) {
  std::error_code error;
  const std::filesystem::path absolute = std::filesystem::absolute(utf8Path, error);
  if (error) return utf8Path;
  const std::filesystem::path resolved = std::filesystem::weakly_canonical(absolute, error);
  return error ? utf8Path : resolved.string();
}

bool IsMissing(const std::string& utf8Path) {
  std::error_code error;
  return std::filesystem::status(utf8Path, error).type() == std::filesystem::file_type::not_found;
}

}  // namespace mortane
