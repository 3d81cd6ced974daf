#include "platform/CommandLine.h"

#include <gtest/gtest.h>

namespace mortane {
namespace {

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

}  // namespace
}  // namespace mortane
