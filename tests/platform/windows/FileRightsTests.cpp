// Attributes and access rights of files that are saved.
#include <gtest/gtest.h>
#include <windows.h>

#include <aclapi.h>
#include <sddl.h>

#include <filesystem>
#include <string>

#include "common/Failure.h"
#include "platform/AtomicFile.h"
#include "support/TempFolder.h"

namespace mortane {
namespace {

using test::PathOf;
using test::TempFolder;

DWORD AttributesOf(const std::string& path) {
  return GetFileAttributesW(PathOf(path).c_str());
}

void SetAttributes(const std::string& path, DWORD attributes) {
  ASSERT_TRUE(SetFileAttributesW(PathOf(path).c_str(), attributes));
}

TEST(SavedFile, KeepsItsAttributes) {
  const TempFolder folder;
  const std::string path = folder.Write("a.xml", "old");
  constexpr DWORD kSets[] = {FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM, FILE_ATTRIBUTE_ARCHIVE};
  for (const DWORD attributes : kSets) {
    SetAttributes(path, attributes);
    const DWORD before = AttributesOf(path);
    WriteFileAtomically(path, "new");
    EXPECT_EQ(AttributesOf(path), before);
    EXPECT_EQ(ReadWholeFile(path), "new");
  }
}

TEST(SavedFile, ThatIsNewIsAnOrdinaryOne) {
  const TempFolder folder;
  const std::string path = folder.Path("a.xml");
  WriteFileAtomically(path, "new");
  constexpr DWORD kSpecial = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM |
                             FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_TEMPORARY;
  EXPECT_EQ(AttributesOf(path) & kSpecial, 0U);
}

TEST(SavedFile, ThatIsReadOnlyIsRefusedAndLeftAsItIs) {
  const TempFolder folder;
  const std::string path = folder.Write("a.xml", "old");
  SetAttributes(path, FILE_ATTRIBUTE_READONLY);
  EXPECT_THROW(WriteFileAtomically(path, "new"), Failure);
  EXPECT_EQ(ReadWholeFile(path), "old");
  EXPECT_NE(AttributesOf(path) & FILE_ATTRIBUTE_READONLY, 0U);
  const std::filesystem::directory_iterator entries(PathOf(folder.Path("")));
  EXPECT_EQ(std::distance(entries, {}), 1);
  SetAttributes(path, FILE_ATTRIBUTE_NORMAL);
}

std::string RightsOf(const std::string& path) {
  PSECURITY_DESCRIPTOR descriptor = nullptr;
  if (GetNamedSecurityInfoW(PathOf(path).c_str(), SE_FILE_OBJECT, DACL_SECURITY_INFORMATION,
                            nullptr, nullptr, nullptr, nullptr, &descriptor) != ERROR_SUCCESS) {
    return "unknown";
  }
  wchar_t* text = nullptr;
  ConvertSecurityDescriptorToStringSecurityDescriptorW(descriptor, SDDL_REVISION_1,
                                                       DACL_SECURITY_INFORMATION, &text, nullptr);
  const std::string rights = test::Utf8Of(text);
  LocalFree(text);
  LocalFree(descriptor);
  return rights;
}

// Takes the entry of everyone out of the list, which inherits nothing any more.
void CloseToOthers(const std::string& path) {
  const std::string rights = RightsOf(path);
  const std::size_t begin = rights.rfind('(', rights.find(";WD)"));
  ASSERT_NE(begin, std::string::npos) << rights;
  const std::string closed =
      "D:P" + rights.substr(2, begin - 2) + rights.substr(rights.find(')', begin) + 1);
  PSECURITY_DESCRIPTOR descriptor = nullptr;
  ASSERT_TRUE(ConvertStringSecurityDescriptorToSecurityDescriptorW(
      PathOf(closed).c_str(), SDDL_REVISION_1, &descriptor, nullptr));
  EXPECT_TRUE(SetFileSecurityW(PathOf(path).c_str(),
                               DACL_SECURITY_INFORMATION | PROTECTED_DACL_SECURITY_INFORMATION,
                               descriptor));
  LocalFree(descriptor);
}

TEST(SavedFile, KeepsItsAccessRights) {
  const TempFolder folder;
  const std::string path = folder.Write("a.xml", "old");
  const std::string open = RightsOf(path);
  CloseToOthers(path);
  const std::string closed = RightsOf(path);
  ASSERT_NE(closed, open) << "the test shows nothing with the rights of any new file";
  WriteFileAtomically(path, "new");
  EXPECT_EQ(RightsOf(path), closed);
  EXPECT_EQ(ReadWholeFile(path), "new");
}

}  // namespace
}  // namespace mortane
