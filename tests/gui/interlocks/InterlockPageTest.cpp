// The interlock page with its three sub-pages.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QShowEvent>
#include <QSignalSpy>
#include <QTest>

#include "gui/interlocks/InterlockPages.h"
#include "gui/interlocks/ModelText.h"
#include "gui/support/LatePages.h"
#include "gui/support/PageActs.h"
#include "widgets/CheckToggle.h"
#include "widgets/ComboBox.h"
#include "widgets/PageHeader.h"
#include "widgets/SectionBar.h"

namespace mortane::test {
namespace {

constexpr int kObservation = 0;
constexpr int kOther = 1;
constexpr int kCompensation = 2;

class InterlockPage : public testing::Test {
 protected:
  InterlockPage() { rig.Show(&page); }

  void Click(int option) { ClickButton(*page.optSettings->option(option)); }
  std::vector<bool> Visible() {
    return {page.InterlockObservationCtl1->isVisible(), page.InterlockOtherCtl1->isVisible(),
            page.InterlockOffsetCtl1->isVisible()};
  }
  CheckToggle& lamp() { return *page.InterlockObservationCtl1->CheckAccessories[0]; }
  CheckToggle& aperture() { return *page.InterlockOtherCtl1->CheckNosepiece[3]; }
  ComboBox& factor() { return *page.InterlockOffsetCtl1->ComboNDFilter; }
  InterlockPageUnits& k70() { return rig.k70(); }

  PageRig rig{"Harbour"};
  InterlockSettingsCtl& page = *MakeInterlockSettingsCtl(rig.k70());
};

TEST_F(InterlockPage, OpensOnWhatFollowsTheObservation) {
  EXPECT_EQ(page.Header->title(), "Interlocks");
  EXPECT_EQ(page.CurrentItem(), kObservation);
  EXPECT_EQ(Visible(), (std::vector<bool>{true, false, false}));
}

TEST_F(InterlockPage, AClickShowsOneSubPageAtATimeAndTellsIt) {
  QSignalSpy changes(&page, &ContainerPage::Change);
  for (const int section : {kOther, kCompensation, kObservation, kObservation}) {
    Click(section);
    EXPECT_EQ(page.CurrentItem(), section);
    std::vector<bool> expected(3, false);
    expected[static_cast<std::size_t>(section)] = true;
    EXPECT_EQ(Visible(), expected) << section;
    EXPECT_EQ(changes.takeLast().at(0).toInt(), section);
  }
}

TEST_F(InterlockPage, ArrowsChooseTheSection) {
  page.optSettings->option(0)->setFocus();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
  EXPECT_EQ(page.CurrentItem(), kOther);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
  EXPECT_EQ(page.CurrentItem(), kCompensation);
}

// They edit other units than those that they show then.
void ChangeModel(InterlockPageUnits& k70) {
  k70.ILObservation.Status(4, 0);
  k70.ILOther.Status(3, 0);
  k70.ILOffset.curND = 9;
}

TEST_F(InterlockPage, LoadingFillsAllThreeAndLeadsBackToTheFirst) {
  Click(kCompensation);
  ChangeModel(k70());
  page.LoadData();
  EXPECT_FALSE(lamp().isChecked());
  EXPECT_FALSE(aperture().isChecked());
  EXPECT_EQ(factor().currentText(), "0.55");
  EXPECT_EQ(page.CurrentItem(), kObservation);
}

TEST_F(InterlockPage, AClickOnASectionLoadsNothing) {
  MakeAllPages(page);
  ChangeModel(k70());
  for (const int section : {kOther, kCompensation, kObservation}) Click(section);
  EXPECT_TRUE(lamp().isChecked());
  EXPECT_TRUE(aperture().isChecked());
  EXPECT_EQ(factor().currentText(), "0.75");
}

TEST_F(InterlockPage, ShownByTheProgramItLoadsTheSecondSubPageAlone) {
  MakeAllPages(page);
  ChangeModel(k70());
  page.hide();
  EXPECT_TRUE(aperture().isChecked());
  page.show();
  EXPECT_FALSE(aperture().isChecked());
  EXPECT_TRUE(lamp().isChecked());
  EXPECT_EQ(factor().currentText(), "0.75");
  EXPECT_EQ(page.CurrentItem(), kObservation);
  k70().ILOther.Status(3, 1);
  page.hide();
  page.show();
  EXPECT_TRUE(aperture().isChecked()) << "each time";
}

TEST_F(InterlockPage, ShownByTheWindowManagerItLoadsNothing) {
  ChangeModel(k70());
  QShowEvent event;
  QSpontaneKeyEvent::setSpontaneous(&event);
  qApp->notify(&page, &event);
  EXPECT_TRUE(aperture().isChecked());
}

TEST(InterlockPageAlone, WithControllerUnitFiveShowingItLoadsNothing) {
  Bench bench = benches::Named("Harbour");
  SetUnits(bench.instruments.back(), {0, 4, 5});
  PageRig rig(std::move(bench));
  auto& page = rig.Show(MakeInterlockSettingsCtl(rig.k70()));
  ASSERT_TRUE(rig.k70().Controller(controllerunit::kUnit5));
  ChangeModel(rig.k70());
  page.hide();
  page.show();
  EXPECT_TRUE(page.InterlockOtherCtl1->CheckNosepiece[3]->isChecked());
}

TEST(InterlockPageAlone, ShowingItLoadsTheSecondSubPageAlsoWhereItIsNotOffered) {
  PageRig rig("Pair");
  auto& page = rig.Show(MakeInterlockSettingsCtl(rig.k70()));
  ASSERT_FALSE(page.optSettings->option(kOther)->isEnabled());
  rig.k70().ILOther.Status(14, 1);
  page.hide();
  page.show();
  EXPECT_TRUE(page.InterlockOtherCtl1->CheckNosepiece[5]->isChecked());
  EXPECT_EQ(rig.k70().CXYDrive.curFocusCompensation, 3);
}

// The version of the body is asked, since there is no stage to control.
TEST(InterlockPageAlone, IsShownWhicheverCallOfTheControllerFails) {
  PageRig rig("Lantern");
  auto& page = rig.Show(MakeInterlockSettingsCtl(rig.k70()));
  for (const bool answers : {false, true}) {
    page.hide();
    rig.journal.Clear();
    if (!answers) rig.faults.FailCall(1);
    page.show();
    EXPECT_EQ(rig.journal.CallCount(), 1U);
    EXPECT_EQ(page.InterlockOtherCtl1->CheckNosepiece[5]->isHidden(), answers);
  }
  EXPECT_EQ(rig.faults.Hits(), 1U);
  EXPECT_TRUE(rig.prompts.Boxes().empty());
}

TEST_F(InterlockPage, SavingChangesNothingWhicheverSectionIsOnShow) {
  for (const int section : {kObservation, kOther, kCompensation}) {
    Click(section);
    ChangeModel(k70());
    const std::string before = ModelText(k70());
    page.SaveData();
    EXPECT_EQ(ModelText(k70()), before) << section;
  }
}

TEST_F(InterlockPage, TheTabKeyGoesFromTheSectionToItsSwitches) {
  Click(kOther);
  EXPECT_EQ(rig.TabOrder(),
            (std::vector<std::string>{"optSettings_1", "CheckNosepiece_0", "CheckNosepiece_1",
                                      "CheckNosepiece_2", "CheckNosepiece_3", "CheckNosepiece_4",
                                      "CheckNosepiece_5", "CheckLightPath_0", "CheckLightPath_1",
                                      "CheckLightPath_2", "CheckOpticalZoom_0",
                                      "CheckOpticalZoom_1", "CheckOpticalZoom_2"}));
  Click(kCompensation);
  EXPECT_EQ(rig.TabOrder(),
            (std::vector<std::string>{"optSettings_2", "ComboNDFilter", "ComboFieldStop",
                                      "ComboApertureStop", "ComboEpiFieldStop"}));
}

struct SectionRow {
  const char* bench;
  std::vector<bool> offered;
  int first;
};

TEST(InterlockPageAlone, OffersOnEachBenchWhatItsUnitsEnable) {
  const std::vector<SectionRow> rows{
      {"Quay", {true, true, true}, 0},         {"Harbour", {true, true, true}, 0},
      {"Lantern", {true, true, true}, 0},      {"Hub", {false, true, false}, 1},
      {"Pair", {true, false, false}, 0},       {"Outpost", {false, false, false}, 0},
      {"Relay", {false, false, false}, 0},     {"Deck", {true, false, false}, 0},
      {"DeckRemote", {true, false, false}, 0}, {"Watch", {false, false, false}, 0},
      {"Shell", {false, false, false}, 0},     {"Hollow", {true, true, true}, 0},
      {"Attic", {true, true, true}, 0},        {"Crowd", {false, true, false}, 1},
  };
  EXPECT_EQ(rows.size(), benches::Names().size());
  for (const SectionRow& row : rows) {
    PageRig rig(row.bench, Link::None);
    ReceiveWhatever(rig);
    auto& page = rig.Show(MakeInterlockSettingsCtl(rig.k70()));
    for (int i = 0; i < 3; ++i) {
      EXPECT_EQ(page.optSettings->option(i)->isEnabled(), row.offered[static_cast<std::size_t>(i)])
          << row.bench << i;
    }
    EXPECT_EQ(page.CurrentItem(), row.first) << row.bench;
    EXPECT_EQ(page.InterlockObservationCtl1->isVisible(), row.first == 0) << row.bench;
    EXPECT_EQ(page.InterlockOtherCtl1->isVisible(), row.first == 1) << row.bench;
  }
}

struct FitRow {
  const char* what;
  std::vector<std::int32_t> fitted;
  std::vector<bool> offered;
  int first;
};

// On a microscope with a body that has these accessories alone.
TEST(InterlockPageAlone, SectionsDependOnTheAccessories) {
  for (const FitRow& row :
       {FitRow{"none of the eleven", {12, 13, 14}, {false, false, true}, 2},
        FitRow{"a nosepiece and a stage", {9, 14}, {true, false, false}, 0},
        FitRow{"a nosepiece and a focus drive", {9, 12}, {true, true, false}, 0},
        FitRow{"the stage alone", {14}, {false, false, false}, 0},
        FitRow{"a zoom and an epi field stop", {10, 13}, {true, true, true}, 0},
        FitRow{"a lamp", {4}, {true, false, false}, 0}}) {
    Bench bench = benches::Named("Harbour");
    for (std::int32_t k = 1; k <= 14; ++k) Fit(bench.instruments.back(), k, kNotMounted);
    for (const std::int32_t k : row.fitted) Fit(bench.instruments.back(), k, kControllable);
    PageRig rig(std::move(bench));
    auto& page = rig.Show(MakeInterlockSettingsCtl(rig.k70()));
    for (int i = 0; i < 3; ++i) {
      EXPECT_EQ(page.optSettings->option(i)->isEnabled(), row.offered[static_cast<std::size_t>(i)])
          << row.what << i;
    }
    EXPECT_EQ(page.CurrentItem(), row.first) << row.what;
  }
}

TEST(InterlockPageAlone, ASectionThatIsNotOfferedSaysWhy) {
  const std::vector<QString> reasons{
      "Nothing is mounted that follows the observation method.",
      "Nothing is mounted that follows nosepiece, light path or zoom.",
      "Nothing is mounted that is compensated."};
  for (const char* bench : {"Shell", "Harbour"}) {
    PageRig rig(bench);
    auto& page = rig.Show(MakeInterlockSettingsCtl(rig.k70()));
    for (int i = 0; i < 3; ++i) {
      const QAbstractButton& option = *page.optSettings->option(i);
      EXPECT_EQ(option.toolTip(),
                option.isEnabled() ? QString() : reasons[static_cast<std::size_t>(i)]);
    }
  }
}

TEST(InterlockPageAlone, ASectionThatIsNotOfferedTakesNoClick) {
  PageRig rig("Hub");
  auto& page = rig.Show(MakeInterlockSettingsCtl(rig.k70()));
  ASSERT_EQ(page.CurrentItem(), kOther);
  ClickButton(*page.optSettings->option(kObservation));
  ClickButton(*page.optSettings->option(kCompensation));
  EXPECT_EQ(page.CurrentItem(), kOther);
  EXPECT_TRUE(page.InterlockOtherCtl1->isVisible());
}

std::vector<bool> EnabledSwitches(const InterlockObservationCtl& page) {
  std::vector<bool> enabled;
  for (const CheckToggle* box : page.CheckAccessories) enabled.push_back(box->isEnabled());
  return enabled;
}

// A section that is not offered is not loaded; the first one is on show all the same where none is.
TEST(InterlockPageAlone, WhatAFailedReadLeftUnloadedCannotBeClicked) {
  PageRig rig("Deck");
  auto& page = rig.Show(MakeInterlockSettingsCtl(rig.k70()));
  InterlockObservationCtl& first = *page.InterlockObservationCtl1;
  clsInterLockObservation& states = rig.k70().ILObservation;
  const std::vector<bool> loaded = EnabledSwitches(first);
  const std::vector<bool> none(loaded.size(), false);
  EXPECT_NE(loaded, none);
  rig.faults.FailCall(1);
  EXPECT_NE(states.ReadSdk(), "");
  ASSERT_FALSE(states.IsEnable());
  page.LoadData();
  EXPECT_TRUE(first.isVisible());
  EXPECT_EQ(EnabledSwitches(first), none);
  for (std::size_t i = 0; i < loaded.size(); ++i) {
    const bool on = first.CheckAccessories[i]->isChecked();
    EXPECT_FALSE(first.lblAccessories[i]->isEnabled()) << i;
    ClickButton(*first.CheckAccessories[i]);
    EXPECT_EQ(first.CheckAccessories[i]->isChecked(), on) << i;
  }
  rig.faults.Clear();
  EXPECT_EQ(states.ReadSdk(), "");
  page.LoadData();
  EXPECT_EQ(EnabledSwitches(first), loaded);
}

TEST(InterlockPageAlone, AFirstSectionThatWasNeverLoadedCannotBeClicked) {
  for (const char* bench : {"Outpost", "Shell"}) {
    PageRig rig(bench);
    auto& page = rig.Show(MakeInterlockSettingsCtl(rig.k70()));
    EXPECT_TRUE(page.InterlockObservationCtl1->isVisible()) << bench;
    EXPECT_EQ(EnabledSwitches(*page.InterlockObservationCtl1), std::vector<bool>(11, false));
  }
}

TEST(InterlockPageAlone, GoesToTheSectionThatTheNextMicroscopeHas) {
  PageRig rig(List({"Quay", "Hub", "Harbour"}));
  auto& page = rig.Show(MakeInterlockSettingsCtl(rig.k70()));
  ClickButton(*page.optSettings->option(kCompensation));
  rig.k70().Disconnect();
  rig.k70().Connect(1);
  rig.k70().Receive();
  page.LoadData();
  EXPECT_EQ(page.CurrentItem(), kOther);
  EXPECT_FALSE(page.optSettings->option(kCompensation)->isEnabled());
  EXPECT_FALSE(page.InterlockOffsetCtl1->isVisible());
}

TEST(InterlockPageAlone, HasNothingSelectedBeforeItIsLoaded) {
  PageRig rig("Harbour");
  const std::unique_ptr<InterlockSettingsCtl> page(MakeInterlockSettingsCtl(rig.k70()));
  EXPECT_EQ(page->CurrentItem(), -1);
}

}  // namespace
}  // namespace mortane::test
