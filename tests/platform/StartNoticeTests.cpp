#include "platform/StartNotice.h"

#include <gtest/gtest.h>

namespace mortane::test {
namespace {

TEST(StartNotice, IsOneLineOnStandardError) {
  testing::internal::CaptureStderr();
  ShowStartNotice("mortane", "Cannot read bench.xml: No such file");
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "mortane: Cannot read bench.xml: No such file\n");
}

TEST(StartAnswer, IsTheTextOnStandardOutput) {
  testing::internal::CaptureStdout();
  EXPECT_TRUE(ShowStartAnswer("Mortane", "mortane 1.2.3"));
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "mortane 1.2.3\n");
}

}  // namespace
}  // namespace mortane::test
