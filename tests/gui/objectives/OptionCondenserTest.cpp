// The condensers that the page of the user's objectives offers.
#include <gtest/gtest.h>

#include <QFrame>
#include <algorithm>

#include "OptionTexts.h"
#include "gui/objectives/ObjectivePages.h"
#include "gui/support/PageActs.h"
#include "widgets/ComboBox.h"
#include "widgets/ListBox.h"
#include "widgets/TabStrip.h"

namespace mortane::test {
namespace {

using Texts = std::vector<std::string>;

TEST(OptionCondenser, OffersTheFixedCondensersButThreeOfThem) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeObjectiveOptionCtl(rig.k70()));
  EXPECT_EQ(RowsOf(*page.ComboCondenser),
            (Texts{"None", "Ph 1", "Ph 2", "DIC L", "DIC M", "DIC H", "Ph 3"}));
  std::vector<int> codes;
  codes.reserve(static_cast<std::size_t>(page.ComboCondenser->count()));
  for (int i = 0; i < page.ComboCondenser->count(); ++i) {
    codes.push_back(page.ComboCondenser->data(i).toInt());
  }
  EXPECT_EQ(codes, (std::vector<int>{0, 2, 3, 5, 6, 7, 9}));
}

TEST(OptionCondenser, ACodeOfZeroIsNone) {
  PageRig rig("Harbour");
  rig.k70().DbNosepiece.Set_DbNosepiece(1, "Mine", 1, 1, "5", "1", "0.1", 0);
  auto& page = rig.Show(MakeObjectiveOptionCtl(rig.k70()));
  EXPECT_EQ(page.ComboCondenser->currentText(), "None");
  ClickTab(*page.TabStrip1, 1);
  ASSERT_EQ(page.ComboCondenser->currentText(), "DIC L");
  ClickTab(*page.TabStrip1, 0);
  EXPECT_EQ(page.ComboCondenser->currentText(), "None");
}

TEST(OptionCondenser, StandsBelowTheNumbersInALargeWindowToo) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeObjectiveOptionCtl(rig.k70()));
  rig.window().resize(1000, 1200);
  QApplication::processEvents();
  EXPECT_EQ(page.FrmCondenser->height(), page.FrmCondenser->sizeHint().height());
  EXPECT_EQ(page.ComboCondenser->height(), page.ComboCondenser->sizeHint().height());
}

struct StopRow {
  int record;
  const char* name;
  bool option;
  Texts rows;
};

TEST(OptionCondenser, TheFirstBlankOrOptionalRecordEndsTheCondensers) {
  for (const StopRow& row :
       {StopRow{1, "--", false, {"None"}}, StopRow{1, "Mine", true, {"None"}},
        StopRow{3, "--------", false, {"None", "Ph 1"}},
        StopRow{3, "-", false, {"None", "Ph 1", "-", "DIC L", "DIC M", "DIC H", "Ph 3"}},
        StopRow{4, "--", false, {"None", "Ph 1", "Ph 2"}},
        StopRow{6, "Mine", true, {"None", "Ph 1", "Ph 2", "DIC L"}}}) {
    Bench bench = benches::Named("Harbour");
    auto& record =
        bench.instruments.back().database.condensers[static_cast<std::size_t>(row.record) - 1];
    record.name = row.name;
    record.option = row.option;
    PageRig rig(std::move(bench));
    auto& page = rig.Show(MakeObjectiveOptionCtl(rig.k70()));
    EXPECT_EQ(RowsOf(*page.ComboCondenser), row.rows) << row.record << row.name;
  }
}

TEST(OptionCondenser, ARecordBeyondNineIsOfferedToo) {
  Bench bench = benches::Named("Harbour");
  auto& condensers = bench.instruments.back().database.condensers;
  const auto tenth = std::find_if(condensers.begin(), condensers.end(),
                                  [](const auto& record) { return record.option; });
  condensers.insert(tenth, {10, false, "Tenth", "1111111111"});
  PageRig rig(std::move(bench));
  auto& page = rig.Show(MakeObjectiveOptionCtl(rig.k70()));
  Enter(*page.ComboCondenser, "Tenth");
  EXPECT_EQ(First(rig.k70()), "Clinic 25x|2|3|25|1.98|0.95|10");
}

TEST(OptionCondenser, ChoosingTheCondenserOnShowStoresAgain) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeObjectiveOptionCtl(rig.k70()));
  rig.k70().DbNosepiece.Set_DbNosepiece(1, "Other", 1, 1, "1", "1", "1", 0);
  Enter(*page.ComboCondenser, "Ph 2");
  EXPECT_EQ(First(rig.k70()), "Clinic 25x|2|3|25|1.98|0.95|3");
}

TEST(OptionCondenser, WithoutACondenserTheRowsAndTheStoredCodeStay) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeObjectiveOptionCtl(rig.k70()));
  const Texts before = RowsOf(*page.ComboCondenser);
  rig.instrument().Accessory(accessory::kCondenser).state = 0;
  page.LoadData();
  EXPECT_FALSE(page.FrmCondenser->isEnabled());
  EXPECT_EQ(RowsOf(*page.ComboCondenser), before);
  Enter(*page.ListMag, "5x");
  EXPECT_EQ(First(rig.k70()), "Clinic 25x|2|3|5|1.98|0.95|3");
}

TEST(OptionCondenser, OnlyAStateOfOneIsACondenser) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeObjectiveOptionCtl(rig.k70()));
  for (const std::int32_t state : {0, 1, 2}) {
    rig.instrument().Accessory(accessory::kCondenser).state = state;
    page.LoadData();
    EXPECT_EQ(page.FrmCondenser->isEnabled(), state == 1) << state;
  }
}

TEST(OptionCondenser, ACondenserThatGivesNoAnswerIsNone) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeObjectiveOptionCtl(rig.k70()));
  const Texts before = RowsOf(*page.ComboCondenser);
  rig.faults.Add({"CondenserDevice"});
  page.LoadData();
  EXPECT_FALSE(page.FrmCondenser->isEnabled());
  EXPECT_EQ(RowsOf(*page.ComboCondenser), before);
}

struct FaultRow {
  const char* call;
  Texts rows;
};

TEST(OptionCondenser, ARecordThatCannotBeReadEndsTheCondensers) {
  for (const FaultRow& row :
       {FaultRow{"AccessoryDatabase.Condensers", {"None"}},
        FaultRow{"AccessoryDatabase.Condensers.Count", {"None"}},
        FaultRow{"AccessoryDatabase.Condensers.Item(5).Name", {"None", "Ph 1", "Ph 2"}},
        FaultRow{"AccessoryDatabase.Condensers.Item(6).IsOption",
                 {"None", "Ph 1", "Ph 2", "DIC L"}}}) {
    PageRig rig("Harbour");
    auto& page = rig.Show(MakeObjectiveOptionCtl(rig.k70()));
    rig.faults.Add({row.call});
    page.LoadData();
    EXPECT_EQ(RowsOf(*page.ComboCondenser), row.rows) << row.call;
    EXPECT_TRUE(page.FrmCondenser->isEnabled()) << row.call;
  }
}

TEST(OptionCondenser, ATabAsksForTheCondenserButKeepsItsRows) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeObjectiveOptionCtl(rig.k70()));
  const Texts before = RowsOf(*page.ComboCondenser);
  rig.instrument().database.condensers[1].name = "Renamed";
  rig.instrument().Accessory(accessory::kCondenser).state = 0;
  ClickTab(*page.TabStrip1, 1);
  EXPECT_FALSE(page.FrmCondenser->isEnabled());
  rig.instrument().Accessory(accessory::kCondenser).state = 1;
  ClickTab(*page.TabStrip1, 2);
  EXPECT_TRUE(page.FrmCondenser->isEnabled());
  EXPECT_EQ(RowsOf(*page.ComboCondenser), before);
  page.LoadData();
  EXPECT_EQ(RowsOf(*page.ComboCondenser)[1], "Renamed");
}

TEST(OptionCondenser, ACodeWithoutARowSelectsNothingAndStaysStored) {
  for (const std::int32_t code : {1, 4, 8, 200, -1}) {
    PageRig rig("Harbour");
    rig.k70().DbNosepiece.Set_DbNosepiece(1, "Mine", 1, 1, "5", "1", "0.1", code);
    auto& page = rig.Show(MakeObjectiveOptionCtl(rig.k70()));
    EXPECT_EQ(page.ComboCondenser->index(), -1) << code;
    EXPECT_TRUE(First(rig.k70()).ends_with("|" + std::to_string(code)));
    Enter(*page.ListMag, "10x");
    EXPECT_TRUE(First(rig.k70()).ends_with("|" + std::to_string(code)));
    Enter(*page.ComboCondenser, "Ph 1");
    EXPECT_TRUE(First(rig.k70()).ends_with("|2"));
  }
}

}  // namespace
}  // namespace mortane::test
