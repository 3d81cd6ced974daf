// The names of the files that a save writes beside its target.
#pragma once

#include <charconv>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace mortane {

// The numbers that one process uses in a folder: 0 to 999.
inline constexpr int kTemporaryNames = 1000;

// ".mortane-1234-0.tmp": the process that writes it, and a number that no other file has yet.
inline std::string TemporaryName(std::int64_t process, int number) {
  return ".mortane-" + std::to_string(process) + "-" + std::to_string(number) + ".tmp";
}

// The process that a file of exactly this form belongs to; nothing for any other name.
inline std::optional<std::int64_t> ProcessOfTemporary(std::string_view fileName) {
  constexpr std::string_view kOpening = ".mortane-";
  if (!fileName.starts_with(kOpening)) return std::nullopt;
  const char* const end = fileName.data() + fileName.size();
  std::int64_t process = 0;
  const auto owner = std::from_chars(fileName.data() + kOpening.size(), end, process);
  if (owner.ec != std::errc() || owner.ptr == end || process <= 0) return std::nullopt;
  int number = 0;
  if (std::from_chars(owner.ptr + 1, end, number).ec != std::errc() || number < 0 ||
      number >= kTemporaryNames || fileName != TemporaryName(process, number)) {
    return std::nullopt;
  }
  return process;
}

}  // namespace mortane
