#include <gtest/gtest.h>
#include <pwd.h>
#include <unistd.h>

#include <cstdlib>
#include <optional>
#include <string>

#include "platform/SpecialFolder.h"
#include "support/TempFolder.h"
#include "support/posix/ChildProcess.h"

namespace mortane {
namespace {

// Sets a variable of the environment and brings its old value back.
class Variable {
 public:
  Variable(const char* name, const char* value) : name_(name) {
    if (const char* old = std::getenv(name)) old_ = old;
    Set(value);
  }
  ~Variable() { Set(old_ ? old_->c_str() : nullptr); }
  Variable(const Variable&) = delete;
  Variable& operator=(const Variable&) = delete;

 private:
  void Set(const char* value) const {
    if (value == nullptr) {
      ::unsetenv(name_);
    } else {
      ::setenv(name_, value, 1);
    }
  }

  const char* name_;
  std::optional<std::string> old_;
};

struct Row {
  const char* configured;
  const char* home;
  const char* folder;
};

TEST(GetSpecialFolder, FollowsTheConfigurationFolderAndThenHome) {
  const Row rows[] = {
      {"/c", "/people/u", "/c"},
      {"/c d\xC3\xA9/", "/people/u", "/c d\xC3\xA9"},
      {"", "/people/u", "/people/u/.config"},
      {nullptr, "/people/u/", "/people/u/.config"},
      {"relative", "/people/u", "/people/u/.config"},
      {"/", "/people/u", "/"},
      {"//", "/people/u", "/"},
  };
  for (const Row& row : rows) {
    const Variable configured("XDG_CONFIG_HOME", row.configured);
    const Variable home("HOME", row.home);
    EXPECT_EQ(GetSpecialFolder(kApplicationDataFolder), row.folder);
  }
}

TEST(UserDataFolder, FollowsTheDataFolderAndThenHome) {
  const Row rows[] = {
      {"/d/", "/people/u", "/d"},
      {nullptr, "/people/u", "/people/u/.local/share"},
      {"relative", "/people/u/", "/people/u/.local/share"},
  };
  for (const Row& row : rows) {
    const Variable configured("XDG_DATA_HOME", row.configured);
    const Variable home("HOME", row.home);
    EXPECT_EQ(UserDataFolder(), row.folder);
  }
}

TEST(GetSpecialFolder, AsksTheUserTableWithoutHome) {
  const Variable configured("XDG_CONFIG_HOME", nullptr);
  const Variable home("HOME", nullptr);
  const struct passwd* user = ::getpwuid(::getuid());
  const std::string expected =
      user == nullptr ? std::string() : std::string(user->pw_dir) + "/.config";
  EXPECT_EQ(GetSpecialFolder(kApplicationDataFolder), expected);
}

// Root becomes a user without an entry, others go where no entry can be read. Where the system lets
// a user do neither, the user has an entry.
TEST(SpecialFolders, AreNoneForAUserWithoutHomeAndEntry) {
  const test::TempFolder root;
  const bool mayEnterRoot = test::MayEnterRoot();
  test::ChildProcess child([&](const test::ChildProcess::Side&) {
    constexpr uid_t kUnknown = 54321;
    const bool isUnknown = ::geteuid() == 0 && ::setuid(kUnknown) == 0;
    if (!isUnknown && mayEnterRoot) test::EnterRoot(root.Path(""));
    const Variable config("XDG_CONFIG_HOME", nullptr);
    const Variable data("XDG_DATA_HOME", nullptr);
    const Variable home("HOME", nullptr);
    const struct passwd* user = ::getpwuid(::getuid());
    const std::string folder = user == nullptr ? "" : user->pw_dir;
    const auto below = [&](const char* name) { return folder.empty() ? folder : folder + name; };
    const bool foldersAreRight = GetSpecialFolder(kApplicationDataFolder) == below("/.config") &&
                                 UserDataFolder() == below("/.local/share");
    return foldersAreRight && (user != nullptr || DocumentsFolder().empty()) ? 0 : 1;
  });
  EXPECT_EQ(child.Wait(), 0);
}

TEST(DocumentsFolder, IsTheOneThatTheDesktopNamesElseTheHomeFolder) {
  const test::TempFolder folder;
  const Variable config("XDG_CONFIG_HOME", folder.Path(".").c_str());
  const Variable home("HOME", "/homes/someone/");
  EXPECT_EQ(DocumentsFolder(), "/homes/someone");
  folder.Write("user-dirs.dirs",
               "# a comment\nXDG_MUSIC_DIR=\"$HOME/M\"\nXDG_DOCUMENTS_DIR=\"$HOME/D \xC3\xA4\"\n");
  EXPECT_EQ(DocumentsFolder(), "/homes/someone/D \xC3\xA4");
  folder.Write("user-dirs.dirs", "XDG_DOCUMENTS_DIR=\"/data/documents/\"\n");
  EXPECT_EQ(DocumentsFolder(), "/data/documents");
  for (const char* wrong : {"XDG_DOCUMENTS_DIR=\"", "XDG_DOCUMENTS_DIR=\"here\"\n", "nonsense",
                            "XDG_DOCUMENTS_DIR=\"/data\n", "XDG_VIDEOS_DIR=\"/data/videos\"\n"}) {
    folder.Write("user-dirs.dirs", wrong);
    EXPECT_EQ(DocumentsFolder(), "/homes/someone") << wrong;
  }
}

}  // namespace
}  // namespace mortane
