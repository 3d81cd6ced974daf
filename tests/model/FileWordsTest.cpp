#include "model/FileWords.h"

#include <gtest/gtest.h>

#include <array>

namespace mortane::test {
namespace {

constexpr std::array<FileWord, 3> kWords{{{"OFF", 0}, {"ON", 1}, {"AUTO", 5}}};

TEST(FileWords, StandForTheirValues) {
  for (const FileWord& row : kWords) {
    EXPECT_EQ(WordOf(kWords, row.value), row.text);
    EXPECT_EQ(ValueOf(kWords, row.text, 9), row.value);
  }
  EXPECT_EQ(ValueOf(kWords, "auto", 9), 5);
}

TEST(FileWords, OfAnotherValueAreUnknownAndUnknownKeepsWhatThereIs) {
  for (const std::int32_t value : {-1, 2, 4, 6}) {
    EXPECT_EQ(WordOf(kWords, value), "Unknown");
    EXPECT_EQ(ValueOf(kWords, "UNKNOWN", value), value);
  }
  for (const char* text : {"", "OF", "ONE", "1", " ON"}) {
    EXPECT_EQ(ValueOf(kWords, text, 9), std::nullopt) << text;
  }
}

}  // namespace
}  // namespace mortane::test
