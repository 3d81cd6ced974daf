// Profile files that cannot be read, and values that are half in quotation marks.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "platform/ProfileFile.h"
#include "support/TempFolder.h"
#include "support/posix/ChildProcess.h"

namespace mortane {
namespace {

constexpr char kContent[] = "[JoyPad]\nRight=1\n";

// The number of operations that claim to have written.
int Claims(const ProfileFile& file) {
  return static_cast<int>(file.WriteText("JoyPad", "Right", "7")) +
         static_cast<int>(file.DeleteKey("JoyPad", "Right")) +
         static_cast<int>(file.DeleteSection("JoyPad"));
}

TEST(ProfileFileFaults, AFolderIsNoFileToWrite) {
  const test::TempFolder folder;
  EXPECT_EQ(Claims(ProfileFile(folder.Path(""))), 0);
}

TEST(ProfileFileFaults, AFileThatCannotBeReadIsNotWritten) {
  const test::TempFolder folder;
  const std::string path = folder.Write("Setup.ini", kContent);
  std::filesystem::permissions(folder.Path(""), std::filesystem::perms::all);
  std::filesystem::permissions(path, std::filesystem::perms::others_write);
  test::ChildProcess child([&path](const test::ChildProcess::Side&) {
    test::DropPrivileges();
    return Claims(ProfileFile(path));
  });
  EXPECT_EQ(child.Wait(), 0);
  std::filesystem::permissions(path, std::filesystem::perms::owner_all);
  EXPECT_EQ(test::TempFolder::Read(path), kContent);
}

TEST(ProfileFileFaults, AFileThatCannotBeReplacedStays) {
  const test::TempFolder folder;
  const std::string path = folder.Write("Setup.ini", kContent);
  std::filesystem::permissions(
      path, std::filesystem::perms::owner_read | std::filesystem::perms::others_read);
  std::filesystem::permissions(folder.Path(""), std::filesystem::perms::all);
  test::ChildProcess child([&path](const test::ChildProcess::Side&) {
    test::DropPrivileges();
    return Claims(ProfileFile(path));
  });
  EXPECT_EQ(child.Wait(), 0);
  EXPECT_EQ(test::TempFolder::Read(path), kContent);
}

struct MarkRow {
  const char* value;
  const char* text;
};

TEST(ProfileFileFaults, QuotationMarksCountInPairs) {
  const MarkRow rows[] = {
      {"\"", "\""},     {"'", "'"},       {"\"\"", ""},           {"''", ""},
      {"\"a'", "\"a'"}, {"'a\"", "'a\""}, {"\"\"a\"\"", "\"a\""}, {"a\"", "a\""},
      {"aba", "aba"}};
  for (const MarkRow& row : rows) {
    const test::TempFolder folder;
    const ProfileFile file(folder.Write("Setup.ini", "[A]\nb=" + std::string(row.value)));
    EXPECT_EQ(file.Text("A", "b", "?"), row.text) << row.value;
  }
}

}  // namespace
}  // namespace mortane
