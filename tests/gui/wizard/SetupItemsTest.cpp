// The step of the items: which are offered, and what its clicks say to the window.
#include <gtest/gtest.h>

#include <QRadioButton>
#include <QStringListModel>
#include <algorithm>
#include <utility>

#include "ItemsRig.h"
#include "gui/support/PageActs.h"

namespace mortane::test {
namespace {

constexpr std::int32_t kNobody = -1;

TEST(SetupItems, BearTheirControlsByName) {
  ItemsRig rig;
  for (const char* name : {"Header", "FrameBase", "List1", "ListStandard", "ListCustom", "Frame1",
                           "optSetupMode", "optSetupMode_0", "optSetupMode_1", "optSetupMode_2"}) {
    EXPECT_NE(rig.page->findChild<QObject*>(name), nullptr) << name;
  }
  EXPECT_EQ(rig.Option(0).text(), "Standard");
  EXPECT_EQ(rig.Option(1).text(), "Custom");
  EXPECT_EQ(rig.Option(2).text(), "File");
  EXPECT_EQ(rig.page->List1->stringList(),
            QStringList({"Objective", "Filter Cube", "Condenser", "Control", "InterLock", "Z Focus",
                         "Controller"}));
}

// A bench without a nosepiece does not offer the first item, which stands for no row, too.
TEST(SetupItems, AreOfferedWhereTheyAreInTheList) {
  for (const bool nosepiece : {true, false}) {
    Bench bench = benches::Named("Harbour");
    if (!nosepiece) bench.instruments.back().Accessory(accessory::kNosepiece).state = 0;
    ItemsRig rig(std::move(bench));
    const Items listed = ItemsRig::Of(*rig.page->ListStandard);
    EXPECT_EQ(std::count(listed.begin(), listed.end(), 0), nosepiece ? 1 : 0);
    for (int item = -1; item <= 7; ++item) {
      const bool isListed = std::find(listed.begin(), listed.end(), item) != listed.end();
      EXPECT_EQ(rig.page->IsOffered(item), isListed) << item;
    }
  }
}

TEST(SetupItems, StandBelowTheirOptions) {
  const ItemsRig rig;
  const auto below = [&rig](const QWidget& list, int mode) {
    const QAbstractButton& option = *rig.page->optSetupMode->button(mode);
    EXPECT_EQ(option.x(), list.x()) << mode;
    return list.y() - option.geometry().bottom() - 1;
  };
  EXPECT_EQ(below(*rig.page->ListStandard, 0), 8);
  EXPECT_EQ(below(*rig.page->ListCustom, 1), 8);
}

TEST(SetupItems, ListTheNamesOfTheItems) {
  ItemsRig rig;
  ASSERT_FALSE(RowsOf(*rig.page->ListStandard).empty());
  for (const auto* item : {&rig.page->ListStandard, &rig.page->ListCustom}) {
    const ListBox* list = *item;
    for (int row = 0; row < list->rowCount(); ++row) {
      EXPECT_EQ(list->text(row), rig.page->List1->stringList().at(list->data(row).toInt()));
    }
  }
}

TEST(SetupItems, AreTheSameInBothListsWithThoseOfTheStandardChecked) {
  ItemsRig rig;
  EXPECT_EQ(ItemsRig::Of(*rig.page->ListStandard), (Items{0, 1, 2, 3, 4, 5, 6}));
  EXPECT_EQ(ItemsRig::Of(*rig.page->ListCustom), (Items{0, 1, 2, 3, 4, 5, 6}));
  EXPECT_EQ(ItemsRig::Checked(*rig.page->ListStandard), (Items{0, 1, 2}));
  EXPECT_EQ(ItemsRig::Checked(*rig.page->ListCustom), (Items{0, 1, 2}));
}

struct TypeRow {
  std::int32_t type;
  Items offered;
};

class SetupItemsOfType : public testing::TestWithParam<TypeRow> {};

TEST_P(SetupItemsOfType, AreThoseOfItsRow) {
  ItemsRig rig(benches::Named("Harbour"), [](clsK70& k70) { k70.curType = GetParam().type; });
  EXPECT_EQ(ItemsRig::Of(*rig.page->ListStandard), GetParam().offered);
}

INSTANTIATE_TEST_SUITE_P(AllTypes, SetupItemsOfType,
                         testing::Values(TypeRow{0, {0, 1, 2, 3, 4, 5, 6}},
                                         TypeRow{1, {0, 1, 3, 4, 5, 6}}, TypeRow{2, {0, 1, 5, 6}},
                                         TypeRow{3, {0, 1, 2, 3, 4, 5, 6}},
                                         TypeRow{4, {0, 1, 2, 3, 4, 5, 6}},
                                         TypeRow{5, {0, 1, 3, 4, 5, 6}},
                                         TypeRow{6, {0, 1, 3, 4, 5, 6}}, TypeRow{7, {5, 6}},
                                         TypeRow{40, {5, 6}}, TypeRow{kNobody, {5, 6}}),
                         [](const auto& row) {
                           const std::int32_t type = row.param.type;
                           return type < 0 ? std::string("None") : std::to_string(type);
                         });

TEST(SetupItems, OfAnEmptyInstrumentAreNone) {
  ItemsRig rig(benches::Named("Shell"));
  EXPECT_EQ(rig.page->ListStandard->rowCount(), 0);
  EXPECT_EQ(rig.page->ListCustom->rowCount(), 0);
  EXPECT_EQ(rig.page->ListCustom->index(), -1);
  EXPECT_EQ(rig.loading, Lines{"mode 0"});
}

struct VersionRow {
  const char* what;
  const char* body;  // its version; empty: no such unit
  const char* hub;
  bool handController;
  bool offered;
};

class SwitchesOf : public testing::TestWithParam<VersionRow> {};

TEST_P(SwitchesOf, AreOfferedByTheFirmware) {
  const VersionRow& row = GetParam();
  Bench bench = benches::Named("Harbour");
  Instrument& instrument = bench.instruments.back();
  instrument.Unit(controllerunit::NumberInLibrary(controllerunit::kBody)) = {row.body[0] != '\0',
                                                                             row.body};
  instrument.Unit(controllerunit::NumberInLibrary(controllerunit::kHub)) = {row.hub[0] != '\0',
                                                                            row.hub};
  instrument.Unit(controllerunit::NumberInLibrary(controllerunit::kHandController)) = {
      row.handController, "V9.0"};
  ItemsRig rig(bench);
  EXPECT_EQ(rig.page->IsOffered(6), row.offered);
}

INSTANTIATE_TEST_SUITE_P(
    Wizard, SwitchesOf,
    testing::Values(VersionRow{"Old", "V1.29", "", false, false},
                    VersionRow{"New", "V1.3", "", false, true},
                    VersionRow{"Simulated", "vDEMO", "", false, true},
                    VersionRow{"HubAlone", "", "V1.3", false, false},
                    VersionRow{"HubWithController", "", "V1.3", true, true},
                    VersionRow{"OldHubWithController", "", "V1.29", true, false},
                    VersionRow{"SimulatedHubWithController", "", "vDEMO", true, false},
                    VersionRow{"OldBodyNewHub", "V1.0", "V1.3", true, true},
                    VersionRow{"ControllerAlone", "", "", true, false}),
    [](const auto& row) { return std::string(row.param.what); });

TEST(SetupItems, CountAControllerThatCannotBeAskedAsAbsent) {
  PageRig rig("Harbour");
  rig.faults.Add({"ControllerVersion"});
  auto& page = rig.Show(new SelSetupItemCtl(rig.k70()));
  EXPECT_FALSE(page.IsOffered(6));
  EXPECT_TRUE(rig.prompts.Boxes().empty());
}

TEST(Loading, RaisesEveryRowOfBothLists) {
  ItemsRig rig(benches::Named("Harbour"), [](clsK70& k70) { k70.curType = 2; });
  EXPECT_EQ(rig.loading, (Lines{"mode 0", "0 on", "1 on", "5 off", "6 off",  // standard
                                "0 on", "1 on", "5 off", "6 off",            // custom
                                "0 on"}));                                   // its current row
}

TEST(Loading, BeginsAnewInStandardMode) {
  ItemsRig rig;
  QTest::mouseClick(&rig.Option(1), Qt::LeftButton);
  rig.ClickCheckBox(0);
  ASSERT_EQ(ItemsRig::Checked(*rig.page->ListCustom), (Items{1, 2}));
  rig.page->LoadData();
  EXPECT_EQ(rig.page->SetupMode(), 0);
  EXPECT_FALSE(rig.page->ListCustom->isEnabled());
  EXPECT_EQ(ItemsRig::Of(*rig.page->ListCustom), (Items{0, 1, 2, 3, 4, 5, 6}));
  EXPECT_EQ(ItemsRig::Checked(*rig.page->ListCustom), (Items{0, 1, 2}));
}

TEST(Loading, LeavesNoRowCurrentInTheStandardListAndTheFirstInTheCustomOne) {
  ItemsRig rig;
  EXPECT_EQ(rig.page->ListStandard->index(), -1);
  EXPECT_EQ(rig.page->ListCustom->index(), 0);
}

TEST(CustomList, IsCheckedByTheMouse) {
  ItemsRig rig;
  QTest::mouseClick(&rig.Option(1), Qt::LeftButton);
  const Lines events = rig.After([&] { rig.ClickCheckBox(3); });
  EXPECT_EQ(ItemsRig::Checked(*rig.page->ListCustom), (Items{0, 1, 2, 3}));
  EXPECT_EQ(events, (Lines{"3 off", "3 on",  // the row at the press, its mark at the release
                           "0 on", "1 on", "2 on", "3 on", "4 off", "5 off", "6 off"}));
}

TEST(CustomList, IsCheckedByTheKeyboard) {
  ItemsRig rig;
  QTest::mouseClick(&rig.Option(1), Qt::LeftButton);
  rig.page->ListCustom->setFocus();
  EXPECT_EQ(rig.After([&] { QTest::keyClick(rig.page->ListCustom, Qt::Key_Space); }),
            Lines{"0 off"});
  EXPECT_EQ(rig.After([&] { QTest::keyClick(rig.page->ListCustom, Qt::Key_Down); }), Lines{"1 on"});
  EXPECT_EQ(rig.After([&] { QTest::keyClick(rig.page->ListCustom, Qt::Key_Space); }),
            Lines{"1 off"});
  EXPECT_EQ(ItemsRig::Checked(*rig.page->ListCustom), Items{2});
}

TEST(CustomList, RaisesEveryRowWhenTheMouseIsLetGoOverItAndNoneBesideIt) {
  ItemsRig rig(benches::Named("Harbour"), [](clsK70& k70) { k70.curType = 2; });
  QTest::mouseClick(&rig.Option(1), Qt::LeftButton);
  QWidget* view = rig.page->ListCustom->viewport();
  const QPoint below(view->width() / 2, view->height() - 4);
  EXPECT_EQ(rig.After([&] { QTest::mouseClick(view, Qt::LeftButton, {}, below); }),
            (Lines{"0 on", "1 on", "5 off", "6 off"}));
  QTest::mousePress(view, Qt::LeftButton, {}, below);
  EXPECT_EQ(rig.After([&] { QTest::mouseRelease(view, Qt::LeftButton, {}, QPoint(-9, -9)); }),
            Lines{});
}

TEST(CustomList, IsDeafWhileItIsDisabled) {
  ItemsRig rig;
  EXPECT_EQ(rig.After([&] { rig.ClickCheckBox(0); }), Lines{});
  EXPECT_EQ(ItemsRig::Checked(*rig.page->ListCustom), (Items{0, 1, 2}));
}

TEST(CustomList, KeepsItsChecksWhileTheStandardRuns) {
  ItemsRig rig;
  QTest::mouseClick(&rig.Option(1), Qt::LeftButton);
  rig.ClickCheckBox(0);
  QTest::mouseClick(&rig.Option(0), Qt::LeftButton);
  const Lines events = rig.After([&] { QTest::mouseClick(&rig.Option(1), Qt::LeftButton); });
  EXPECT_EQ(events[1], "0 off");
}

}  // namespace
}  // namespace mortane::test
