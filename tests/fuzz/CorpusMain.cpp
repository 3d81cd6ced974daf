// Runs the fuzz target on the corpus, and on cut and changed copies that are the same in every run,
// in builds without a fuzzer.
#include <cstdio>
#include <filesystem>
#include <random>
#include <string>
#include <string_view>

#include "fuzz/FuzzEntry.h"
#include "platform/AtomicFile.h"

namespace {

using namespace std::string_view_literals;

constexpr int kChangedCopies = 300;
constexpr std::size_t kCuts = 200;

void Feed(const std::string& bytes) {
  LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
}

std::size_t Below(std::mt19937& random, std::size_t limit) {
  return random() % limit;
}

std::string Changed(std::string bytes, std::mt19937& random) {
  constexpr std::string_view kTelling = "<>/=\"'&;![]-? \0\xFF"sv;
  for (std::size_t change = Below(random, 4) + 1; change > 0 && !bytes.empty(); --change) {
    const std::size_t place = Below(random, bytes.size());
    switch (Below(random, 4)) {
      case 0:
        bytes[place] = kTelling[Below(random, kTelling.size())];
        break;
      case 1:
        bytes[place] = static_cast<char>(random());
        break;
      case 2:
        bytes.erase(place, Below(random, 8) + 1);
        break;
      default:
        bytes.insert(place, bytes.substr(Below(random, bytes.size()), Below(random, 40)));
        break;
    }
  }
  return bytes;
}

}  // namespace

int main(int argc, char** argv) {
  std::size_t files = 0;
  for (const auto& entry : std::filesystem::directory_iterator(argc > 1 ? argv[1] : ".")) {
    const std::string bytes = mortane::ReadWholeFile(entry.path().string());
    Feed(bytes);
    for (std::size_t cut = 0; cut < kCuts; ++cut) Feed(bytes.substr(0, bytes.size() * cut / kCuts));
    std::mt19937 random(1);
    for (int copy = 0; copy < kChangedCopies; ++copy) Feed(Changed(bytes, random));
    ++files;
  }
  std::printf("%zu files fed, each with %zu cut and %d changed copies\n", files, kCuts,
              kChangedCopies);
  return files > 0 ? 0 : 1;
}
