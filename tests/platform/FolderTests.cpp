#include "platform/Folder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "common/Failure.h"
#include "common/FileErrors.h"
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

TEST(NamesInFolder, AreThoseOfFilesAndFolders) {
  const test::TempFolder folder;
  EXPECT_TRUE(NamesInFolder(folder.Path("")).empty());
  folder.Write("a.xml", "x");
  folder.Write(".hidden", "x");
  folder.Write("\xC3\xA9 b", "x");
  ASSERT_TRUE(MakeFolder(folder.Path("sub/deep")));
  std::vector<std::string> names = NamesInFolder(folder.Path(""));
  std::sort(names.begin(), names.end());
  EXPECT_EQ(names, (std::vector<std::string>{".hidden", "a.xml", "sub", "\xC3\xA9 b"}));
}

TEST(NamesInFolder, AreNoneWhereNoFolderIs) {
  const test::TempFolder folder;
  const std::string file = folder.Write("a.xml", "x");
  for (const std::string& path : {file, folder.Path("missing"), std::string()}) {
    EXPECT_TRUE(NamesInFolder(path).empty()) << path;
  }
}

TEST(RemoveFile, RemovesIt) {
  const test::TempFolder folder;
  const std::string file = folder.Write("a.xml", "x");
  folder.Write("b.xml", "x");
  RemoveFile(file);
  EXPECT_EQ(NamesInFolder(folder.Path("")), std::vector<std::string>{"b.xml"});
}

TEST(RemoveFile, TellsOfAFileThatIsMissing) {
  const test::TempFolder folder;
  const std::string path = folder.Path("missing.xml");
  try {
    RemoveFile(path);
    FAIL() << "removed what is not there";
  } catch (const Failure& failure) {
    EXPECT_EQ(failure.Number(), kMissingFileError);
    EXPECT_TRUE(failure.Description().starts_with("Cannot remove " + path + ": "))
        << failure.Description();
  }
}

TEST(RemoveFile, LeavesAFolderAlone) {
  const test::TempFolder folder;
  ASSERT_TRUE(MakeFolder(folder.Path("sub")));
  try {
    RemoveFile(folder.Path("sub"));
    FAIL() << "removed a folder";
  } catch (const Failure& failure) {
    EXPECT_EQ(failure.Number(), kFileError);
  }
  EXPECT_TRUE(fs::is_directory(folder.Path("sub")));
}

}  // namespace
}  // namespace mortane
