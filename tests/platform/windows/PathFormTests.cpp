// The forms in which Windows knows a path.
#include <gtest/gtest.h>
#include <windows.h>

#include <filesystem>
#include <string>

#include "common/Failure.h"
#include "platform/AtomicFile.h"
#include "platform/FilePath.h"
#include "platform/Folder.h"
#include "platform/windows/SystemPath.h"
#include "support/TempFolder.h"

namespace mortane {
namespace {

namespace fs = std::filesystem;
using test::PathOf;
using test::TempFolder;
using test::Utf8Of;

// In the folder while it lives.
class CurrentFolder {
 public:
  explicit CurrentFolder(const std::string& folder) : before_(fs::current_path()) {
    fs::current_path(PathOf(folder));
  }
  ~CurrentFolder() { fs::current_path(before_); }
  CurrentFolder(const CurrentFolder&) = delete;
  CurrentFolder& operator=(const CurrentFolder&) = delete;

 private:
  fs::path before_;
};

struct FormRow {
  const char* path;
  const char* systemPath;
};

TEST(SystemPath, IsAbsoluteAndWithoutALimit) {
  const FormRow rows[] = {
      {"C:\\a\\b.xml", "\\\\?\\C:\\a\\b.xml"},
      {"C:/a//b/./c/../d.xml", "\\\\?\\C:\\a\\b\\d.xml"},
      {"C:\\", "\\\\?\\C:\\"},
      {"\\\\server\\share\\a.xml", "\\\\?\\UNC\\server\\share\\a.xml"},
      {"//server/share/a.xml", "\\\\?\\UNC\\server\\share\\a.xml"},
      {"\\\\?\\C:\\a.xml", "\\\\?\\C:\\a.xml"},
      {"\\\\?\\UNC\\server\\share\\a.xml", "\\\\?\\UNC\\server\\share\\a.xml"},
      {"C:\\\xC3\xA4 \xE6\x97\xA5.xml", "\\\\?\\C:\\\xC3\xA4 \xE6\x97\xA5.xml"},
      {"", ""},
  };
  for (const FormRow& row : rows)
    EXPECT_EQ(Utf8Of(SystemPath(row.path)), row.systemPath) << row.path;
}

TEST(SystemPath, BeginsInTheCurrentFolder) {
  const TempFolder folder;
  const CurrentFolder here(folder.Path(""));
  const std::wstring current = L"\\\\?\\" + fs::current_path().native();
  const std::wstring drive = current.substr(0, 6);
  EXPECT_EQ(SystemPath("a.xml"), (fs::path(current) / L"a.xml").native());
  EXPECT_EQ(SystemPath("x/../a.xml"), (fs::path(current) / L"a.xml").native());
  EXPECT_EQ(SystemPath("\\a.xml"), drive + L"\\a.xml");
  EXPECT_EQ(SystemPath(Utf8Of(drive.substr(4)) + "a.xml"), (fs::path(current) / L"a.xml").native());
}

TEST(PlainPath, IsTheOneWithoutThePrefix) {
  EXPECT_EQ(PlainPath(L"\\\\?\\C:\\a.xml"), L"C:\\a.xml");
  EXPECT_EQ(PlainPath(L"\\\\?\\UNC\\server\\share\\a.xml"), L"\\\\server\\share\\a.xml");
  EXPECT_EQ(PlainPath(L"\\\\.\\NUL"), L"\\\\.\\NUL");
  EXPECT_EQ(PlainPath(L""), L"");
}

// A device may be an instrument's port: reading or writing it could move something.
TEST(Devices, AreNoFiles) {
  for (const char* name : {"NUL", "nul", "CON", "COM1", "LPT1", "\\\\.\\NUL", "\\\\.\\COM1",
                           "//./COM1", "\\\\.\\PhysicalDrive0"}) {
    ASSERT_TRUE(IsDevicePath(SystemPath(name))) << name;
    for (const bool reading : {true, false}) {
      try {
        if (reading) ReadWholeFile(name);
        if (!reading) WriteFileAtomically(name, "x");
        ADD_FAILURE() << name << ": nothing was raised";
      } catch (const Failure& failure) {
        EXPECT_EQ(failure.Number(), kFileError) << name;
        EXPECT_EQ(failure.Description(), std::string(reading ? "Cannot read " : "Cannot write ") +
                                             name + ": not a regular file");
      }
    }
    EXPECT_FALSE(MakeFolder(name)) << name;
  }
}

TEST(Devices, AreNoFilesUnderTheFormOfALongPathEither) {
  EXPECT_THROW(ReadWholeFile("\\\\?\\NUL"), Failure);
  EXPECT_THROW(WriteFileAtomically("\\\\?\\NUL", "x"), Failure);
}

// Saves, replaces, reads and asks.
void UseFile(const std::string& path) {
  EXPECT_TRUE(IsMissing(path)) << path;
  WriteFileAtomically(path, "first");
  WriteFileAtomically(path, "second");
  EXPECT_EQ(ReadWholeFile(path), "second") << path;
  EXPECT_FALSE(IsMissing(path)) << path;
  EXPECT_TRUE(DeleteFileW(SystemPath(path).c_str())) << path;
}

std::string WithForwardSlashes(std::string path) {
  for (char& c : path)
    if (c == '\\') c = '/';
  return path;
}

TEST(WriteFileAtomically, TakesEveryFormOfAPath) {
  const TempFolder folder;
  const CurrentFolder here(folder.Path(""));
  ASSERT_TRUE(MakeFolder("in ner"));
  const std::string absolute = folder.Path("in ner\\\xC3\xA4 \xE6\x97\xA5.xml");
  UseFile(absolute);
  UseFile(WithForwardSlashes(absolute));
  UseFile("\\\\?\\" + absolute);
  UseFile("\xC3\xA4 \xE6\x97\xA5.xml");
  UseFile("in ner/a.xml");
  UseFile(".\\in ner\\..\\a.xml");
  UseFile(absolute.substr(2));  // from the root of the current drive
}

// The administrators' share of a drive stands on every Windows, and in the Wine folder of the
// tests.
std::string OnShare(const std::string& path) {
  return "\\\\localhost\\" + path.substr(0, 1) + "$" + path.substr(2);
}

TEST(WriteFileAtomically, TakesAShare) {
  const TempFolder folder;
  const std::string path = OnShare(folder.Path("a \xC3\xA4\xE6\x97\xA5.xml"));
  UseFile(path);
  UseFile(WithForwardSlashes(path));
  UseFile("\\\\?\\UNC" + path.substr(1));
  EXPECT_TRUE(MakeFolder(OnShare(folder.Path("one\\two"))));
  EXPECT_TRUE(fs::is_directory(PathOf(folder.Path("one\\two"))));
  UseFile(OnShare(folder.Path("one\\two\\a.xml")));
}

TEST(WriteFileAtomically, SaysWhyAShareCannotBeUsed) {
  EXPECT_THROW(WriteFileAtomically("\\\\localhost\\no such share\\a.xml", "x"), Failure);
  EXPECT_THROW(ReadWholeFile("\\\\localhost\\no such share\\a.xml"), Failure);
}

// The library's own removal takes no long path.
void RemoveTree(std::string deep, const std::string& above) {
  EXPECT_TRUE(DeleteFileW(SystemPath(deep + "a.xml").c_str()));
  for (; deep.size() > above.size(); deep.resize(deep.rfind('\\', deep.size() - 2) + 1))
    EXPECT_TRUE(RemoveDirectoryW(SystemPath(deep).c_str())) << deep;
}

TEST(LongPaths, AreTakenWithoutTheSystemsSwitch) {
  const TempFolder folder;
  std::string deep = folder.Path("");
  for (int level = 0; level < 6; ++level) deep += std::string(60, 'd') + " \xE6\x97\xA5\\";
  ASSERT_GT(PathOf(deep).native().size(), std::size_t{MAX_PATH});
  ASSERT_TRUE(MakeFolder(deep));
  EXPECT_TRUE(MakeFolder(deep)) << "that stands";
  UseFile(deep + "a.xml");
  UseFile(WithForwardSlashes(deep) + "a.xml");
  UseFile(OnShare(deep) + "a.xml");
  WriteFileAtomically(deep + "a.xml", "x");
  EXPECT_EQ(ResolvedPath(deep + "a.xml"), ResolvedPath(deep + "x\\..\\A.xml"));
  EXPECT_FALSE(MakeFolder(deep + "a.xml"));
  RemoveTree(deep, folder.Path(""));
}

TEST(LongPaths, AreTakenInTheirLastCharactersToo) {
  const TempFolder folder;
  const std::string start = folder.Path("");
  for (std::size_t length = MAX_PATH - 16; length < MAX_PATH + 4; ++length) {
    const std::string path = start + std::string(length - start.size() - 4, 'f') + ".xml";
    ASSERT_EQ(path.size(), length);
    WriteFileAtomically(path, "x");
    EXPECT_EQ(ReadWholeFile(path), "x") << length;
    EXPECT_TRUE(DeleteFileW(SystemPath(path).c_str()));
  }
}

TEST(ResolvedPath, IsTheSameInEveryCase) {
  const TempFolder folder;
  const std::string path = folder.Write("\xC3\xA4 File.xml", "x");
  EXPECT_EQ(ResolvedPath(folder.Path("\xC3\x84 FILE.XML")), ResolvedPath(path));
  EXPECT_EQ(ResolvedPath(WithForwardSlashes(path)), ResolvedPath(path));
  EXPECT_EQ(ResolvedPath("\\\\?\\" + path), ResolvedPath(path));
  EXPECT_EQ(ResolvedPath(folder.Path("MISSING.xml")), ResolvedPath(folder.Path("missing.xml")));
}

TEST(MakeFolder, MakesNoDrive) {
  EXPECT_TRUE(MakeFolder("C:\\"));
  EXPECT_FALSE(MakeFolder("Q:\\"));
  EXPECT_FALSE(MakeFolder("Q:\\a\\b"));
}

}  // namespace
}  // namespace mortane
