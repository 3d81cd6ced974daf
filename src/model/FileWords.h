// Words that stand for numbers in the settings file.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace mortane {

struct FileWord {
  std::string_view text;
  std::int32_t value;
};
using FileWords = std::span<const FileWord>;

inline constexpr std::string_view kUnknownWord = "Unknown";

// The word of a value, kUnknownWord when it has none.
std::string_view WordOf(FileWords words, std::int32_t value);

// The value of a word without regard to case: `current` for kUnknownWord, nothing for a text that
// is none of the words.
std::optional<std::int32_t> ValueOf(FileWords words, std::string_view text, std::int32_t current);

}  // namespace mortane
