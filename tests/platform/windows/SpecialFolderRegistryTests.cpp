// The user's folder as the system keeps it.
#include <gtest/gtest.h>
#include <windows.h>

#include <shlobj.h>

#include <filesystem>
#include <string>

#include "platform/AtomicFile.h"
#include "platform/SpecialFolder.h"
#include "support/TempFolder.h"
#include "support/UniqueName.h"

namespace mortane {
namespace {

constexpr const wchar_t* kShellFolders =
    L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\User Shell Folders";

// A registry of the user's own for this process, with another folder for application data.
class OtherApplicationData {
 public:
  explicit OtherApplicationData(const std::string& folder) {
    key_ = L"Software\\" + test::PathOf(test::UniqueName().Text()).native();
    RegCreateKeyW(HKEY_CURRENT_USER, key_.c_str(), &own_);
    RegOverridePredefKey(HKEY_CURRENT_USER, own_);
    const std::wstring text = test::PathOf(folder).native();
    RegSetKeyValueW(HKEY_CURRENT_USER, kShellFolders, L"AppData", REG_EXPAND_SZ, text.c_str(),
                    static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
  }
  ~OtherApplicationData() {
    RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
    RegCloseKey(own_);
    RegDeleteTreeW(HKEY_CURRENT_USER, key_.c_str());
  }
  OtherApplicationData(const OtherApplicationData&) = delete;
  OtherApplicationData& operator=(const OtherApplicationData&) = delete;

 private:
  std::wstring key_;
  HKEY own_ = nullptr;
};

TEST(GetSpecialFolder, IsTheSystemsFolderForApplicationData) {
  wchar_t folder[MAX_PATH] = {};
  ASSERT_EQ(SHGetFolderPathW(nullptr, CSIDL_APPDATA, nullptr, SHGFP_TYPE_CURRENT, folder), S_OK);
  EXPECT_EQ(CSIDL_APPDATA, kApplicationDataFolder);
  EXPECT_EQ(GetSpecialFolder(kApplicationDataFolder), test::Utf8Of(folder));
  EXPECT_TRUE(std::filesystem::is_directory(folder));
}

TEST(GetSpecialFolder, MayHaveAnyLettersInItsPath) {
  const test::TempFolder folder;
  for (const char* name : {"plain", "two words",
                           "Gr\xC3\xBC\xC3\x9F"
                           "e",
                           "\xE6\x97\xA5\xE6\x9C\xAC"}) {
    const std::string path = folder.Path(name);
    std::filesystem::create_directory(test::PathOf(path));
    const OtherApplicationData other(path);
    EXPECT_EQ(GetSpecialFolder(kApplicationDataFolder), path);
    const std::string file = GetSpecialFolder(kApplicationDataFolder) + "\\a.ini";
    WriteFileAtomically(file, "x");
    EXPECT_EQ(test::TempFolder::Read(folder.Path(std::string(name) + "\\a.ini")), "x");
  }
}

TEST(GetSpecialFolder, IsEmptyWhenTheSystemHasNone) {
  const test::TempFolder folder;
  const OtherApplicationData other(folder.Path("missing"));
  EXPECT_EQ(GetSpecialFolder(kApplicationDataFolder), "");
}

}  // namespace
}  // namespace mortane
