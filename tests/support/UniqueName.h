// A name for a NamedMutex that no other test and no other run uses.
#pragma once

#include <filesystem>
#include <random>
#include <string>
#include <system_error>

namespace mortane::test {

// On systems where a file stands for a name, the destructor removes the files of this name and of
// all names that begin with it.
class UniqueName {
 public:
  UniqueName() {
    std::random_device random;
    text_ = "MortaneTest-" + std::to_string(random()) + "-" + std::to_string(random());
  }
  ~UniqueName() {
    std::error_code error;
    for (const char* folder : {"/run/lock", "/tmp"}) {
      for (const auto& entry : std::filesystem::directory_iterator(folder, error)) {
        if (entry.path().filename().string().starts_with("mortane-" + text_))
          std::filesystem::remove(entry.path(), error);
      }
    }
  }
  UniqueName(const UniqueName&) = delete;
  UniqueName& operator=(const UniqueName&) = delete;

  const std::string& Text() const { return text_; }

 private:
  std::string text_;
};

}  // namespace mortane::test
