#include "platform/CommandLine.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "support/Utf8Path.h"

namespace mortane {
namespace {

TEST(GetCommandLineArray, BeginsWithTheProgramsPath) {
  char name[] = "made-up";
  char* arguments[] = {name, nullptr};
  const std::vector<std::string> array = GetCommandLineArray(1, arguments);
  ASSERT_GE(array.size(), 1U);
  const std::filesystem::path program = test::PathOf(array[0]);
  EXPECT_TRUE(program.is_absolute()) << array[0];
  EXPECT_TRUE(std::filesystem::exists(program)) << array[0];
  EXPECT_EQ(program.stem(), "platform_tests");
}

}  // namespace
}  // namespace mortane
