// The profile file beside the system's own calls on the same file.
#include <gtest/gtest.h>
#include <windows.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "platform/ProfileFile.h"
#include "platform/Sleep.h"
#include "platform/windows/SystemPath.h"
#include "support/SecondProcess.h"
#include "support/TempFolder.h"
#include "support/ThisSystem.h"

namespace mortane {
namespace {

using test::PathOf;
using test::SecondProcess;
using test::TempFolder;
using test::Words;

constexpr const char* kContents[] = {
    "",
    "[JoyPad]\r\nRight=7\r\n",
    "[JoyPad]\nRight=7\nLeft=8\n",
    "[joypad]\r\n  right = 7 \r\n\r\n[B]\r\ny=1",
    "[JoyPad]\r\nRight=\" 7 \"\r\nright=8\r\n",
    "[JoyPad]\r\n; Right=1\r\nRight='7\r\n",
    "Right=1\r\n[ JoyPad ] ; pad\r\nname\r\n=5\r\nRight=0x1F\r\n[JoyPad]\r\nRight=2\r\n",
    "[JoyPad]\r\nRight=-70000\r\nUml=\xE4\xF6\xFC\r\n",
    "\xEF\xBB\xBF[JoyPad]\r\nRight=7\r\n",
};

// A file with a content, and another of the same content for the system's calls.
struct Pair {
  explicit Pair(const std::string& content)
      : ours(folder.Write("ours.ini", content)), theirs(folder.Write("theirs.ini", content)) {}

  void ExpectEqual(const std::string& before) const {
    Flush(theirs);
    EXPECT_EQ(TempFolder::Read(ours), TempFolder::Read(theirs)) << before;
  }
  static void Flush(const std::string& path) {
    WritePrivateProfileStringW(nullptr, nullptr, nullptr, PathOf(path).c_str());
  }

  TempFolder folder;
  std::string ours;
  std::string theirs;
};

TEST(ProfileCalls, WriteTheSameBytes) {
  for (const std::string content : kContents) {
    const Pair pair(content);
    EXPECT_TRUE(ProfileFile(pair.ours).WriteText("JoyPad", "Right", "12"));
    WritePrivateProfileStringW(L"JoyPad", L"Right", L"12", PathOf(pair.theirs).c_str());
    pair.ExpectEqual(content);
    EXPECT_TRUE(ProfileFile(pair.ours).WriteTexts("New", {{"\xC3\xA4", "\xC3\xBC"}, {"x", ""}}));
    WritePrivateProfileStringW(L"New", L"\u00E4", L"\u00FC", PathOf(pair.theirs).c_str());
    WritePrivateProfileStringW(L"New", L"x", L"", PathOf(pair.theirs).c_str());
    pair.ExpectEqual(content);
  }
}

TEST(ProfileCalls, DeleteTheSameBytes) {
  for (const std::string content : kContents) {
    const Pair pair(content);
    EXPECT_TRUE(ProfileFile(pair.ours).DeleteKey("JoyPad", "Right"));
    WritePrivateProfileStringW(L"JoyPad", L"Right", nullptr, PathOf(pair.theirs).c_str());
    pair.ExpectEqual(content);
    EXPECT_TRUE(ProfileFile(pair.ours).DeleteSection("JoyPad"));
    WritePrivateProfileStringW(L"JoyPad", nullptr, nullptr, PathOf(pair.theirs).c_str());
    pair.ExpectEqual(content);
  }
}

TEST(ProfileCalls, ReadTheSameValues) {
  const TempFolder folder;
  for (const std::string content : kContents) {
    const std::string path = folder.Write("Setup.ini", content);
    const std::wstring name = PathOf(path).native();
    for (const char* key : {"Right", "left", "Uml", "name", ""}) {
      wchar_t text[100] = {};
      GetPrivateProfileStringW(L"JOYPAD", PathOf(key).c_str(), L"none", text, 100, name.c_str());
      EXPECT_EQ(ProfileFile(path).Text("JOYPAD", key, "none"), test::Utf8Of(text)) << content;
      EXPECT_EQ(
          ProfileFile(path).Int("JoyPad", key, -1),
          static_cast<int>(GetPrivateProfileIntW(L"JoyPad", PathOf(key).c_str(), -1, name.c_str())))
          << content << key;
    }
  }
}

TEST(ProfileFileOfUnicode, StaysSuch) {
  const TempFolder folder;
  const std::string path = folder.Write(
      "Setup.ini", test::NativeBytes("[JoyPad]\r\nRight=1\r\n\xE6\x97\xA5=\xE6\x9C\xAC\r\n"));
  const ProfileFile file(path);
  EXPECT_EQ(file.Int("JoyPad", "Right", -1), 1);
  EXPECT_EQ(file.Text("JoyPad", "\xE6\x97\xA5", "?"), "\xE6\x9C\xAC");
  EXPECT_EQ(file.KeyNames("JoyPad"), (std::vector<std::string>{"Right", "\xE6\x97\xA5"}));
  EXPECT_TRUE(file.WriteTexts("JoyPad", {{"Right", "7"}, {"\xC3\xA4", "\xCE\xBC"}}));
  EXPECT_EQ(TempFolder::Read(path),
            test::NativeBytes("[JoyPad]\r\nRight=7\r\n\xE6\x97\xA5=\xE6\x9C\xAC\r\n"
                              "\xC3\xA4=\xCE\xBC\r\n"));
}

TEST(ProfileFileOfACodePage, KeepsTheBytesOfOtherLines) {
  const TempFolder folder;
  const std::string path =
      folder.Write("Setup.ini", "[\xC4]\r\n\xE4=\xF6\r\n[JoyPad]\r\nRight=1\r\n");
  EXPECT_TRUE(ProfileFile(path).WriteText("JoyPad", "Right", "7"));
  EXPECT_EQ(TempFolder::Read(path), "[\xC4]\r\n\xE4=\xF6\r\n[JoyPad]\r\nRight=7\r\n");
}

// The system's calls would look in the folder of Windows, and write there.
TEST(ProfileFileWithoutAFolder, StandsInTheCurrentOne) {
  const TempFolder folder;
  const std::filesystem::path before = std::filesystem::current_path();
  std::filesystem::current_path(PathOf(folder.Path("")));
  const ProfileFile file("MortaneTest Setup.ini");
  EXPECT_TRUE(file.WriteText("JoyPad", "Right", "7"));
  EXPECT_EQ(file.Int("JoyPad", "Right", -1), 7);
  std::filesystem::current_path(before);
  EXPECT_EQ(TempFolder::Read(folder.Path("MortaneTest Setup.ini")), "[JoyPad]\r\nRight=7\r\n");
}

TEST(ProfileFileWithoutAName, IsNoFileOfTheSystems) {
  for (const char* name : {"", "NUL", "\\\\.\\NUL"}) {
    const ProfileFile file(name);
    EXPECT_EQ(file.Text("windows", "load", "none"), "none") << name;
    EXPECT_EQ(file.SectionNames(), std::vector<std::string>()) << name;
    EXPECT_FALSE(file.WriteText("JoyPad", "Right", "7")) << name;
  }
}

TEST(ProfileFileOnALongPath, IsReadAndWritten) {
  const TempFolder folder;
  const std::string start = folder.Path("");
  for (std::size_t length = MAX_PATH - 4; length < MAX_PATH + 4; ++length) {
    const std::string path = start + std::string(length - start.size() - 4, 'f') + ".ini";
    const ProfileFile file(path);
    EXPECT_EQ(file.Int("JoyPad", "Right", -1), -1) << length;
    EXPECT_TRUE(file.WriteText("JoyPad", "Right", "7")) << length;
    EXPECT_EQ(file.Int("JoyPad", "Right", -1), 7) << length;
    EXPECT_EQ(file.SectionNames(), std::vector<std::string>{"JoyPad"}) << length;
    EXPECT_EQ(file.KeyNames("JoyPad"), std::vector<std::string>{"Right"}) << length;
    EXPECT_TRUE(DeleteFileW(SystemPath(path).c_str()));
  }
}

TEST(ProfileFileThatAnotherProgramHasForItself, IsLeftAsItIs) {
  const TempFolder folder;
  const std::string path = folder.Write("Setup.ini", "[JoyPad]\r\nRight=1\r\n");
  {
    const Handle other(CreateFileW(PathOf(path).c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING,
                                   FILE_ATTRIBUTE_NORMAL, nullptr));
    ASSERT_TRUE(other.IsOpen());
    EXPECT_EQ(ProfileFile(path).Int("JoyPad", "Right", -1), -1);
    EXPECT_FALSE(ProfileFile(path).WriteText("JoyPad", "Right", "7"));
    EXPECT_FALSE(ProfileFile(path).DeleteKey("JoyPad", "Right"));
    EXPECT_FALSE(ProfileFile(path).DeleteSection("JoyPad"));
  }
  EXPECT_EQ(TempFolder::Read(path), "[JoyPad]\r\nRight=1\r\n");
  EXPECT_EQ(ProfileFile(path).Int("JoyPad", "Right", -1), 1);
}

// A folder of its own for temporary files, for this process.
class OwnTemporaryFolder {
 public:
  explicit OwnTemporaryFolder(const std::string& folder) {
    wchar_t before[MAX_PATH + 1] = {};
    GetEnvironmentVariableW(L"TMP", before, MAX_PATH);
    before_ = before;
    SetEnvironmentVariableW(L"TMP", PathOf(folder).c_str());
  }
  ~OwnTemporaryFolder() { SetEnvironmentVariableW(L"TMP", before_.c_str()); }
  OwnTemporaryFolder(const OwnTemporaryFolder&) = delete;
  OwnTemporaryFolder& operator=(const OwnTemporaryFolder&) = delete;

 private:
  std::wstring before_;
};

std::size_t EntriesIn(const TempFolder& folder) {
  const std::filesystem::directory_iterator entries(PathOf(folder.Path("")));
  return static_cast<std::size_t>(std::distance(entries, {}));
}

// The copies that the system's calls work on.
TEST(ProfileFileEdits, LeaveNothingInTheFolderForTemporaryFiles) {
  const TempFolder folder;
  const TempFolder temporary;
  const OwnTemporaryFolder own(temporary.Path(""));
  EXPECT_TRUE(ProfileFile(folder.Path("Setup.ini")).WriteText("JoyPad", "Right", "7"));
  EXPECT_FALSE(ProfileFile(folder.Path("missing\\Setup.ini")).WriteText("JoyPad", "Right", "7"));
  ProfileFile("").SectionNames();
  EXPECT_EQ(EntriesIn(temporary), 0U);
}

const SecondProcess::Part kEditForEver{
    "edit for ever", [](const SecondProcess::Side& test, const Words& words) -> int {
      for (int round = 0;; ++round) {
        ProfileFile(words.at(0)).WriteText("JoyPad", "Right", std::to_string(round));
        if (round == 0) test.Tell();
      }
    }};

TEST(ProfileFileEdits, RemoveWhatKilledProcessesLeft) {
  const TempFolder folder;
  const TempFolder temporary;
  const OwnTemporaryFolder own(temporary.Path(""));
  const std::string path = folder.Path("Setup.ini");
  std::size_t left = 0;
  for (int round = 0; round < 40 && (round < 3 || left == 0); ++round) {
    SecondProcess editor(kEditForEver, {path});
    editor.Await();
    SleepMilliseconds(round % 10);
    editor.Kill();
    left += EntriesIn(temporary);
    EXPECT_GE(ProfileFile(path).Int("JoyPad", "Right", -1), 0);
  }
  EXPECT_GT(left, 0U) << "no process was killed during an edit";
  EXPECT_TRUE(ProfileFile(path).WriteText("JoyPad", "Right", "7"));
  EXPECT_EQ(EntriesIn(temporary), 0U);
  EXPECT_EQ(EntriesIn(folder), 1U);
}

TEST(ProfileFileEdits, NeedAFolderForTemporaryFiles) {
  const TempFolder folder;
  const std::string path = folder.Write("Setup.ini", "[JoyPad]\r\nRight=1\r\n");
  const OwnTemporaryFolder none(folder.Path("missing"));
  EXPECT_FALSE(ProfileFile(path).WriteText("JoyPad", "Right", "7"));
  EXPECT_EQ(ProfileFile(path).Int("JoyPad", "Right", -1), 1);
  EXPECT_EQ(ProfileFile("").Int("JoyPad", "Right", -1), -1);
}

}  // namespace
}  // namespace mortane
