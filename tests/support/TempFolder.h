// A folder of its own for one test, gone with it.
#pragma once

#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <string>
#include <string_view>

#include "support/Utf8Path.h"

namespace mortane::test {

class TempFolder {
 public:
  TempFolder() {
    std::random_device random;
    do {
      path_ = std::filesystem::temp_directory_path() / ("mortane-test-" + std::to_string(random()));
    } while (!std::filesystem::create_directory(path_));
  }
  ~TempFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  // With the system's own separators.
  std::string Path(std::string_view name) const {
    return Utf8Of((path_ / PathOf(name)).make_preferred());
  }

  // Writes a file and gives its path.
  std::string Write(std::string_view name, std::string_view bytes) const {
    std::string path = Path(name);
    std::ofstream(PathOf(path), std::ios::binary) << bytes;
    return path;
  }

  static std::string Read(const std::string& path) {
    std::ostringstream bytes;
    bytes << std::ifstream(PathOf(path), std::ios::binary).rdbuf();
    return bytes.str();
  }

 private:
  std::filesystem::path path_;
};

}  // namespace mortane::test
