#include "platform/SystemDescription.h"

#include <gtest/gtest.h>
#include <sys/utsname.h>

#include "platform/AtomicFile.h"

namespace mortane {
namespace {

TEST(SystemDescription, IsTheReleasesOwnNameAndTheProcessor) {
  utsname kernel = {};
  ASSERT_EQ(::uname(&kernel), 0);
  const std::string text = SystemDescription();
  const std::string processor = std::string(", ") + kernel.machine;
  ASSERT_TRUE(text.ends_with(processor)) << text;
  const std::string name = text.substr(0, text.size() - processor.size());
  EXPECT_FALSE(name.empty());
  EXPECT_NE(ReadWholeFile("/etc/os-release").find("PRETTY_NAME=\"" + name + "\"\n"),
            std::string::npos)
      << name;
}

}  // namespace
}  // namespace mortane
