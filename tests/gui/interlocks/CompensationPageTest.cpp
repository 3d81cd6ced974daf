// The sub-page of the factors that the proper values are multiplied by.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QTest>
#include <QWheelEvent>

#include "common/Numbers.h"
#include "gui/interlocks/InterlockPages.h"
#include "gui/interlocks/ModelText.h"
#include "gui/support/PageActs.h"
#include "widgets/ComboBox.h"
#include "widgets/Theme.h"

namespace mortane::test {
namespace {

const std::vector<std::string> kFactors{"1.00", "0.95", "0.90", "0.85", "0.80",
                                        "0.75", "0.70", "0.65", "0.60", "0.55"};

class CompensationPage : public testing::Test {
 protected:
  CompensationPage() { rig.Show(&page); }

  // From the top.
  std::vector<ComboBox*> Lists() {
    return {page.ComboNDFilter, page.ComboFieldStop, page.ComboApertureStop,
            page.ComboEpiFieldStop};
  }
  std::vector<QLabel*> Labels() {
    return {page.lblNDFilter, page.lblFieldStop, page.lblApertureStop, page.lblEpiFieldStop};
  }
  clsInterLockOffset& unit() { return rig.k70().ILOffset; }

  PageRig rig{"Harbour"};
  InterlockOffsetCtl& page = *MakeInterlockOffsetCtl(rig.k70());
};

TEST_F(CompensationPage, OffersTheTenFactorsInTheOrderOfTheirCodes) {
  for (const ComboBox* list : Lists()) EXPECT_EQ(RowsOf(*list), kFactors);
}

TEST_F(CompensationPage, FactorsHaveAPointWhateverTheNumbersOfTheSystemHave) {
  SetSystemNumberFormat({",", "."});
  PageRig other("Harbour");
  EXPECT_EQ(RowsOf(*other.Show(MakeInterlockOffsetCtl(other.k70())).ComboNDFilter), kFactors);
  SetSystemNumberFormat(PointFormat());
}

TEST_F(CompensationPage, RowsReadAsProperValueTimesFactor) {
  const auto place = [&](const QWidget* control) { return control->mapTo(&page, QPoint(0, 0)); };
  for (std::size_t i = 0; i < 4; ++i) {
    EXPECT_EQ(page.Label1[i]->toolTip(),
              "The proper value is calculated using information such as objective N.A and "
              "condenser focal length.");
    EXPECT_EQ(Labels()[i]->buddy(), Lists()[i]);
    EXPECT_LT(place(Labels()[i]).x(), place(page.Label1[i]).x());
    EXPECT_LT(place(page.Label1[i]).x(), place(Lists()[i]).x());
    EXPECT_EQ(place(Lists()[i]).x(), place(Lists()[0]).x()) << "one column";
    if (i > 0) {
      EXPECT_GT(place(Lists()[i]).y(), place(Lists()[i - 1]).y());
    }
  }
  EXPECT_GT(place(page.Label2).y(), place(Lists()[3]).y());
  EXPECT_EQ(page.ComboNDFilter->font(), FixedFont());
  for (const ComboBox* list : Lists()) EXPECT_EQ(list->width(), 96);
}

TEST_F(CompensationPage, MakingAndShowingThePageStoresNothing) {
  EXPECT_EQ(unit().curND, 5);
  EXPECT_EQ(unit().curFStop, 0);
  EXPECT_EQ(unit().curAStop, 0);
  EXPECT_EQ(unit().curEpiFStop, 0);
  PageRig unconnected("Harbour", Link::None);
  const auto& made = unconnected.Show(MakeInterlockOffsetCtl(unconnected.k70()));
  EXPECT_EQ(unconnected.k70().ILOffset.curND, -1);
  EXPECT_EQ(made.ComboNDFilter->currentIndex(), -1);
  EXPECT_FALSE(unconnected.k70().ILOffset.IsEnable());
}

TEST_F(CompensationPage, AChoiceReachesItsFieldAndNoOther) {
  ChooseRow(*page.ComboEpiFieldStop, 9);
  EXPECT_EQ(unit().curEpiFStop, 9);
  EXPECT_EQ(unit().curND, 5);
  EXPECT_EQ(unit().curFStop, 0);
  EXPECT_EQ(unit().curAStop, 0);
  page.ComboApertureStop->setFocus();
  QTest::keyClick(page.ComboApertureStop, Qt::Key_Down);
  EXPECT_EQ(unit().curAStop, 1);
  EXPECT_EQ(rig.journal.CallCount(), 0U) << "nothing is sent";
}

TEST_F(CompensationPage, ChoosingTheFactorOnShowStoresItAgain) {
  unit().curND = 2;
  ChooseRow(*page.ComboNDFilter, 5);
  EXPECT_EQ(unit().curND, 5);
}

TEST_F(CompensationPage, TheWheelChangesNothing) {
  page.ComboNDFilter->setFocus();
  const QPointF place(10, 10);
  QWheelEvent wheel(place, page.ComboNDFilter->mapToGlobal(place), {}, QPoint(0, -120),
                    Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(page.ComboNDFilter, &wheel);
  EXPECT_EQ(unit().curND, 5);
}

TEST_F(CompensationPage, ACodeThatIsNoFactorShowsNothingAndStays) {
  for (const std::int32_t code : {10, 255, -2}) {
    unit().curFStop = code;
    page.LoadData();
    EXPECT_EQ(page.ComboFieldStop->currentIndex(), -1) << code;
    EXPECT_TRUE(page.ComboFieldStop->isEnabled()) << code;
    EXPECT_EQ(unit().curFStop, code);
  }
}

struct FileRow {
  const char* code;
  std::int32_t expected;
  const char* shown;
};

TEST_F(CompensationPage, ACodeOfAFileIsShownAsTheUnitTakesIt) {
  for (const FileRow& row : {FileRow{"10", 5, "0.75"}, FileRow{"-1", 5, "0.75"},
                             FileRow{"abc", 0, "1.00"}, FileRow{"9", 9, "0.55"}}) {
    unit().curND = 5;
    const std::string xml = std::string("<OFFSET POSITION=\"ND\" CODE=\"") + row.code + "\"/>";
    EXPECT_EQ(ReadElement(unit(), xml), "");
    page.LoadData();
    EXPECT_EQ(unit().curND, row.expected) << row.code;
    EXPECT_EQ(page.ComboNDFilter->currentText(), row.shown) << row.code;
  }
}

TEST_F(CompensationPage, AnUnknownFieldDisablesItsRowWhichKeepsItsFactor) {
  for (std::int32_t clsInterLockOffset::*field :
       {&clsInterLockOffset::curND, &clsInterLockOffset::curFStop, &clsInterLockOffset::curAStop,
        &clsInterLockOffset::curEpiFStop}) {
    unit().*field = -1;
  }
  page.LoadData();
  for (std::size_t i = 0; i < 4; ++i) {
    EXPECT_FALSE(Lists()[i]->isEnabled()) << i;
    EXPECT_FALSE(Labels()[i]->isEnabled()) << i;
    EXPECT_TRUE(page.Label1[i]->isEnabled()) << i;
    EXPECT_EQ(Lists()[i]->currentText(), i == 0 ? "0.75" : "1.00") << i;
  }
  unit().curND = 3;
  page.LoadData();
  EXPECT_TRUE(page.ComboNDFilter->isEnabled());
  EXPECT_TRUE(page.lblNDFilter->isEnabled());
  EXPECT_EQ(page.ComboNDFilter->currentText(), "0.85");
}

TEST(CompensationPageAlone, AFactorOfAFileForAnEpiFieldStopThatIsNotMountedIsNotShownNorSent) {
  for (const std::int32_t mounted : {kNotMounted, kSensorOnly}) {
    Bench bench = benches::Named("Relay");
    Fit(bench.instruments.back(), 13, mounted);
    PageRig rig(std::move(bench));
    auto& page = rig.Show(MakeInterlockOffsetCtl(rig.k70()));
    clsInterLockOffset& unit = rig.k70().ILOffset;
    EXPECT_EQ(ReadElement(unit, R"(<OFFSET POSITION="EpiFStop" CODE="4"/>)"), "");
    page.LoadData();
    EXPECT_EQ(unit.curEpiFStop, 4);
    EXPECT_FALSE(unit.IsEnable());
    EXPECT_FALSE(page.ComboEpiFieldStop->isEnabled());
    EXPECT_FALSE(page.lblEpiFieldStop->isEnabled());
    EXPECT_EQ(page.ComboEpiFieldStop->currentIndex(), -1);
    EXPECT_EQ(unit.WriteSdk(), "");
    EXPECT_TRUE(rig.journal.Writes().empty());
  }
}

TEST_F(CompensationPage, LoadingUnderTheFocusKeepsItAndStoresNothing) {
  page.ComboNDFilter->setFocus();
  unit().curND = 7;
  const std::string before = ModelText(rig.k70());
  page.LoadData();
  EXPECT_TRUE(page.ComboNDFilter->hasFocus());
  EXPECT_EQ(page.ComboNDFilter->currentText(), "0.65");
  EXPECT_EQ(ModelText(rig.k70()), before);
  unit().curND = -1;
  page.LoadData();
  QApplication::processEvents();
  EXPECT_EQ(unit().curND, -1);
}

TEST_F(CompensationPage, HidingDisablingAndDestroyingStoreNothing) {
  page.ComboNDFilter->setFocus();
  unit().curND = 7;
  ExpectTheEndOfThePageStoresNothing(rig, &page);
}

TEST(CompensationPageAlone, KeepsTheFactorOfAFormerMicroscopeWhereTheNextHasNone) {
  PageRig rig(List({"Quay", "Hub", "Harbour"}));
  auto& page = rig.Show(MakeInterlockOffsetCtl(rig.k70()));
  ASSERT_EQ(page.ComboNDFilter->currentText(), "0.75");
  rig.k70().Disconnect();
  rig.k70().Connect(1);
  rig.k70().Receive();
  page.LoadData();
  EXPECT_FALSE(page.ComboNDFilter->isEnabled());
  EXPECT_EQ(page.ComboNDFilter->currentText(), "0.75");
  EXPECT_EQ(rig.k70().ILOffset.curND, -1);
}

}  // namespace
}  // namespace mortane::test
