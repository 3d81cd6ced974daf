#include <gtest/gtest.h>
#include <sys/resource.h>

#include <csignal>
#include <filesystem>
#include <string>

#include "common/Failure.h"
#include "record/Backups.h"
#include "support/TempFolder.h"
#include "support/posix/ChildProcess.h"

namespace mortane::test {
namespace {

namespace fs = std::filesystem;

constexpr int kKept = 0;
constexpr int kRefused = 1;

DomDocument Large() {
  DomDocument document;
  DomNode root = document.CreateElement("Setup");
  root.SetAttribute("Name", std::string(100000, 'x'));
  document.Append(root);
  return document;
}

int Try(const Backups& backups, const std::string& reason) {
  try {
    backups.Keep(Large());
    return kKept;
  } catch (const Failure& failure) {
    const std::string& text = failure.Description();
    const bool tells =
        text.find(reason) != std::string::npos && text.find(backups.Folder()) != std::string::npos;
    return tells ? kRefused : 2;
  }
}

TEST(AKeptState, OnAFullDiskIsAFailureAndNoFile) {
  const TempFolder folder;
  const Backups backups(folder.Path(""), "Alpha");
  ChildProcess child([&](const ChildProcess::Side&) {
    ::signal(SIGXFSZ, SIG_IGN);
    const struct rlimit limit = {4096, 4096};
    if (::setrlimit(RLIMIT_FSIZE, &limit) != 0) return 3;
    return Try(backups, "File too large");
  });
  EXPECT_EQ(child.Wait(), kRefused);
  EXPECT_TRUE(fs::is_empty(backups.Folder()));
}

TEST(AKeptState, WithoutPermissionIsAFailure) {
  const TempFolder folder;
  fs::permissions(folder.Path(""),
                  fs::perms::owner_all | fs::perms::others_read | fs::perms::others_exec);
  const Backups backups(folder.Path(""), "Alpha");
  const auto tryAsNobody = [&](const std::string& reason) {
    ChildProcess child([&](const ChildProcess::Side&) {
      DropPrivileges();
      return Try(backups, reason);
    });
    return child.Wait();
  };
  EXPECT_EQ(tryAsNobody("Cannot make the folder"), kRefused);
  fs::create_directory(backups.Folder());
  EXPECT_EQ(tryAsNobody("Permission denied"), kRefused);
  EXPECT_TRUE(fs::is_empty(backups.Folder()));
}

TEST(KeptStates, ThatCannotBeRemovedAreAFailure) {
  const TempFolder folder;
  fs::permissions(folder.Path(""), fs::perms::all);
  const Backups backups(folder.Path(""), "Alpha");
  const Backup kept = backups.Keep(Large());
  fs::permissions(backups.Folder(),
                  fs::perms::owner_all | fs::perms::others_read | fs::perms::others_exec);
  ChildProcess child([&](const ChildProcess::Side&) {
    DropPrivileges();
    try {
      backups.Prune(0);
      return kKept;
    } catch (const Failure& failure) {
      return failure.Description() == "Cannot remove " + kept.path + ": Permission denied"
                 ? kRefused
                 : 2;
    }
  });
  EXPECT_EQ(child.Wait(), kRefused);
  EXPECT_EQ(backups.List().size(), 1U);
}

}  // namespace
}  // namespace mortane::test
