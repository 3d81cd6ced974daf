#include "platform/SystemDescription.h"

#include <gtest/gtest.h>
#include <sys/utsname.h>

#include "platform/AtomicFile.h"
#include "platform/Folder.h"
#include "support/posix/OwnSystemRoot.h"

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

struct ReleaseRow {
  const char* file;
  const char* name;  // empty for that of the kernel
};

TEST(SystemDescription, IsThatOfTheKernelWhereTheReleaseHasNoName) {
  utsname kernel = {};
  ASSERT_EQ(::uname(&kernel), 0);
  const ReleaseRow rows[] = {
      {"NAME=\"A\"\nPRETTY_NAME=\"A system 4 (new)\"\nID=a\n", "A system 4 (new)"},
      {"PRETTY_NAME=Plain", "Plain"},
      {"NAME=\"A\"\n", ""},
      {"", ""},
  };
  for (const ReleaseRow& row : rows) {
    const test::OwnSystemRoot root;
    ASSERT_TRUE(MakeFolder(root.Path("etc")));
    root.Write("etc/os-release", row.file);
    std::string expected = row.name;
    if (expected.empty()) expected = std::string(kernel.sysname) + " " + kernel.release;
    EXPECT_EQ(SystemDescription(), expected + ", " + kernel.machine) << row.file;
  }
}

}  // namespace
}  // namespace mortane
