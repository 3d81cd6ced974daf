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

}  // namespace
}  // namespace mortane::test
