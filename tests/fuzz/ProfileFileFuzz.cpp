#include <string>
#include <string_view>

#include "fuzz/FuzzEntry.h"
#include "fuzz/MemoryFile.h"
#include "fuzz/Promise.h"
#include "platform/ProfileFile.h"

namespace mortane {
namespace {

// The time for one file grows with the square of its names.
constexpr std::size_t kMostNames = 8;
// No value of a file has a line end.
constexpr char kMissing[] = "\nmissing";

void CheckSection(const ProfileFile& profile, const std::string& section) {
  std::size_t count = 0;
  for (const std::string& key : profile.KeyNames(section)) {
    if (++count > kMostNames) return;
    const std::string value = profile.Text(section, key, kMissing);
    Require(value != kMissing, "a key that is listed has a value");
    Require(value.find('\n') == std::string::npos, "a value is one line");
    profile.Int(section, key, 0);
  }
}

void Check(std::string_view bytes) {
  static MemoryFile file;
  static const ProfileFile profile(file.Path());
  file.Put(bytes);
  std::size_t count = 0;
  for (const std::string& section : profile.SectionNames()) {
    if (++count > kMostNames) break;
    CheckSection(profile, section);
  }
  // What the joypad's page reads.
  profile.Int("JoyPad", "Right", 0);
  profile.Int("JoyPad", "Button1", 0);
}

}  // namespace
}  // namespace mortane

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  mortane::Check({reinterpret_cast<const char*>(data), size});
  return 0;
}
