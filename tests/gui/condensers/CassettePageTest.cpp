// The sub-page that puts condensers to the addresses of the cassette.
#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QLabel>
#include <QTest>
#include <QWheelEvent>
#include <algorithm>

#include "gui/condensers/CondenserPages.h"
#include "gui/support/PageActs.h"
#include "widgets/ComboBox.h"
#include "widgets/Theme.h"

namespace mortane::test {
namespace {

using Names = std::vector<std::string>;

class CassettePage : public testing::Test {
 protected:
  ~CassettePage() override {
    if (page.parentWidget() == nullptr) delete &page;
  }

  ComboBox& combo(int address) { return *page.Combo1[static_cast<std::size_t>(address - 1)]; }
  Names Offered(int address) { return RowsOf(combo(address)); }
  clsCondenser& cassette() { return rig.k70().curCondenser; }

  PageRig rig{"Harbour"};
  CondenserCassetteCtl& page = *MakeCondenserCassetteCtl(rig.k70());
};

class ShownCassettePage : public CassettePage {
 protected:
  ShownCassettePage() { rig.Show(&page); }
};

struct OfferRow {
  int address;
  Names offered;
};

TEST_F(ShownCassettePage, OffersForEachAddressWhatTheControllerFindsFit) {
  for (const OfferRow& row : {
           OfferRow{1, {"", "Bright", "Ph 1", "Ph 2", "Polar", "Ph 3", "Slit"}},
           OfferRow{2, {"", "Bright", "Ph 1", "Ph 2", "Polar", "Ph 3", "Slit"}},
           OfferRow{3, {"", "Bright", "Ph 1", "Ph 2", "Ph 3", "Slit"}},
           OfferRow{4, {"", "Bright", "Ph 1", "Ph 2", "Darkfield", "Ph 3", "Slit"}},
           OfferRow{5,
                    {"", "Bright", "Ph 1", "Ph 2", "Darkfield", "DIC L", "DIC M", "DIC H", "Ph 3",
                     "Slit"}},
           OfferRow{6, {"", "Bright", "Ph 1", "Ph 2", "DIC L", "DIC M", "DIC H", "Ph 3", "Slit"}},
           OfferRow{7, {"", "Bright", "Ph 1", "Ph 2", "DIC L", "DIC M", "DIC H", "Ph 3", "Slit"}},
       }) {
    EXPECT_EQ(Offered(row.address), row.offered) << row.address;
  }
}

TEST_F(ShownCassettePage, BeginsItsListsAtTheTopOfTheirColumn) {
  EXPECT_EQ(combo(1).y(), 0);
}

TEST_F(ShownCassettePage, ListsAreAsWideAsTheDesignWantsThemAndStandApart) {
  for (int address = 1; address <= 7; ++address) {
    EXPECT_EQ(combo(address).width(), 280);
    const QLabel& label = *page.Label1[static_cast<std::size_t>(address - 1)];
    EXPECT_EQ(combo(address).x() - label.geometry().right() - 1, 12);
    EXPECT_EQ(label.minimumWidth(), QFontMetrics(BoldFont()).horizontalAdvance(label.text()));
    if (address > 1) {
      EXPECT_EQ(combo(address).y() - combo(address - 1).geometry().bottom() - 1, 8);
    }
  }
}

TEST_F(ShownCassettePage, AsksForTheFixedCondensersOnly) {
  rig.journal.Clear();
  page.LoadData();
  const auto& lines = rig.journal.Lines();
  const auto asked = std::count_if(lines.begin(), lines.end(), [](const std::string& line) {
    return line.find("SuitsAddress") != std::string::npos;
  });
  EXPECT_EQ(asked, 7 * 9);
  for (const std::string& line : lines) {
    EXPECT_EQ(line.find("Item(10)"), std::string::npos) << line;
  }
}

TEST_F(ShownCassettePage, ARecordBetweenTheFixedOnesAndTheOptionsIsNotOffered) {
  rig.k70().dbcon.Name(140, "Between");
  page.LoadData();
  for (int address = 1; address <= 7; ++address) EXPECT_EQ(combo(address).rowOf(140), -1);
}

struct NamedRow {
  const char* name;
  bool offered;
};

TEST_F(ShownCassettePage, OffersANamedCondenserOfTheUserAtEveryAddress) {
  for (const NamedRow& row :
       {NamedRow{"Lens", true}, NamedRow{"---------", true}, NamedRow{"-", true},
        NamedRow{" --------", true}, NamedRow{"\t", true}, NamedRow{"----------", false},
        NamedRow{"", false}, NamedRow{" ", false}, NamedRow{"          ", false}}) {
    rig.k70().dbcon.Name(145, row.name);
    page.LoadData();
    for (int address = 1; address <= 7; ++address) {
      EXPECT_EQ(combo(address).rowOf(145) >= 0, row.offered) << address << " '" << row.name << "'";
    }
  }
}

TEST_F(ShownCassettePage, AnEmptyAddressShowsNoSelection) {
  cassette().code(2, 0);
  page.LoadData();
  EXPECT_EQ(combo(2).currentIndex(), -1);
  EXPECT_EQ(combo(2).data(0).toInt(), 0) << "although code 0 has a row";
}

TEST_F(ShownCassettePage, ACodeWithoutARowShowsNothingAndStays) {
  for (const std::int32_t code : {4, 10, 140, 142, 149}) {
    cassette().code(1, code);
    page.LoadData();
    EXPECT_EQ(combo(1).currentIndex(), -1) << code;
    page.SaveData();
    EXPECT_EQ(cassette().code(1), code);
  }
}

TEST_F(ShownCassettePage, ACodeBelowZeroHidesItsRowUntilALoadingFindsAnother) {
  for (const std::int32_t code : {-1, 3}) {
    cassette().code(3, code);
    page.LoadData();
    for (std::size_t row = 0; row < page.Combo1.size(); ++row) {
      const bool shown = row != 2 || code >= 0;
      EXPECT_EQ(page.Combo1[row]->isVisible(), shown) << row << " with " << code;
      EXPECT_EQ(page.Label1[row]->isVisible(), shown) << row << " with " << code;
    }
    EXPECT_EQ(cassette().code(3), code);
  }
}

TEST_F(ShownCassettePage, MakingAndShowingThePageStoresNothing) {
  for (int address = 1; address <= 7; ++address) EXPECT_EQ(cassette().code(address), address);
}

TEST_F(ShownCassettePage, ChoosingTheRowOnShowStoresItAgain) {
  ASSERT_EQ(combo(1).currentText(), "Bright");
  cassette().code(1, 9);
  ChooseRow(combo(1), 1);
  EXPECT_EQ(cassette().code(1), 1);
}

TEST_F(ShownCassettePage, ArrowsOfTheKeyboardChooseTheNextRow) {
  combo(5).setFocus();
  QTest::keyClick(&combo(5), Qt::Key_Down);
  EXPECT_EQ(cassette().code(5), 6);
  QTest::keyClick(&combo(5), Qt::Key_Up);
  QTest::keyClick(&combo(5), Qt::Key_Up);
  EXPECT_EQ(cassette().code(5), 4);
}

TEST_F(ShownCassettePage, TheEscapeKeyLeavesTheListWithoutAChoice) {
  combo(5).setFocus();
  QTest::keyClick(&combo(5), Qt::Key_Return);
  ASSERT_NE(QApplication::activePopupWidget(), nullptr);
  QTest::keyClick(combo(5).view(), Qt::Key_Down);
  QTest::keyClick(combo(5).view(), Qt::Key_Escape);
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  EXPECT_EQ(cassette().code(5), 5);
}

TEST_F(ShownCassettePage, TheWheelWithoutTheFocusChangesNothing) {
  rig.elsewhere().setFocus();
  const QPointF place(10, 10);
  QWheelEvent wheel(place, combo(5).mapToGlobal(place), {}, QPoint(0, -120), Qt::NoButton,
                    Qt::NoModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(&combo(5), &wheel);
  EXPECT_EQ(cassette().code(5), 5);
  EXPECT_EQ(combo(5).currentText(), "DIC L");
}

TEST_F(ShownCassettePage, LoadingAgainKeepsTheRowsInNumberAndSelection) {
  const Names before = Offered(5);
  page.LoadData();
  EXPECT_EQ(Offered(5), before);
  EXPECT_EQ(combo(5).currentText(), "DIC L");
}

class CassetteSizes : public testing::TestWithParam<std::int32_t> {};

TEST_P(CassetteSizes, AlwaysShowSevenRows) {
  Bench bench = benches::Named("Harbour");
  controller::TurretPlaces& places = bench.instruments.back().condensers;
  places.clear();
  for (std::int32_t address = 1; address <= GetParam(); ++address) places.push_back({address, 1});
  PageRig rig(std::move(bench));
  auto& page = rig.Show(MakeCondenserCassetteCtl(rig.k70()));
  ASSERT_EQ(rig.k70().curCondenser.Count, GetParam());
  for (std::size_t row = 0; row < page.Combo1.size(); ++row) {
    EXPECT_TRUE(page.Combo1[row]->isVisible()) << row;
    EXPECT_TRUE(page.Label1[row]->isVisible()) << row;
    const bool filled = static_cast<std::int32_t>(row) < GetParam();
    EXPECT_EQ(page.Combo1[row]->currentText(), filled ? "Bright" : "") << row;
  }
}

INSTANTIATE_TEST_SUITE_P(Addresses, CassetteSizes, testing::Values(0, 1, 5, 7, 10));

// Before it is made its loading asks which condensers fit, and that is what it offers.
TEST_F(CassettePage, IsFilledByWhatItsLoadingAsked) {
  const LatePlan plan = CondenserCassetteCtl::Plan(cassette(), rig.k70().dbcon);
  rig.journal.Clear();
  EXPECT_TRUE(plan.load());
  EXPECT_GT(rig.journal.CallCount(), 0U);
  rig.journal.Clear();
  plan.fill(page);
  EXPECT_EQ(rig.journal.CallCount(), 0U);
  EXPECT_EQ(Offered(3), (Names{"", "Bright", "Ph 1", "Ph 2", "Ph 3", "Slit"}));
}

TEST_F(CassettePage, OffersCodeZeroAndTheUsersOwnWhereTheControllerCannotBeAsked) {
  for (const char* call : {"AccessoryDatabase.CondenserCount", "AccessoryDatabase.Condensers"}) {
    rig.faults.Clear();
    rig.faults.Add({call});
    page.LoadData();
    EXPECT_EQ(Offered(1), (Names{"", "Slit"})) << call;
  }
}

TEST_F(CassettePage, LeavesOutARecordThatGivesNoAnswer) {
  rig.faults.Add({"AccessoryDatabase.Condensers.Item(2).SuitsAddress(1)"});
  page.LoadData();
  EXPECT_EQ(Offered(1), (Names{"", "Bright", "Ph 2", "Polar", "Ph 3", "Slit"}));
  EXPECT_EQ(Offered(3), (Names{"", "Bright", "Ph 1", "Ph 2", "Ph 3", "Slit"}));
}

TEST(CassettePageAlone, OffersCodeZeroOnlyWithoutAController) {
  PageRig rig("Harbour", Link::None);
  rig.faults.Add({"AccessoryDatabase"});
  auto& page = rig.Show(MakeCondenserCassetteCtl(rig.k70()));
  for (const ComboBox* combo : page.Combo1) {
    EXPECT_EQ(RowsOf(*combo), Names{""});
    EXPECT_EQ(combo->currentIndex(), -1);
  }
}

}  // namespace
}  // namespace mortane::test
