#include "platform/Folder.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "support/TempFolder.h"

namespace mortane {
namespace {

namespace fs = std::filesystem;

TEST(MakeFolder, MakesTheFolderAndThoseAboveIt) {
  const test::TempFolder folder;
  const std::string path = folder.Path("one/two/three");
  EXPECT_TRUE(MakeFolder(path));
  EXPECT_TRUE(fs::is_directory(path));
}

TEST(MakeFolder, TakesBlanksAndOtherAlphabetsInAName) {
  const test::TempFolder folder;
  EXPECT_TRUE(MakeFolder(folder.Path("my data \xC3\xA9/in it/")));
  std::size_t entries = 0;
  for (fs::directory_iterator entry(folder.Path("")), end; entry != end; ++entry) ++entries;
  EXPECT_EQ(entries, 1U);
}

TEST(MakeFolder, LeavesAFolderThatStandsAsItIs) {
  const test::TempFolder folder;
  folder.Write("kept.txt", "kept");
  EXPECT_TRUE(MakeFolder(folder.Path("")));
  EXPECT_TRUE(MakeFolder(folder.Path(".")));
  EXPECT_EQ(test::TempFolder::Read(folder.Path("kept.txt")), "kept");
}

TEST(MakeFolder, AnswersFalseWhereAFileStandsInTheWay) {
  const test::TempFolder folder;
  folder.Write("file", "kept");
  EXPECT_FALSE(MakeFolder(folder.Path("file")));
  EXPECT_FALSE(MakeFolder(folder.Path("file/below/it")));
  EXPECT_EQ(test::TempFolder::Read(folder.Path("file")), "kept");
}

TEST(MakeFolder, AnswersFalseForNoName) {
  EXPECT_FALSE(MakeFolder(""));
}

}  // namespace
}  // namespace mortane
