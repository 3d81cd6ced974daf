// Settings files that another program has open.
#include <gtest/gtest.h>
#include <windows.h>

#include <filesystem>

#include "platform/windows/Handle.h"
#include "platform/windows/Wide.h"
#include "support/Rig.h"
#include "support/SecondProcess.h"
#include "support/TempFolder.h"

namespace mortane::test {
namespace {

// Holds the file of the first word open for itself alone.
const SecondProcess::Part kHoldAlone{
    "hold alone", [](const SecondProcess::Side& test, const Words& words) {
      const Handle file(CreateFileW(PathOf(words.at(0)).c_str(), GENERIC_READ, 0, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
      if (!file.IsOpen()) return 1;
      test.Tell();
      test.AwaitTest();
      return 0;
    }};

class SettingsFileSharing : public testing::Test {
 protected:
  std::string Refusal() const {
    return "Cannot write " + path + ": " + SystemMessage(ERROR_SHARING_VIOLATION);
  }
  std::ptrdiff_t FilesBeside() const {
    return std::distance(std::filesystem::directory_iterator(PathOf(folder.Path(""))), {});
  }

  TempFolder folder;
  std::string path = folder.Write(
      "Stra\xC3\x9F"
      "e \xE6\x97\xA5.xml",
      "old");
  Rig rig{"Quay"};
};

TEST_F(SettingsFileSharing, ASaveOverAFileThatIsInUseShowsItsBoxAndKeepsTheOldFile) {
  SecondProcess other(kHoldAlone, {path});
  other.Await();
  rig.prompts.ExpectBox("XML File Write Error\r\n" + Refusal(), box::kCritical);
  EXPECT_FALSE(rig.k70.WriteXML(path));
  rig.prompts.ExpectBox("XML Tactor DataFile Write Error\r\n" + Refusal(), box::kCritical);
  rig.k70.Tactor_WriteXML(path);
  EXPECT_EQ(FilesBeside(), 1) << "no temporary file";
  other.Tell();
  EXPECT_EQ(other.Wait(), 0);
  EXPECT_EQ(TempFolder::Read(path), "old");
  EXPECT_TRUE(rig.k70.WriteXML(path)) << "it is free again";
  EXPECT_TRUE(TempFolder::Read(path).starts_with("<Setup>"));
}

TEST_F(SettingsFileSharing, ASaveAfterTheOtherProgramWasKilledIsMade) {
  SecondProcess other(kHoldAlone, {path});
  other.Await();
  other.Kill();
  EXPECT_TRUE(rig.k70.WriteXML(path));
  EXPECT_EQ(FilesBeside(), 1);
}

TEST_F(SettingsFileSharing, AFileThatIsInUseCannotBeOpened) {
  SecondProcess other(kHoldAlone, {path});
  other.Await();
  rig.prompts.ExpectBox("Can't Load Xml", box::kOk);
  EXPECT_FALSE(rig.k70.ReadXML(path));
}

TEST_F(SettingsFileSharing, AFileOfAnyNameGoesThereAndBack) {
  rig.k70.SystemName = "Lab \xC2\xB5";
  EXPECT_TRUE(rig.k70.WriteXML(path));
  rig.k70.SystemName = "";
  rig.k70.ReadXMLItems(path);
  EXPECT_TRUE(rig.k70.ReadXML(path));
  EXPECT_EQ(rig.k70.SystemName, "Lab \xC2\xB5");
}

}  // namespace
}  // namespace mortane::test
