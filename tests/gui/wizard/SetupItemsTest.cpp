// The step of the items: which are offered, what its clicks say to the window, and files.
#include <gtest/gtest.h>

#include <QRadioButton>

#include "app/SelFileItemDlg.h"
#include "gui/app/AppRig.h"
#include "gui/support/PageActs.h"
#include "gui/support/PageRig.h"
#include "support/Rows.h"
#include "support/TempFolder.h"
#include "widgets/ListBox.h"
#include "widgets/OptionGroup.h"
#include "wizard/SelSetupItemCtl.h"

namespace mortane::test {
namespace {

using Items = std::vector<int>;
constexpr std::int32_t kNobody = -1;

// The page on a received microscope, and what its events say: "0 on", "0 off", "mode 1".

struct ItemsRig {
  explicit ItemsRig(Bench bench = benches::Named("Harbour"),
                    const std::function<void(clsK70&)>& change = {})
      : rig(std::move(bench)) {
    if (change) change(rig.k70());
    QObject::connect(page, &SelSetupItemCtl::ItemChanged, page, [this](int item, bool enabled) {
      events.push_back(std::to_string(item) + (enabled ? " on" : " off"));
    });
    QObject::connect(page, &SelSetupItemCtl::ModeChanged, page,
                     [this](int mode) { events.push_back("mode " + std::to_string(mode)); });
    rig.Show(page);
    loading = std::exchange(events, {});
  }
  static Items Of(const ListBox& list) {
    Items items;
    for (int row = 0; row < list.rowCount(); ++row) items.push_back(list.data(row).toInt());
    return items;
  }
  static Items Checked(const ListBox& list) {
    Items items;
    for (int row = 0; row < list.rowCount(); ++row) {
      if (list.isRowChecked(row)) items.push_back(list.data(row).toInt());
    }
    return items;
  }
  QAbstractButton& Option(int mode) { return *page->optSetupMode->button(mode); }
  // The events that an act brings about.
  template <typename Act>
  Lines After(Act act) {
    events.clear();
    act();
    return std::exchange(events, {});
  }
  void ClickCheckBox(int row) {
    ListBox& list = *page->ListCustom;
    const QRect line = list.visualItemRect(list.topLevelItem(row));
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                      QPoint(line.left() + 14, line.center().y()));
  }

  PageRig rig;
  SelSetupItemCtl* page = new SelSetupItemCtl(rig.k70());
  Lines events;
  Lines loading;
};

TEST(SetupItems, BearTheirControlsByName) {
  ItemsRig rig;
  for (const char* name : {"FrameBase", "List1", "ListStandard", "ListCustom", "Frame1",
                           "optSetupMode_0", "optSetupMode_1", "optSetupMode_2"}) {
    EXPECT_NE(rig.page->findChild<QWidget*>(name), nullptr) << name;
  }
  EXPECT_EQ(rig.Option(0).text(), "Standard");
  EXPECT_EQ(rig.Option(1).text(), "Custom");
  EXPECT_EQ(rig.Option(2).text(), "File");
  EXPECT_TRUE(rig.page->List1->isHidden());
  EXPECT_EQ(RowsOf(*rig.page->List1), (Lines{"Objective", "Filter Cube", "Condenser", "Control",
                                             "InterLock", "Z Focus", "Controller"}));
}

TEST(SetupItems, ListTheNamesOfTheItems) {
  ItemsRig rig;
  ASSERT_FALSE(RowsOf(*rig.page->ListStandard).empty());
  for (const auto* item : {&rig.page->ListStandard, &rig.page->ListCustom}) {
    const ListBox* list = *item;
    for (int row = 0; row < list->rowCount(); ++row) {
      EXPECT_EQ(list->text(row), rig.page->List1->text(list->data(row).toInt()));
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

TEST(Mode, IsChosenByClicksAndRaisesItsList) {
  ItemsRig rig(benches::Named("Harbour"), [](clsK70& k70) { k70.curType = 2; });
  EXPECT_EQ(rig.After([&] { QTest::mouseClick(&rig.Option(1), Qt::LeftButton); }),
            (Lines{"mode 1", "0 on", "1 on", "5 off", "6 off"}));
  EXPECT_EQ(rig.page->SetupMode(), 1);
  EXPECT_EQ(rig.After([&] { QTest::mouseClick(&rig.Option(0), Qt::LeftButton); }),
            (Lines{"mode 0", "0 on", "1 on", "5 off", "6 off"}));
  EXPECT_EQ(rig.After([&] { QTest::mouseClick(&rig.Option(0), Qt::LeftButton); }),
            (Lines{"mode 0", "0 on", "1 on", "5 off", "6 off"}))
      << "every click";
}

TEST(Mode, SetByTheProgramRunsTheClick) {
  ItemsRig rig(benches::Named("Harbour"), [](clsK70& k70) { k70.curType = 2; });
  EXPECT_EQ(rig.After([&] { rig.page->SetupMode(1); }).front(), "mode 1");
  EXPECT_TRUE(rig.Option(1).isChecked());
  EXPECT_EQ(rig.After([&] { rig.page->SetupMode(1); }).size(), 5U) << "also the selected one";
}

TEST(Mode, EnablesTheCustomListAloneAndForCustomOnly) {
  ItemsRig rig;
  EXPECT_FALSE(rig.page->ListCustom->isEnabled());
  QTest::mouseClick(&rig.Option(1), Qt::LeftButton);
  EXPECT_TRUE(rig.page->ListCustom->isEnabled());
  EXPECT_FALSE(rig.page->ListStandard->isEnabled());
  rig.page->SetupMode(2);
  EXPECT_FALSE(rig.page->ListCustom->isEnabled());
  EXPECT_FALSE(rig.page->ListStandard->isEnabled());
}

TEST(Mode, FileByTheKeyboardOnlySelects) {
  ItemsRig rig;
  rig.Option(0).setFocus();
  QTest::keyClick(&rig.Option(0), Qt::Key_Down);
  EXPECT_EQ(rig.page->SetupMode(), 1);
  EXPECT_EQ(rig.After([&] { QTest::keyClick(&rig.Option(1), Qt::Key_Down); }), Lines{"mode 2"});
  EXPECT_EQ(rig.After([&] { QTest::keyClick(&rig.Option(2), Qt::Key_Space); }), Lines{"mode 2"});
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

// A settings file that would rename the microscope and change its first objective.
class ItemsFile : public testing::Test {
 protected:
  ItemsFile() {
    rig.k70().SystemName = "Other";
    rig.k70().curNosepiece.code(1, 9);
    rig.k70().WriteXML(path);
    rig.k70().SystemName = "Here";
    rig.k70().curNosepiece.code(1, 4);
  }
  PageRig& page() { return items.rig; }
  Lines Release(Qt::MouseButton button = Qt::LeftButton) {
    return items.After([&] { QTest::mouseClick(&items.Option(2), button); });
  }

  TempFolder folder;
  std::string path = folder.Path("clinic.xml");
  ItemsRig items{benches::Named("Harbour"), [](clsK70& k70) { k70.curType = 2; }};
  PageRig& rig = items.rig;
  const Lines allOn{"0 on", "1 on", "5 on", "6 on"};
};

TEST_F(ItemsFile, IsReadAndNeverChangesTheSystemName) {
  rig.prompts.ExpectFileToOpen(path);
  Lines events;
  {
    const WhenShown<SelFileItemDlg> person([](SelFileItemDlg& dialog) {
      EXPECT_GT(dialog.List1->rowCount(), 1) << "the sections of the file";
      dialog.OkButton->click();
    });
    events = Release();
  }
  EXPECT_EQ(rig.k70().SystemName, "Here");
  EXPECT_EQ(rig.k70().curNosepiece.code(1), 9);
  EXPECT_EQ(items.page->SetupMode(), 2);
  EXPECT_EQ(events.front(), "mode 2");
  EXPECT_EQ(Lines(events.begin() + 1, events.end()), allOn);
  const FileQuestion& asked = rig.prompts.FileQuestions().at(0);
  EXPECT_EQ(asked.flags, 6148);
  EXPECT_EQ(asked.filter, "XML File (*.xml)|*.xml");
}

TEST_F(ItemsFile, CancelledStillSwitchesAllOfferedStepsOn) {
  rig.prompts.ExpectFileToOpen("");
  const Lines events = Release();
  EXPECT_EQ(Lines(events.begin() + 1, events.end()), allOn);
  EXPECT_EQ(rig.k70().curNosepiece.code(1), 4);
  EXPECT_EQ(ItemsRig::Checked(*items.page->ListStandard), (Items{0, 1})) << "the checks stay";
}

TEST_F(ItemsFile, OfWhichNoSectionIsWantedIsNotRead) {
  rig.prompts.ExpectFileToOpen(path);
  const WhenShown<SelFileItemDlg> person(
      [](SelFileItemDlg& dialog) { dialog.CancelButton->click(); });
  Release();
  EXPECT_EQ(rig.k70().curNosepiece.code(1), 4);
  EXPECT_EQ(rig.k70().SystemName, "Here");
}

TEST_F(ItemsFile, ThatIsNoneIsToldAndSwitchesTheStepsOn) {
  rig.prompts.ExpectFileToOpen(folder.Write("bad.xml", "no xml"));
  rig.prompts.AcceptAnyBox();
  const WhenShown<SelFileItemDlg> person([](SelFileItemDlg& dialog) { dialog.OkButton->click(); });
  const Lines events = Release();
  EXPECT_FALSE(rig.prompts.Boxes().empty());
  EXPECT_EQ(Lines(events.begin() + 1, events.end()), allOn);
}

TEST_F(ItemsFile, IsAskedForAtEveryRelease) {
  for (int i = 0; i < 2; ++i) {
    rig.prompts.ExpectFileToOpen("");
    Release();
    EXPECT_TRUE(rig.prompts.AllAnswersUsed());
  }
}

TEST_F(ItemsFile, IsAskedForByEachButtonOfTheMouseAndSelectsTheOption) {
  rig.prompts.ExpectFileToOpen("");
  const Lines events = Release(Qt::RightButton);
  EXPECT_EQ(events.front(), "mode 2");
  EXPECT_EQ(items.page->SetupMode(), 2);
}

TEST_F(ItemsFile, IsNotAskedForWhenTheMouseIsLetGoBeside) {
  QTest::mousePress(&items.Option(2), Qt::LeftButton);
  QTest::mouseRelease(&items.Option(2), Qt::LeftButton, {}, QPoint(-9, -9));
  EXPECT_EQ(items.page->SetupMode(), 0);
  EXPECT_TRUE(rig.prompts.FileQuestions().empty());
}

}  // namespace
}  // namespace mortane::test
