// The switch units in the settings file, and the hand controller's file of its own.
#include <gtest/gtest.h>

#include "common/Failure.h"
#include "support/Rig.h"
#include "support/TempFolder.h"
#include "switches/clsControlTactor.h"
#include "switches/clsDbSwitch.h"

namespace mortane::test {
namespace {

class SwitchFile : public testing::Test {
 protected:
  void SetUp() override { rig.ConnectAndReceive(); }

  std::string Write(const std::string& sections) const {
    return folder.Write("in.xml", "<Setup>" + sections + "</Setup>");
  }
  void Open(const std::string& path) {
    rig.k70.ReadXMLItems(path);
    rig.k70.ReadXML(path);
  }

  TempFolder folder;
  Rig rig{"Harbour"};
};

constexpr const char* kTactorSection =
    R"(<TACTOR><SWITCH><SETTING MODE="1" HANDLE="1"/>)"
    R"(<SWITCH POSITION="1" FUNCTION="1"/><SWITCH POSITION="2" FUNCTION="2"/>)"
    R"(<SWITCH POSITION="3" FUNCTION="3"/><SWITCH POSITION="4" FUNCTION="25"/>)"
    R"(<SWITCH POSITION="5" FUNCTION="4"/><SWITCH POSITION="6" FUNCTION="26"/>)"
    R"(<SWITCH POSITION="7" FUNCTION="5"/><SWITCH POSITION="8" FUNCTION="14"/>)"
    R"(<SWITCH POSITION="9" FUNCTION="15"/><SWITCH POSITION="10" FUNCTION="0"/>)"
    R"(<SWITCH POSITION="11" FUNCTION="0"/><SWITCH POSITION="12" FUNCTION="0"/>)"
    R"(<SWITCH POSITION="13" FUNCTION="0"/><SWITCH POSITION="14" FUNCTION="51"/>)"
    R"(</SWITCH></TACTOR>)";

constexpr const char* kSwitchSection =
    R"(<SWITCH><SWITCH POSITION="1" FUNCTION="3"/><SWITCH POSITION="2" FUNCTION="3"/>)"
    R"(<SWITCH POSITION="3" FUNCTION="4"/><SWITCH POSITION="4" FUNCTION="0"/>)"
    R"(<SWITCH POSITION="5" FUNCTION="6"/><SWITCH POSITION="6" FUNCTION="13"/>)"
    R"(<SWITCH POSITION="7" FUNCTION="5"/><SWITCH POSITION="8" FUNCTION="0"/>)"
    R"(<SWITCH POSITION="9" FUNCTION="1"/><SWITCH POSITION="10" FUNCTION="2"/>)"
    R"(<SWITCH POSITION="11" FUNCTION="11"/><SWITCH POSITION="12" FUNCTION="12"/>)"
    R"(<SWITCH POSITION="13" FUNCTION="9"/><SWITCH POSITION="14" FUNCTION="10"/>)"
    R"(<SWITCH POSITION="15" FUNCTION="7"/><SWITCH POSITION="16" FUNCTION="8"/></SWITCH>)";

void ChangeTactor(clsK70& k70) {
  k70.curTactor.ControlMode = 1;
  k70.curTactor.HandleMode = 1;
  k70.curTactor.Func(14, 51);
}

TEST_F(SwitchFile, HasTheTwoSectionsLast) {
  ChangeTactor(rig.k70);
  const std::string path = folder.Path("all.xml");
  rig.k70.WriteXML(path);
  const std::string text = TempFolder::Read(path);
  EXPECT_TRUE(text.ends_with(std::string(kSwitchSection) + kTactorSection + "</Setup>")) << text;
}

TEST_F(SwitchFile, CarriesBothUnitsToAnotherModel) {
  ChangeTactor(rig.k70);
  rig.k70.curSwitch.Func(4, 51);
  const std::string path = folder.Path("all.xml");
  rig.k70.WriteXML(path);
  Rig target("Harbour");
  target.ConnectAndReceive();
  target.k70.ReadXMLItems(path);
  target.k70.ReadXML(path);
  EXPECT_EQ(target.k70.curSwitch.Func(4), 51);
  EXPECT_EQ(target.k70.curTactor.ControlMode, 1);
  EXPECT_EQ(target.k70.curTactor.Func(14), 51);
  EXPECT_EQ(target.k70.Modify(), rig.k70.Modify());
}

TEST_F(SwitchFile, RefusedElementsOfTheBodyAreLinesOfTheirOwn) {
  const std::string path =
      Write(R"(<switch><SWITCH POSITION="18" FUNCTION="1"/><OTHER POSITION="19"/>)"
            R"(<switch POSITION="4" FUNCTION="51"/><SWITCH POSITION="2" FUNCTION="52"/></switch>)");
  rig.prompts.ExpectBox("Tactor[18]\r\nTactor[2]", box::kOk, Answer::Ok, "XML Read");
  Open(path);
  EXPECT_EQ(rig.k70.curSwitch.Func(4), 51);
  EXPECT_EQ(rig.k70.curSwitch.Func(2), 3);
}

TEST_F(SwitchFile, RefusedElementsOfTheHandControllerAreOneLine) {
  const std::string path = Write(
      R"(<TACTOR><SWITCH><SETTING MODE="2" HANDLE="2"/><SWITCH POSITION="15" FUNCTION="1"/></SWITCH>)"
      R"(<SWITCH><SWITCH POSITION="17" FUNCTION="1"/></SWITCH></TACTOR>)");
  const std::string lines = "Tactor[ Mode ]Tactor[ Handle ]Tactor[15]\r\nTactor[17]";
  rig.prompts.ExpectBox(lines, box::kOk, Answer::Ok, "XML Read");
  Open(path);
  rig.prompts.ExpectBox(lines, box::kOk, Answer::Ok, "Tactor_XML Read");
  rig.k70.Tactor_ReadXML(path);
}

// What was read stays; of what was refused before nobody is told.
TEST_F(SwitchFile, PositionSeventeenEndsTheReadingAndGoesToTheCaller) {
  const std::string path =
      Write(R"(<SWITCH><SWITCH POSITION="18" FUNCTION="1"/><SWITCH POSITION="1" FUNCTION="51"/>)"
            R"(<SWITCH POSITION="17" FUNCTION="1"/><SWITCH POSITION="2" FUNCTION="51"/></SWITCH>)"
            R"(<SYSTEM><QHRMNAME NAME="Unread"/></SYSTEM>)");
  rig.k70.ReadXMLItems(path);
  try {
    rig.k70.ReadXML(path);
    FAIL() << "position 17 was taken";
  } catch (const Failure& failure) {
    EXPECT_EQ(failure.Number(), kSubscriptError);
    EXPECT_EQ(failure.Source(), "Mortane");
  }
  EXPECT_EQ(rig.k70.curSwitch.Func(1), 51);
  EXPECT_EQ(rig.k70.curSwitch.Func(2), 3);
  EXPECT_EQ(rig.k70.SystemName, "Harbour");
  EXPECT_TRUE(rig.prompts.Boxes().empty());
}

TEST_F(SwitchFile, PositionSeventeenInASectionThatIsNotWantedIsNotRead) {
  const std::string path = Write(R"(<SWITCH><SWITCH POSITION="17" FUNCTION="1"/></SWITCH>)");
  rig.k70.ReadXMLItems(path);
  rig.k70.FileItem(6, 0);
  rig.k70.ReadXML(path);
  rig.k70.Tactor_ReadXML(path);
}

TEST_F(SwitchFile, OfTheHandControllerHoldsItsSectionAlone) {
  ChangeTactor(rig.k70);
  const std::string path = folder.Path("tactor.xml");
  rig.k70.Tactor_WriteXML(path);
  EXPECT_EQ(TempFolder::Read(path), "<Setup>" + std::string(kTactorSection) + "</Setup>");
}

TEST_F(SwitchFile, OfTheHandControllerIsReadBackWhateverTheFlagsSay) {
  const std::string path = Write(std::string(kTactorSection) + kSwitchSection);
  rig.k70.curSwitch.Func(1, 0);
  rig.k70.FileItem(7, 0);
  rig.k70.FileItem(6, -1);
  rig.k70.Tactor_ReadXML(path);
  EXPECT_EQ(rig.k70.curTactor.ControlMode, 1);
  EXPECT_EQ(rig.k70.curTactor.HandleMode, 1);
  EXPECT_EQ(rig.k70.curTactor.Func(14), 51);
  EXPECT_EQ(rig.k70.curSwitch.Func(1), 0);
  EXPECT_EQ(rig.k70.FileItem(7), 0);
  EXPECT_EQ(rig.k70.FileItem(6), -1);
}

TEST_F(SwitchFile, OfTheHandControllerWithTwoSectionsIsReadTwice) {
  rig.k70.Tactor_ReadXML(Write(R"(<tactor><SWITCH><SETTING MODE="1" HANDLE="1"/></SWITCH></tactor>)"
                               R"(<TACTOR><SWITCH><SETTING HANDLE="1"/></SWITCH></TACTOR>)"));
  EXPECT_EQ(rig.k70.curTactor.ControlMode, 0);
  EXPECT_EQ(rig.k70.curTactor.HandleMode, 1);
}

TEST_F(SwitchFile, OfTheHandControllerMayHaveItsRootInLowerCase) {
  rig.k70.Tactor_ReadXML(folder.Write(
      "lower.xml", R"(<setup><TACTOR><SWITCH><SETTING HANDLE="1"/></SWITCH></TACTOR></setup>)"));
  EXPECT_EQ(rig.k70.curTactor.HandleMode, 1);
}

TEST_F(SwitchFile, OfTheHandControllerOpensAsASettingsFileOfOneSection) {
  ChangeTactor(rig.k70);
  const std::string path = folder.Path("tactor.xml");
  rig.k70.Tactor_WriteXML(path);
  rig.k70.curTactor.Func(14, 0);
  Open(path);
  EXPECT_EQ(rig.k70.curTactor.Func(14), 51);
  for (std::int16_t item = 0; item < 8; ++item) {
    EXPECT_EQ(rig.k70.FileItem(item), item == 7 ? -1 : 0);
  }
}

TEST_F(SwitchFile, IsReadWithoutTheController) {
  Open(Write(std::string(kSwitchSection) + kTactorSection));
  rig.k70.Tactor_ReadXML(Write(kTactorSection));
  EXPECT_EQ(rig.journal.CallCount(), 0U);
}

}  // namespace
}  // namespace mortane::test
