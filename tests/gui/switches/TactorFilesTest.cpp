// The hand controller's data file, opened and saved from its page.
#include <gtest/gtest.h>

#include <filesystem>

#include "gui/support/PageActs.h"
#include "gui/support/PageRig.h"
#include "gui/switches/SwitchPages.h"
#include "support/TempFolder.h"
#include "widgets/OptionGroup.h"
#include "widgets/TabStrip.h"

namespace mortane::test {
namespace {

using Names = std::vector<std::string>;

class TactorFiles : public testing::Test {
 protected:
  clsControlTactor& unit() { return rig.k70().curTactor; }
  // Codes 13 down to 0, in the extended mode with the knob on the left.
  std::string WriteOther() const {
    std::string text = "<Setup><TACTOR><SWITCH><SETTING MODE=\"1\" HANDLE=\"1\"/>";
    for (int i = 1; i <= 14; ++i) {
      text += "<SWITCH POSITION=\"" + std::to_string(i) + "\" FUNCTION=\"" +
              std::to_string(14 - i) + "\"/>";
    }
    return folder.Write("other.xml", text + "</SWITCH></TACTOR></Setup>");
  }

  TempFolder folder;
  PageRig rig{"Harbour"};
  TactorSwitchSettingCtl& page = rig.Show(MakeTactorSwitchSettingCtl(rig.k70()));
};

TEST_F(TactorFiles, AreOpenedIntoUnitAndPage) {
  const std::string path = WriteOther();
  rig.prompts.ExpectFileToOpen(path);
  ClickButton(*page.btnReadFileOpen);
  EXPECT_EQ(CodesOf(unit()), (std::vector<int>{13, 12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2, 1, 0}));
  EXPECT_EQ(unit().ControlMode, 1);
  EXPECT_EQ(unit().HandleMode, 1);
  EXPECT_TRUE(page.OptMode->button(1)->isChecked());
  EXPECT_TRUE(page.optHandle->button(1)->isChecked());
  EXPECT_EQ(page.ListView1->cell(1, 1), "Filter Cube CW");
  EXPECT_TRUE(rig.prompts.Boxes().empty());
}

TEST_F(TactorFiles, AreAskedForAsXmlFilesThatAreThere) {
  rig.prompts.ExpectFileToOpen("");
  ClickButton(*page.btnReadFileOpen);
  ASSERT_EQ(rig.prompts.FileQuestions().size(), 1U);
  const FileQuestion& question = rig.prompts.FileQuestions()[0];
  EXPECT_EQ(question.flags, 6148);
  EXPECT_EQ(question.filter, "XML File (*.xml)|*.xml");
  EXPECT_EQ(question.defaultExtension, ".xml");
  EXPECT_EQ(rig.prompts.Log(), Names{"open"});
}

TEST_F(TactorFiles, AreSavedAfterAQuestionAndInputIsDropped) {
  const std::string path = folder.Path("saved.xml");
  unit().Func(12, 51);
  rig.prompts.ExpectFileToSave(path);
  ClickButton(*page.Command1);
  const FileQuestion& question = rig.prompts.FileQuestions().at(0);
  EXPECT_EQ(question.flags, 2050);
  EXPECT_EQ(question.filter, "XML File (*.xml)|*.xml");
  EXPECT_EQ(question.defaultExtension, ".xml");
  EXPECT_EQ(rig.prompts.Log(), (Names{"save", "flush"}));
  unit().Func(12, 0);
  rig.k70().Tactor_ReadXML(path);
  EXPECT_EQ(unit().Func(12), 51);
}

TEST_F(TactorFiles, CancellingChangesNothing) {
  const std::vector<int> before = CodesOf(unit());
  page.btnNewFileOpen->click();
  rig.prompts.ExpectFileToOpen("");
  ClickButton(*page.btnReadFileOpen);
  EXPECT_EQ(CodesOf(unit()), before);
  EXPECT_EQ(page.TabSwitch->count(), 2) << "nothing is loaded either";
  rig.prompts.ExpectFileToSave("");
  ClickButton(*page.Command1);
  EXPECT_EQ(CodesOf(unit()), before);
  EXPECT_EQ(rig.prompts.Log(), (Names{"open", "save", "flush"}));
  EXPECT_TRUE(std::filesystem::is_empty(folder.Path("")));
}

TEST_F(TactorFiles, ThatCannotBeReadAreToldAndThePageIsLoaded) {
  const std::vector<int> before = CodesOf(unit());
  const std::string missing = folder.Path("missing.xml");
  const std::string other = folder.Write("other.xml", "<Settings/>");
  for (const auto& [path, text] : {std::pair{missing, std::string("Can't Load Xml")},
                                   std::pair{other, other + " Other Format"}}) {
    page.btnNewFileOpen->click();
    rig.prompts.ExpectFileToOpen(path);
    rig.prompts.ExpectBox(text, box::kOk);
    ClickButton(*page.btnReadFileOpen);
    EXPECT_TRUE(rig.prompts.AllAnswersUsed()) << text;
    EXPECT_EQ(CodesOf(unit()), before) << text;
    EXPECT_EQ(page.TabSwitch->count(), 1) << text;
  }
}

TEST_F(TactorFiles, WithRefusedValuesAreToldInOneLine) {
  const std::string path = folder.Write("bad.xml",
                                        "<Setup><TACTOR><SWITCH><SETTING MODE=\"2\" HANDLE=\"1\"/>"
                                        "<SWITCH POSITION=\"15\" FUNCTION=\"3\"/>"
                                        "<SWITCH POSITION=\"3\" FUNCTION=\"52\"/>"
                                        "</SWITCH></TACTOR></Setup>");
  rig.prompts.ExpectBox("Tactor[ Mode ]Tactor[15]", box::kOk, Answer::Ok, "Tactor_XML Read");
  rig.prompts.ExpectFileToOpen(path);
  ClickButton(*page.btnReadFileOpen);
  EXPECT_EQ(unit().HandleMode, 1);
  EXPECT_EQ(unit().Func(3), 52);
  EXPECT_EQ(page.ListView1->cell(1, 1), "");
}

TEST_F(TactorFiles, ThatCannotBeWrittenAreTold) {
  rig.prompts.AcceptAnyBox();
  rig.prompts.ExpectFileToSave(folder.Path("no folder/saved.xml"));
  ClickButton(*page.Command1);
  ASSERT_EQ(rig.prompts.Boxes().size(), 1U);
  EXPECT_TRUE(rig.prompts.Boxes()[0].text.starts_with("XML Tactor DataFile Write Error\r\n"));
  EXPECT_EQ(rig.prompts.Boxes()[0].style, box::kCritical);
  EXPECT_EQ(rig.prompts.Log().back(), "flush");
}

TEST_F(TactorFiles, TheTabForANewOneHasNoMeaning) {
  EXPECT_EQ(RowsOf(*page.TabSwitch), Names{"Setting"});
  const std::vector<int> before = CodesOf(unit());
  ClickRow(*page.ListView1, 1);
  ClickButton(*page.btnNewFileOpen);
  ClickButton(*page.btnNewFileOpen);
  EXPECT_EQ(RowsOf(*page.TabSwitch), (Names{"Setting", "New File", "New File"}));
  EXPECT_EQ(page.TabSwitch->index(), 0);
  ClickTab(*page.TabSwitch, 2);
  EXPECT_EQ(CodesOf(unit()), before);
  EXPECT_EQ(page.ListView1->index(), 1);
  EXPECT_TRUE(rig.prompts.Log().empty());
  page.LoadData();
  EXPECT_EQ(RowsOf(*page.TabSwitch), Names{"Setting"});
}

}  // namespace
}  // namespace mortane::test
