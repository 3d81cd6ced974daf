// Pages of the switches that are destroyed while a box or a file dialog of theirs stands.
#include <gtest/gtest.h>

#include <QPointer>

#include "gui/support/PageActs.h"
#include "gui/switches/SwitchPages.h"
#include "widgets/ComboBox.h"

namespace mortane::test {
namespace {

using Names = std::vector<std::string>;
using MakePage = SwitchRowsCtl* (*)(SwitchPageUnits&);

struct BoxRow {
  const char* name;
  MakePage make;
  const char* function;  // that a push switch is given; the button Default or All Clear without one
  const char* button;
  std::int32_t modes;  // of both knobs, before
  std::string box;     // the first of those that the act brings about
};

void PrintTo(const BoxRow& row, std::ostream* stream) {
  *stream << row.name;
}

std::string NameOf(const testing::TestParamInfo<BoxRow>& row) {
  return row.param.name;
}

SwitchRowsCtl* Body(SwitchPageUnits& k70) {
  return MakeSwitchSettingCtl(k70);
}

SwitchRowsCtl* Hand(SwitchPageUnits& k70) {
  return MakeTactorSwitchSettingCtl(k70);
}

class DestroyedBehindABox : public testing::TestWithParam<BoxRow> {};

// The second box would be one that nobody scripted.
TEST_P(DestroyedBehindABox, ASwitchPageAsksAndTouchesNothingMore) {
  const BoxRow& row = GetParam();
  PageRig rig("Harbour");
  SetCodes(rig.k70().curSwitch, 0);
  SetCodes(rig.k70().curTactor, 0);
  const QPointer<SwitchRowsCtl> page = &rig.Show(row.make(rig.k70()));
  rig.k70().COther.curAutoZ = rig.k70().COther.curAutoXY = row.modes;
  rig.prompts.ExpectBox(row.box, box::kOk, Answer::Ok, {}, [&page] { delete page; });
  if (row.function != nullptr) {
    ClickRow(*page->ListView1, 5);
    page->ComboFunction->setIndex(page->ComboFunction->findText(QString::fromUtf8(row.function)));
  } else {
    ClickButton(rig.Find<QPushButton>(row.button));
  }
  EXPECT_TRUE(page.isNull());
  EXPECT_TRUE(rig.prompts.AllAnswersUsed());
}

const std::string kFocusAuto = "Focus Knob Setting is changed to Auto mode.";
const std::string kFocusManual = "Focus Knob Setting is changed to Manual mode.";

INSTANTIATE_TEST_SUITE_P(
    Rows, DestroyedBehindABox,
    testing::Values(
        BoxRow{"BodyChoice", Body, "Z Focus Knob Speed Change", nullptr, 1, kFocusManual},
        BoxRow{"BodyCheck", Body, "Z Escape", nullptr, 0, kFocusAuto},
        BoxRow{"BodyClear", Body, nullptr, "cmdAllClear", 0, kFocusAuto},
        BoxRow{"BodyDefault", Body, nullptr, "cmdDefault", 1, kFocusManual},
        BoxRow{"HandChoice", Hand, "Z Focus Knob Speed Change", nullptr, 1, kFocusManual},
        BoxRow{"HandCheck", Hand, "Z Escape", nullptr, 0, kFocusAuto},
        BoxRow{"HandClear", Hand, nullptr, "cmdAllClear", 0, kFocusAuto},
        BoxRow{"HandDefault", Hand, nullptr, "cmdDefault", 1, kFocusManual}),
    NameOf);

// What the hand controller's page asks in its file commands, and when it is destroyed.
class DestroyedInAFileCommand : public testing::Test {
 protected:
  // At the next call of the prompts that the log tells so.
  void DestroyAt(const std::string& call) {
    rig.prompts.onCall = [this, call] {
      if (!page.isNull() && rig.prompts.Log().back().starts_with(call)) delete page;
    };
  }

  static constexpr const char* kFile = "hand.xml";
  static constexpr const char* kBadFile = "the file is bad";

  PageRig rig{"Harbour"};
  QPointer<TactorSwitchSettingCtl> page = &rig.Show(MakeTactorSwitchSettingCtl(rig.k70()));
};

TEST_F(DestroyedInAFileCommand, WhileTheNameIsAskedForNothingIsReadOrWritten) {
  DestroyAt("open");
  rig.prompts.ExpectFileToOpen(kFile);
  ClickButton(*page->btnReadFileOpen);
  EXPECT_TRUE(page.isNull());
  EXPECT_EQ(rig.prompts.Log(), Names{"open"});
}

TEST_F(DestroyedInAFileCommand, WhileTheNameToSaveIsAskedForNothingIsWritten) {
  DestroyAt("save");
  rig.prompts.ExpectFileToSave(kFile);
  ClickButton(*page->Command1);
  EXPECT_TRUE(page.isNull());
  EXPECT_EQ(rig.prompts.Log(), (Names{"save", "flush"}));
}

TEST_F(DestroyedInAFileCommand, WhileABadFileIsToldOfThePageIsNotLoaded) {
  DestroyAt("box");
  rig.k70().readFile = [this](const std::string&) { rig.prompts.MsgBox(kBadFile, box::kOk); };
  rig.prompts.ExpectFileToOpen(kFile);
  rig.prompts.ExpectBox(kBadFile, box::kOk);
  ClickButton(*page->btnReadFileOpen);
  EXPECT_TRUE(page.isNull());
  EXPECT_TRUE(rig.prompts.AllAnswersUsed());
}

TEST_F(DestroyedInAFileCommand, WhileAFailedWriteIsToldOfInputIsDroppedAllTheSame) {
  DestroyAt("box");
  rig.k70().writeFile = [this](const std::string&) { rig.prompts.MsgBox(kBadFile, box::kOk); };
  rig.prompts.ExpectFileToSave(kFile);
  rig.prompts.ExpectBox(kBadFile, box::kOk);
  ClickButton(*page->Command1);
  EXPECT_TRUE(page.isNull());
  EXPECT_EQ(rig.prompts.Log().back(), "flush");
}

TEST_F(DestroyedInAFileCommand, WhileInputIsDroppedNothingFollows) {
  DestroyAt("flush");
  rig.prompts.ExpectFileToSave("");
  ClickButton(*page->Command1);
  EXPECT_TRUE(page.isNull());
  EXPECT_EQ(rig.prompts.Log(), (Names{"save", "flush"}));
}

}  // namespace
}  // namespace mortane::test
