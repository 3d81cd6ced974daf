#include "controller/InstalledLibrary.h"

#include <gtest/gtest.h>

namespace mortane::controller::test {
namespace {

TEST(InstalledLibrary, IsNotMadeForThisSystem) {
  EXPECT_EQ(OpenInstalledLibrary(), nullptr);
}

}  // namespace
}  // namespace mortane::controller::test
