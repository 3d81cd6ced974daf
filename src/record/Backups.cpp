#include "record/Backups.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <tuple>
#include <utility>

#include "common/Failure.h"
#include "common/Numbers.h"
#include "common/Text.h"
#include "platform/AtomicFile.h"
#include "platform/Folder.h"
#include "platform/SpecialFolder.h"

namespace mortane {
namespace {

constexpr std::string_view kExtension = ".xml";
constexpr std::size_t kTimeLength = 24;  // of "2026-11-22T04-15-30.123Z"
constexpr int kNamesOfOneTime = 1000;
constexpr std::size_t kReadableLength = 60;

std::string Joined(const std::string& folder, std::string_view name) {
  return folder + static_cast<char>(std::filesystem::path::preferred_separator) + std::string(name);
}

// "-2" and so on for further backups of one millisecond.
std::string FileName(BackupTime time, int number) {
  return TimeInFileName(time) + (number > 1 ? "-" + std::to_string(number) : std::string()) +
         std::string(kExtension);
}

std::optional<int> Digits(std::string_view text) {
  int number = 0;
  for (const char c : text) {
    if (c < '0' || c > '9') return std::nullopt;
    number = number * 10 + (c - '0');
  }
  return number;
}

std::optional<BackupTime> TimeOf(std::string_view text) {
  struct Part {
    std::size_t at;
    std::size_t length;
  };
  constexpr std::array<Part, 7> kParts{
      {{0, 4}, {5, 2}, {8, 2}, {11, 2}, {14, 2}, {17, 2}, {20, 3}}};
  std::array<int, kParts.size()> numbers{};
  for (std::size_t i = 0; i < kParts.size(); ++i) {
    const auto number = Digits(text.substr(kParts[i].at, kParts[i].length));
    if (!number) return std::nullopt;
    numbers[i] = *number;
  }
  using namespace std::chrono;
  const year_month_day day{year(numbers[0]), month(static_cast<unsigned>(numbers[1])),
                           std::chrono::day(static_cast<unsigned>(numbers[2]))};
  if (!day.ok()) return std::nullopt;
  return BackupTime(sys_days(day)) + hours(numbers[3]) + minutes(numbers[4]) + seconds(numbers[5]) +
         milliseconds(numbers[6]);
}

struct Named {
  BackupTime time;
  int number;
  std::string name;
};

// Nothing for a name that Keep does not give.
std::optional<Named> ParseFileName(const std::string& name) {
  if (name.size() < kTimeLength + kExtension.size()) return std::nullopt;
  const auto time = TimeOf(std::string_view(name).substr(0, kTimeLength));
  if (!time) return std::nullopt;
  int number = 1;
  if (name[kTimeLength] == '-') {
    const auto* const begin = name.data() + kTimeLength + 1;
    if (std::from_chars(begin, name.data() + name.size(), number).ec != std::errc()) {
      return std::nullopt;
    }
  }
  if (name != FileName(*time, number)) return std::nullopt;
  return Named{*time, number, name};
}

}  // namespace

std::string TimeInFileName(BackupTime time) {
  using namespace std::chrono;
  const auto midnight = floor<days>(time);
  const year_month_day day(midnight);
  const hh_mm_ss clock(time - midnight);
  std::array<char, 64> text{};
  const int length = std::snprintf(
      text.data(), text.size(), "%04d-%02u-%02uT%02d-%02d-%02d.%03dZ", static_cast<int>(day.year()),
      static_cast<unsigned>(day.month()), static_cast<unsigned>(day.day()),
      static_cast<int>(clock.hours().count()), static_cast<int>(clock.minutes().count()),
      static_cast<int>(clock.seconds().count()), static_cast<int>(clock.subseconds().count()));
  return {text.data(), static_cast<std::size_t>(length)};
}

// The number keeps names apart that differ in what was replaced or in case alone, and keeps a name
// that the system reserves from being one.
std::string DeviceFolderName(const std::string& device) {
  std::string name;
  std::uint32_t number = 2166136261;  // FNV-1a
  for (const char c : device) {
    const auto byte = static_cast<unsigned char>(c);
    number = (number ^ byte) * 16777619;
    const bool plain = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
                       c == '-' || c == '_';
    if (name.size() < kReadableLength) name += plain ? c : '_';
  }
  return name + "-" + HexPadded(static_cast<std::int32_t>(number), 8);
}

Backups::Backups(const std::string& folder, const std::string& device, Clock clock)
    : folder_(Joined(folder, DeviceFolderName(device))), clock_(std::move(clock)) {}

std::string Backups::DefaultFolder() {
  const std::string folder = UserDataFolder();
  return folder.empty() ? folder : Joined(Joined(folder, "Mortane"), "Backups");
}

BackupTime Backups::SystemTime() {
  return std::chrono::floor<std::chrono::milliseconds>(std::chrono::system_clock::now());
}

Backup Backups::Keep(const DomDocument& document) const {
  if (!MakeFolder(folder_)) {
    RaiseOwnFailure(kFileError, "Cannot make the folder " + folder_);
  }
  const BackupTime time = clock_();
  const std::vector<std::string> present = NamesInFolder(folder_);
  for (int number = 1; number <= kNamesOfOneTime; ++number) {
    const std::string name = FileName(time, number);
    if (std::find(present.begin(), present.end(), name) != present.end()) continue;
    Backup backup{Joined(folder_, name), time};
    document.Save(backup.path);
    return backup;
  }
  RaiseOwnFailure(kFileError, "Cannot write " + Joined(folder_, FileName(time, 1)) +
                                  ": there are too many backups of this time");
}

std::vector<Backup> Backups::List() const {
  std::vector<Named> found;
  for (const std::string& name : NamesInFolder(folder_)) {
    if (auto named = ParseFileName(name)) found.push_back(std::move(*named));
  }
  std::sort(found.begin(), found.end(), [](const Named& left, const Named& right) {
    return std::tie(right.time, right.number) < std::tie(left.time, left.number);
  });
  std::vector<Backup> backups;
  backups.reserve(found.size());
  for (const Named& named : found) backups.push_back({Joined(folder_, named.name), named.time});
  return backups;
}

std::size_t Backups::Prune(std::size_t count) const {
  const std::vector<Backup> backups = List();
  std::size_t removed = 0;
  for (std::size_t i = count; i < backups.size(); ++i) {
    RemoveFile(backups[i].path);
    ++removed;
  }
  return removed;
}

}  // namespace mortane
