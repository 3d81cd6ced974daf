#include "record/Backups.h"

#include <gtest/gtest.h>

#include <cctype>
#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include "common/Failure.h"
#include "support/TempFolder.h"

namespace mortane::test {
namespace {

using namespace std::chrono;

constexpr BackupTime kNoon = sys_days(year(2026) / 3 / 9) + hours(12) + milliseconds(7);

struct Kept {
  TempFolder folder;
  BackupTime now = kNoon;

  Backups Of(const std::string& device) {
    return Backups(folder.Path("states"), device, [this] { return now; });
  }
};

DomDocument Named(const std::string& name) {
  DomDocument document;
  DomNode root = document.CreateElement("Setup");
  root.SetAttribute("Name", name);
  document.Append(root);
  return document;
}

std::string Content(const Backup& backup) {
  return TempFolder::Read(backup.path);
}

std::string FileNameOf(const Backup& backup) {
  return std::filesystem::path(backup.path).filename().string();
}

TEST(TheTimeInAFileName, SortsAsItsTimes) {
  EXPECT_EQ(TimeInFileName(kNoon), "2026-03-09T12-00-00.007Z");
  EXPECT_EQ(TimeInFileName(kNoon + hours(11) + minutes(59) + seconds(58) + milliseconds(991)),
            "2026-03-09T23-59-58.998Z");
}

TEST(AKeptState, IsAFileOfItsDevicesFolderNamedByTime) {
  Kept kept;
  const Backup backup = kept.Of("Alpha").Keep(Named("one"));
  EXPECT_EQ(FileNameOf(backup), "2026-03-09T12-00-00.007Z.xml");
  EXPECT_EQ(backup.time, kNoon);
  EXPECT_EQ(Content(backup), R"(<Setup Name="one"/>)");
  EXPECT_EQ(std::filesystem::path(backup.path).parent_path(),
            std::filesystem::path(kept.folder.Path("states")) / DeviceFolderName("Alpha"));
}

TEST(AKeptState, IsNeverWrittenOverAnother) {
  Kept kept;
  const Backups backups = kept.Of("Alpha");
  std::vector<Backup> written;
  for (const char* name : {"1", "2", "3"}) written.push_back(backups.Keep(Named(name)));
  for (std::size_t i = 0; i < written.size(); ++i) {
    EXPECT_EQ(Content(written[i]), R"(<Setup Name=")" + std::to_string(i + 1) + R"("/>)");
  }
  const std::vector<Backup> list = backups.List();
  ASSERT_EQ(list.size(), 3U);
  for (std::size_t i = 0; i < list.size(); ++i) EXPECT_EQ(list[i].path, written[2 - i].path);
}

TEST(KeptStates, AreListedTheNewestFirst) {
  Kept kept;
  const Backups backups = kept.Of("Alpha");
  for (const int day : {2, 0, 400, 1}) {
    kept.now = kNoon + days(day);
    backups.Keep(Named(std::to_string(day)));
  }
  std::vector<BackupTime> times;
  for (const Backup& backup : backups.List()) times.push_back(backup.time);
  EXPECT_EQ(times,
            (std::vector<BackupTime>{kNoon + days(400), kNoon + days(2), kNoon + days(1), kNoon}));
}

TEST(KeptStates, OfOneDeviceAreNotThoseOfAnother) {
  Kept kept;
  const std::vector<std::string> devices{"Alpha",
                                         "alpha",
                                         "Al pha",
                                         "Al/pha",
                                         "Al_pha",
                                         "..",
                                         "",
                                         "CON",
                                         "\xC3\xA9",
                                         std::string("A\0b", 3),
                                         std::string(300, 'x'),
                                         std::string(301, 'x')};
  for (const std::string& device : devices) kept.Of(device).Keep(Named("x"));
  for (const std::string& device : devices) EXPECT_EQ(kept.Of(device).List().size(), 1U) << device;
  std::set<std::string> names;
  for (const std::string& device : devices) {
    std::string name = DeviceFolderName(device);
    for (char& c : name) c = static_cast<char>(std::tolower(c));
    EXPECT_TRUE(names.insert(name).second) << "differs in case alone: " << name;
    EXPECT_EQ(name.find_first_not_of("abcdefghijklmnopqrstuvwxyz0123456789-_"), std::string::npos)
        << name;
    EXPECT_LE(name.size(), 100U);
  }
}

TEST(KeptStates, LeaveOtherFilesOfTheFolderAlone) {
  Kept kept;
  const Backups backups = kept.Of("Alpha");
  backups.Keep(Named("kept"));
  const std::string folder = "states/" + DeviceFolderName("Alpha") + "/";
  const std::vector<std::string> others{"notes.txt",
                                        "2026-03-09T12-00-00.007Z.xml~",
                                        "2026-03-09T12-00-00.007Z",
                                        "2026-13-09T12-00-00.007Z.xml",
                                        "2026-02-30T12-00-00.007Z.xml",
                                        "2026-03-09T25-00-00.007Z.xml",
                                        "2026-03-09 12-00-00.007Z.xml",
                                        "2026-03-09T12-00-00.007Z-1.xml",
                                        "2026-03-09T12-00-00.007Z-02.xml",
                                        "2026-03-09T12-00-00.007Z-x.xml",
                                        "x026-03-09T12-00-00.007Z.xml",
                                        "2026-03-09T12-00-00.00AZ.xml",
                                        "2026-03-09T12-00-00.1-7Z.xml"};
  for (const std::string& name : others) kept.folder.Write(folder + name, "other");
  EXPECT_EQ(backups.List().size(), 1U);
  EXPECT_EQ(backups.Prune(0), 1U);
  EXPECT_TRUE(backups.List().empty());
  for (const std::string& name : others) {
    EXPECT_TRUE(std::filesystem::exists(kept.folder.Path(folder + name))) << name;
  }
}

TEST(KeptStates, ArePrunedToTheNewest) {
  Kept kept;
  const Backups backups = kept.Of("Alpha");
  for (int day = 0; day < 5; ++day) {
    kept.now = kNoon + days(day);
    backups.Keep(Named(std::to_string(day)));
  }
  EXPECT_EQ(backups.Prune(5), 0U);
  EXPECT_EQ(backups.Prune(9), 0U);
  EXPECT_EQ(backups.Prune(2), 3U);
  const std::vector<Backup> list = backups.List();
  ASSERT_EQ(list.size(), 2U);
  EXPECT_EQ(list[0].time, kNoon + days(4));
  EXPECT_EQ(list[1].time, kNoon + days(3));
}

TEST(KeptStates, AreNoneBeforeTheFirst) {
  Kept kept;
  EXPECT_TRUE(kept.Of("Alpha").List().empty());
  EXPECT_EQ(kept.Of("Alpha").Prune(0), 0U);
  EXPECT_FALSE(std::filesystem::exists(kept.folder.Path("states")));
}

TEST(AKeptState, ThatCannotBeWrittenIsAFailureThatNamesThePath) {
  Kept kept;
  kept.folder.Write("states", "a file where the folder should be");
  try {
    kept.Of("Alpha").Keep(Named("x"));
    FAIL() << "kept in a file";
  } catch (const Failure& failure) {
    EXPECT_NE(failure.Description().find(kept.Of("Alpha").Folder()), std::string::npos)
        << failure.Description();
  }
}

TEST(TheFolderOfBackups, LiesInTheUsersData) {
  const std::string folder = Backups::DefaultFolder();
  ASSERT_NE(folder, "");
  const std::filesystem::path path(folder);
  EXPECT_EQ(path.filename(), "Backups");
  EXPECT_EQ(path.parent_path().filename(), "Mortane");
}

TEST(TheSystemsTime, IsNow) {
  const auto before = floor<milliseconds>(system_clock::now());
  const BackupTime time = Backups::SystemTime();
  EXPECT_GE(time, before);
  EXPECT_LE(time, system_clock::now());
}

}  // namespace
}  // namespace mortane::test
