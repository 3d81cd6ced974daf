#include "platform/FilePath.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <string>

#include "support/TempFolder.h"

namespace mortane {
namespace {

// A name with blanks, and one that an 8-bit code page cannot hold.
constexpr const char* kNames[] = {"a.xml", "a b.xml", "\xC3\xA4 \xE6\x97\xA5.xml"};

TEST(ResolvedPath, IsTheSameForAllWaysToAFile) {
  const test::TempFolder folder;
  std::filesystem::create_directory(folder.Path("inner"));
  for (const char* name : kNames) {
    const std::string path = folder.Path(name);
    const std::string missing = ResolvedPath(path);
    folder.Write(name, "x");
    for (const std::string& way :
         {std::string(name), std::string("./") + name, std::string("inner/../") + name}) {
      EXPECT_EQ(ResolvedPath(folder.Path(way)), missing) << way;
    }
    EXPECT_NE(ResolvedPath(folder.Path(std::string("inner/") + name)), missing);
  }
  EXPECT_NE(ResolvedPath(folder.Path("\xE6\x97\xA5")), ResolvedPath(folder.Path("\xE6\x97\xA6")));
}

TEST(ResolvedPath, TakesAPathThatIsNotRooted) {
  const test::TempFolder folder;
  const std::filesystem::path before = std::filesystem::current_path();
  std::filesystem::current_path(test::PathOf(folder.Path("")));
  const std::string relative = ResolvedPath("a.xml");
  std::filesystem::current_path(before);
  EXPECT_EQ(relative, ResolvedPath(folder.Path("a.xml")));
}

// One name in sixteen has a zero in front of each half.
TEST(PathToken, HasSixteenDigitsThatStandForTheFile) {
  const test::TempFolder folder;
  std::filesystem::create_directory(folder.Path("inner"));
  std::set<std::string> tokens;
  for (int i = 0; i < 200; ++i) {
    const std::string name = std::to_string(i);
    const std::string token = PathToken(folder.Path(name));
    EXPECT_EQ(token.size(), 16U) << token;
    EXPECT_EQ(token.find_first_not_of("0123456789ABCDEF"), std::string::npos) << token;
    EXPECT_EQ(PathToken(folder.Path("inner/../" + name)), token);
    tokens.insert(token);
  }
  EXPECT_EQ(tokens.size(), 200U);
}

TEST(IsMissing, IsTrueWhereNothingStands) {
  const test::TempFolder folder;
  for (const char* name : kNames) {
    EXPECT_TRUE(IsMissing(folder.Path(name))) << name;
    EXPECT_TRUE(IsMissing(folder.Path(std::string("missing/") + name))) << name;
    folder.Write(name, "x");
    EXPECT_FALSE(IsMissing(folder.Path(name))) << name;
  }
  EXPECT_FALSE(IsMissing(folder.Path("")));
  EXPECT_TRUE(IsMissing(""));
}

}  // namespace
}  // namespace mortane
