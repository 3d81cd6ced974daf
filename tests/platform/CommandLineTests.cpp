#include "platform/CommandLine.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace mortane {
namespace {

TEST(GetCommandLineArray, BeginsWithTheProgramsPath) {
  char name[] = "made-up";
  char* arguments[] = {name, nullptr};
  const std::vector<std::string> array = GetCommandLineArray(1, arguments);
  ASSERT_EQ(array.size(), 1U);
  EXPECT_TRUE(std::filesystem::exists(std::filesystem::u8path(array[0]))) << array[0];
  EXPECT_EQ(std::filesystem::path(array[0]).stem(), "platform_tests");
}

#ifndef _WIN32
TEST(GetCommandLineArray, GivesEveryArgumentWhole) {
  char name[] = "made-up";
  char blanks[] = " Quay North ";
  char empty[] = "";
  char simulator[] = "/SIM";
  char micro[] = "\xC2\xB5";
  char* arguments[] = {name, blanks, empty, simulator, micro, nullptr};
  const std::vector<std::string> array = GetCommandLineArray(5, arguments);
  ASSERT_EQ(array.size(), 5U);
  EXPECT_EQ(std::vector<std::string>(array.begin() + 1, array.end()),
            (std::vector<std::string>{" Quay North ", "", "/SIM", "\xC2\xB5"}));
}

TEST(GetCommandLineArray, OfNothingIsTheProgramAlone) {
  char* arguments[] = {nullptr};
  EXPECT_EQ(GetCommandLineArray(0, arguments).size(), 1U);
}
#endif

}  // namespace
}  // namespace mortane
