// The hand controller's data file, opened and saved from its page.
#include <gtest/gtest.h>

#include "gui/support/PageActs.h"
#include "gui/switches/SwitchPages.h"
#include "widgets/OptionGroup.h"
#include "widgets/TabStrip.h"

namespace mortane::test {
namespace {

using Names = std::vector<std::string>;

class TactorFiles : public testing::Test {
 protected:
  clsControlTactor& unit() { return rig.k70().curTactor; }

  static constexpr const char* kFile = "hand.xml";

  PageRig rig{"Harbour"};
  TactorSwitchSettingCtl& page = rig.Show(MakeTactorSwitchSettingCtl(rig.k70()));
};

TEST_F(TactorFiles, AreOpenedIntoUnitAndPage) {
  std::string opened;
  rig.k70().readFile = [&](const std::string& path) {
    opened = path;
    SetCodes(unit(), 11);
    unit().ControlMode = unit().HandleMode = 1;
  };
  rig.prompts.ExpectFileToOpen(kFile);
  ClickButton(*page.btnReadFileOpen);
  EXPECT_EQ(opened, kFile);
  EXPECT_EQ(CodesOf(unit()), std::vector<int>(14, 11));
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
  std::string saved;
  Names before;
  rig.k70().writeFile = [&](const std::string& path) {
    saved = path;
    before = rig.prompts.Log();
  };
  rig.prompts.ExpectFileToSave(kFile);
  ClickButton(*page.Command1);
  const FileQuestion& question = rig.prompts.FileQuestions().at(0);
  EXPECT_EQ(question.flags, 2050);
  EXPECT_EQ(question.filter, "XML File (*.xml)|*.xml");
  EXPECT_EQ(question.defaultExtension, ".xml");
  EXPECT_EQ(saved, kFile);
  EXPECT_EQ(rig.prompts.Log(), (Names{"save", "flush"}));
  EXPECT_EQ(before, Names{"save"}) << "input is dropped after the saving";
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
}

TEST_F(TactorFiles, ThatCannotBeReadAreToldAndThePageIsLoaded) {
  const std::vector<int> before = CodesOf(unit());
  rig.k70().readFile = [&](const std::string& path) { rig.prompts.MsgBox(path, box::kOk); };
  page.btnNewFileOpen->click();
  rig.prompts.ExpectFileToOpen(kFile);
  rig.prompts.ExpectBox(kFile, box::kOk);
  ClickButton(*page.btnReadFileOpen);
  EXPECT_TRUE(rig.prompts.AllAnswersUsed());
  EXPECT_EQ(CodesOf(unit()), before);
  EXPECT_EQ(page.TabSwitch->count(), 1);
}

TEST_F(TactorFiles, ThatCannotBeWrittenAreToldBeforeInputIsDropped) {
  rig.k70().writeFile = [&](const std::string& path) { rig.prompts.MsgBox(path, box::kCritical); };
  rig.prompts.ExpectFileToSave(kFile);
  rig.prompts.ExpectBox(kFile, box::kCritical);
  ClickButton(*page.Command1);
  EXPECT_TRUE(rig.prompts.AllAnswersUsed());
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
