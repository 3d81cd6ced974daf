#include "model/FileWords.h"

#include <algorithm>

#include "common/Text.h"

namespace mortane {

std::string_view WordOf(FileWords words, std::int32_t value) {
  const auto word = std::find_if(words.begin(), words.end(),
                                 [&](const FileWord& row) { return row.value == value; });
  return word == words.end() ? kUnknownWord : word->text;
}

std::optional<std::int32_t> ValueOf(FileWords words, std::string_view text, std::int32_t current) {
  if (EqualsIgnoringCase(text, kUnknownWord)) return current;
  const auto word = std::find_if(words.begin(), words.end(), [&](const FileWord& row) {
    return EqualsIgnoringCase(row.text, text);
  });
  if (word == words.end()) return std::nullopt;
  return word->value;
}

}  // namespace mortane
