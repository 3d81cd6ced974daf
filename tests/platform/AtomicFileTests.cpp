#include "platform/AtomicFile.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "common/Failure.h"
#include "support/TempFolder.h"

namespace mortane {
namespace {

using namespace std::string_literals;

std::size_t FilesIn(const std::string& folder) {
  std::size_t count = 0;
  for (const auto& entry : std::filesystem::directory_iterator(folder))
    count += !entry.path().empty();
  return count;
}

TEST(AtomicFile, CarriesEveryByte) {
  const test::TempFolder folder;
  const std::string path = folder.Path("\xC2\xB5 file.bin");
  for (const std::string& bytes : {"x"s, ""s, "\0\r\n\xFF"s, std::string(3000000, 'x')}) {
    WriteFileAtomically(path, bytes);
    ASSERT_EQ(ReadWholeFile(path), bytes);
  }
}

TEST(AtomicFile, ReplacesAnExistingFileAndLeavesNothingBeside) {
  const test::TempFolder folder;
  const std::string path = folder.Write("a.xml", "a long old content");
  WriteFileAtomically(path, "new");
  EXPECT_EQ(ReadWholeFile(path), "new");
  EXPECT_EQ(FilesIn(folder.Path("")), 1U);
}

TEST(AtomicFile, RefusesToReplaceAFolder) {
  const test::TempFolder folder;
  std::filesystem::create_directory(folder.Path("inner"));
  EXPECT_THROW(WriteFileAtomically(folder.Path("inner"), "x"), Failure);
  EXPECT_TRUE(std::filesystem::is_directory(folder.Path("inner")));
  EXPECT_EQ(FilesIn(folder.Path("")), 1U);
}

TEST(AtomicFile, NamesThePathAndTheReason) {
  const test::TempFolder folder;
  const std::string path = folder.Path("missing/a.xml");
  try {
    WriteFileAtomically(path, "x");
    ADD_FAILURE() << "nothing was raised";
  } catch (const Failure& failure) {
    EXPECT_EQ(failure.Number(), kMissingFileError);
    EXPECT_TRUE(failure.Description().starts_with("Cannot write " + path + ": "));
  }
  try {
    ReadWholeFile(path);
    ADD_FAILURE() << "nothing was raised";
  } catch (const Failure& failure) {
    EXPECT_EQ(failure.Number(), kMissingFileError);
    EXPECT_TRUE(failure.Description().starts_with("Cannot read " + path + ": "));
  }
}

TEST(ReadWholeFile, RefusesFoldersAndEmptyNames) {
  const test::TempFolder folder;
  EXPECT_THROW(ReadWholeFile(folder.Path("")), Failure);
  EXPECT_THROW(ReadWholeFile(""), Failure);
}

TEST(ReadWholeFile, TakesAFileOfJustTheLimit) {
  const test::TempFolder folder;
  const std::string path = folder.Write("a", "12345");
  EXPECT_EQ(ReadWholeFile(path, 5), "12345");
  EXPECT_THROW(ReadWholeFile(path, 4), Failure);
}

}  // namespace
}  // namespace mortane
