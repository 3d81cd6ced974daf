// Loading the page of the other controls: its steps, and what each may fail of.
#include <QPointer>

#include "common/Failure.h"
#include "gui/drives/OtherPage.h"
#include "support/Rows.h"

namespace mortane::test {
namespace {

// Fails at one step of its loading.
class StumblingPage : public ControlOtherCtl {
 public:
  using ControlOtherCtl::ControlOtherCtl;
  int failing = 0;
  std::vector<int> steps;

 protected:
  void LoadStep(int step) override {
    steps.push_back(step);
    if (step == failing) RaiseOwnFailure(kNoObjectError, "a control is missing");
    ControlOtherCtl::LoadStep(step);
  }
};

TEST(OtherPageLoad, AStepThatFailsIsShownByItsNumberAndTheOthersAreSkipped) {
  for (int failing = 1; failing <= 8; ++failing) {
    OtherRig rig("Harbour");
    auto& page = rig.Show(new StumblingPage(rig.k70().COther));
    EXPECT_EQ(page.steps, (std::vector<int>{1, 2, 3, 4, 5, 6, 7, 8}));
    page.steps.clear();
    page.failing = failing;
    rig.prompts.ClearRecords();
    const std::string box = "Data_Load Error" + std::to_string(failing);
    rig.prompts.ExpectBox(box, box::kOk);
    page.LoadData();
    EXPECT_EQ(page.steps.size(), static_cast<std::size_t>(failing));
    EXPECT_EQ(rig.prompts.Log(), failing == 8
                                     ? (Lines{"pointer 11", "box 0: " + box, "flush", "pointer 0"})
                                     : (Lines{"box 0: " + box, "flush"}))
        << failing;
    EXPECT_EQ(rig.prompts.PointerBalance(), 0);
  }
}

TEST(OtherPageLoad, DropsTheInputThatCameMeanwhileUnderTheHourglass) {
  OtherRig rig("Harbour");
  auto& page = rig.Show(MakeControlOtherCtl(rig.k70()));
  rig.prompts.ClearRecords();
  page.LoadData();
  EXPECT_EQ(rig.prompts.Log(), (Lines{"pointer 11", "flush", "pointer 0"}));
}

struct FieldRow {
  std::int32_t clsControlOther::*field;
  std::int32_t value;
  const char* box;  // empty when it loads
};

TEST(OtherPageLoad, AValueThatNoRowOrOptionStandsForFailsItsStep) {
  for (const FieldRow& row : {FieldRow{&clsControlOther::curSensitivityXY, 4, "Data_Load Error2"},
                              FieldRow{&clsControlOther::curSensitivityXY, 7, "Data_Load Error2"},
                              FieldRow{&clsControlOther::curSensitivityXY, -2, "Data_Load Error2"},
                              FieldRow{&clsControlOther::curSensitivityXY, 0, ""},
                              FieldRow{&clsControlOther::curSensitivityXY, 3, ""},
                              FieldRow{&clsControlOther::curSensitivityZ, 4, ""},
                              FieldRow{&clsControlOther::curSensitivityZ, 0, ""},
                              FieldRow{&clsControlOther::curSensitivityZ, -2, ""},
                              FieldRow{&clsControlOther::curBuzzer, 3, "Data_Load Error4"},
                              FieldRow{&clsControlOther::curBuzzer, -2, "Data_Load Error4"},
                              FieldRow{&clsControlOther::curBuzzer, 2, ""},
                              FieldRow{&clsControlOther::curSwEnable, 5, ""},
                              FieldRow{&clsControlOther::curR_TLPOLED, 3, ""},
                              FieldRow{&clsControlOther::curR_TLPOLED, -2, ""},
                              FieldRow{&clsControlOther::curFiberSwEnable, 5, "Data_Load Error8"},
                              FieldRow{&clsControlOther::curFiberSwEnable, 2, "Data_Load Error8"},
                              FieldRow{&clsControlOther::curFiberSwEnable, -1, "Data_Load Error8"},
                              FieldRow{&clsControlOther::curFiberSwEnable, 0, ""},
                              FieldRow{&clsControlOther::curFiberLED, 3, "Data_Load Error8"},
                              FieldRow{&clsControlOther::curFiberLED, -1, "Data_Load Error8"},
                              FieldRow{&clsControlOther::curFiberLED, 2, ""}}) {
    Bench bench = benches::Named("Quay");
    bench.instruments.back().Unit(7) = {1, "V1.00"};
    OtherRig rig(std::move(bench));
    auto& page = rig.Show(MakeControlOtherCtl(rig.k70()));
    clsControlOther& other = rig.k70().COther;
    other.curFiberStatus = true;
    other.curFiberSwEnable = other.curFiberLED = 0;
    other.*row.field = row.value;
    if (*row.box != '\0') rig.prompts.ExpectBox(row.box, box::kOk);
    page.LoadData();
    EXPECT_TRUE(rig.prompts.AllAnswersUsed()) << row.box;
    EXPECT_EQ(rig.prompts.PointerBalance(), 0) << row.box;
  }
}

TEST(OtherPageLoad, AStageSensitivityOfTheControllerBeyondTheListFailsTheSecondStep) {
  Bench bench = benches::Named("Harbour");
  bench.instruments.back().xyDrive.knobSensitivity = 7;
  bench.instruments.back().zDrive.knobSensitivity = 7;
  OtherRig rig(std::move(bench));
  rig.prompts.ExpectBox("Data_Load Error2", box::kOk);
  auto& page = rig.Show(MakeControlOtherCtl(rig.k70()));
  EXPECT_EQ(page.ComboFocus->index(), -1);
  EXPECT_EQ(rig.k70().COther.curSensitivityZ, 7);
  EXPECT_EQ(rig.k70().COther.curSensitivityXY, 7);
}

TEST(OtherPageLoad, AVersionThatCannotBeReadFailsTheStepThatAsks) {
  for (const bool withKnobs : {true, false}) {
    OtherRig rig(withKnobs ? "Harbour" : "Watch");
    auto& page = rig.Show(MakeControlOtherCtl(rig.k70()));
    rig.faults.Add({"ControllerVersion"});
    rig.prompts.ExpectBox(withKnobs ? "Data_Load Error3" : "Data_Load Error6", box::kOk);
    page.LoadData();
    EXPECT_TRUE(rig.prompts.AllAnswersUsed());
  }
}

TEST(OtherPageLoad, WithoutABodyNoVersionIsAskedFor) {
  for (const char* bench : {"Hub", "Outpost", "Deck", "Shell"}) {
    OtherRig rig(bench);
    rig.Show(MakeControlOtherCtl(rig.k70()));
    EXPECT_EQ(rig.journal.CallCount(), 0U) << bench;
  }
}

TEST(OtherPageLoad, ChangesNothingOfAnyInstrumentAndOnlyAsksForItsVersion) {
  for (const std::string& bench : benches::Names()) {
    OtherRig rig(bench);
    const std::string before = ValuesOf(rig.k70().COther);
    auto& page = rig.Show(MakeControlOtherCtl(rig.k70()));
    page.LoadData();
    EXPECT_EQ(ValuesOf(rig.k70().COther), before) << bench;
    for (const std::string& line : rig.journal.Lines()) {
      EXPECT_EQ(line.substr(0, 20), "ControllerVersion(1)") << bench;
    }
    EXPECT_TRUE(rig.prompts.Boxes().empty()) << bench;
  }
}

struct Coupling {
  const char* what;
  std::function<void(clsControlOther&)> change;
  std::int32_t clsControlOther::*field;
  std::int32_t after;
};

// A selection that the loading makes is a click, and stores what the option stands for.
TEST(OtherPageLoad, ANewSelectionStoresItsOwnValue) {
  for (const Coupling& row : {
           Coupling{"a mode that is neither is kept",
                    [](clsControlOther& other) { other.curAutoXY = 2; },
                    &clsControlOther::curAutoXY, 2},
           Coupling{"switches that are neither become disabled",
                    [](clsControlOther& other) { other.curSwEnable = 2; },
                    &clsControlOther::curSwEnable, 0},
       }) {
    OtherRig rig("Quay");
    auto& page = rig.Show(MakeControlOtherCtl(rig.k70()));
    clsControlOther& other = rig.k70().COther;
    other.curAutoXY = 1;  // its list stays at "Fine"
    page.LoadData();
    row.change(other);
    page.LoadData();
    EXPECT_EQ(other.*row.field, row.after) << row.what;
  }
}

struct KnobRow {
  std::int32_t clsControlOther::*automatic;
  std::int32_t clsControlOther::*sensitivity;
  Control<ComboBox> ControlOtherCtl::*list;
};

// Selecting manual makes the sensitivity coarse, but what was read counts, whatever the list and
// the options showed before.
TEST(OtherPageLoad, FieldAndListShowTheSensitivityThatWasRead) {
  for (const KnobRow& knob :
       {KnobRow{&clsControlOther::curAutoZ, &clsControlOther::curSensitivityZ,
                &ControlOtherCtl::ComboFocus},
        KnobRow{&clsControlOther::curAutoXY, &clsControlOther::curSensitivityXY,
                &ControlOtherCtl::ComboStage}}) {
    for (const std::int32_t modeBefore : {1, 0, -1}) {
      for (const std::int32_t before : {1, 3}) {
        for (const std::int32_t read : {1, 2, 3, -1}) {
          OtherRig rig("Quay");
          auto& page = rig.Show(MakeControlOtherCtl(rig.k70()));
          clsControlOther& other = rig.k70().COther;
          other.*knob.sensitivity = before;
          page.LoadData();
          other.*knob.automatic = modeBefore;
          page.LoadData();
          other.*knob.automatic = 0;
          other.*knob.sensitivity = read;
          page.LoadData();
          EXPECT_EQ(other.*knob.sensitivity, read) << modeBefore << before;
          EXPECT_EQ(other.*knob.automatic, 0);
          if (read > 0) {
            EXPECT_EQ((page.*knob.list)->index(), read - 1) << modeBefore << before;
          }
        }
      }
    }
  }
}

TEST(OtherPageLoad, APageThatIsDestroyedWhileItsBoxStandsIsNotReadAgain) {
  OtherRig rig("Harbour");
  const QPointer<ControlOtherCtl> page = &rig.Show(MakeControlOtherCtl(rig.k70()));
  rig.prompts.ClearRecords();
  rig.k70().COther.curBuzzer = 3;
  rig.prompts.ExpectBox("Data_Load Error4", box::kOk, Answer::Ok, "", [&page] { delete page; });
  page->LoadData();
  EXPECT_EQ(page, nullptr);
  EXPECT_EQ(rig.prompts.Log(), (Lines{"box 0: Data_Load Error4", "flush"}));
}

TEST(OtherPageLoad, ABuzzerOfTwoControllersThatDisagreeSelectsTheOptionWithoutACaption) {
  OtherRig rig("Pair");
  auto& page = rig.Show(MakeControlOtherCtl(rig.k70()));
  EXPECT_EQ(rig.k70().COther.curBuzzer, 2);
  EXPECT_EQ(page.optBuzzer->selected(), 2);
  EXPECT_EQ(page.optBuzzer->button(2)->text(), "");
  EXPECT_TRUE(page.optBuzzer->button(2)->isVisible());
  EXPECT_EQ(page.optBuzzer->button(2)->toolTip(), "The two controllers differ");
}

TEST(OtherPageLoad, AnLedOfThreeFromASettingsFileSelectsTheFirstOptionAndIsKept) {
  OtherRig rig("DeckRemote");
  auto& page = rig.Show(MakeControlOtherCtl(rig.k70()));
  DomDocument file;
  ASSERT_TRUE(file.LoadText(R"(<OTHER><B_KM_RSwitchLED CODE="Off"/></OTHER>)"));
  EXPECT_EQ(rig.k70().COther.ReadDom(file.Children().at(0)), "");
  page.LoadData();
  EXPECT_EQ(page.optR_TLPO_LED->selected(), 0);
  EXPECT_EQ(rig.k70().COther.curR_TLPOLED, 3);
  std::string differences;
  EXPECT_EQ(rig.k70().COther.ModifySdk(differences), "");
  EXPECT_EQ(differences, "");
}

TEST(OtherPageLoad, SavingLeavesTheModelAlone) {
  OtherRig rig("Pair");
  auto& page = rig.Show(MakeControlOtherCtl(rig.k70()));
  rig.k70().COther.curBuzzer = 0;
  const std::string before = ValuesOf(rig.k70().COther);
  page.SaveData();
  EXPECT_EQ(ValuesOf(rig.k70().COther), before);
}

}  // namespace
}  // namespace mortane::test
