#include <gtest/gtest.h>

#include <filesystem>

#include "controller/simulator/SharedBench.h"
#include "support/TempFolder.h"

namespace mortane::controller::test {
namespace {

TEST(SharedBench, HasOneLockForAFileAndALinkToIt) {
  const mortane::test::TempFolder folder;
  const std::string path = folder.Write("bench.xml", "<Bench/>");
  std::filesystem::create_symlink("bench.xml", folder.Path("link.xml"));
  EXPECT_EQ(SharedBench::LockName(folder.Path("link.xml")), SharedBench::LockName(path));
}

}  // namespace
}  // namespace mortane::controller::test
