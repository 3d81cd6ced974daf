#include "platform/Environment.h"

#include <gtest/gtest.h>

namespace mortane::test {
namespace {

TEST(Environment, GivesWhatIsSetAndNothingForWhatIsNot) {
  EXPECT_FALSE(EnvironmentVariable("PATH").empty());
  EXPECT_EQ(EnvironmentVariable("MORTANE_NOBODY_SETS_THIS"), "");
}

}  // namespace
}  // namespace mortane::test
