// The page of the user's objectives.

#include <QTest>

#include "OptionTexts.h"
#include "common/Numbers.h"
#include "gui/objectives/AccessibleObjectives.h"
#include "gui/objectives/ObjectivePages.h"
#include "gui/support/PageActs.h"
#include "gui/support/PageDrill.h"
#include "widgets/ComboBox.h"
#include "widgets/ListBox.h"
#include "widgets/TabStrip.h"
#include "widgets/TextField.h"
#include "widgets/ValueLabel.h"

namespace mortane::test {
namespace {

using Texts = std::vector<std::string>;

const std::string kMessage = "Please Input right value.";
const QString kDashes = "---------------";

const std::vector<GivenControl> kControls{
    {"FrameBase", "Add Optional Objective Data to the List"},
    {"NosepieceOptionItemFrm", ""},
    {"Label1", "Name"},
    {"Label2", "Series"},
    {"LabelSeries", "Plan F"},
    {"Label3", "Type"},
    {"LabelType", "Water"},
    {"Label4", "Mag."},
    {"Label7", "x"},
    {"Label5", "W.D."},
    {"Label6", "N.A."},
    {"FrmCondenser", "Adoptive"},
    {"Label8", "DIC / Ph Condenser"},
};

void Define(ObjectiveUnits& k70) {
  k70.DbNosepiece.Set_DbNosepiece(1, "Mine", 4, 6, "12.5", "3.25", "0.333", 7);
}

PageDrillData OptionPage() {
  PageDrillData data;
  data.name = "OptionalObjectives";
  data.bench = "Harbour";
  data.make = MakeObjectiveOptionCtl;
  data.controls = kControls;
  data.shown = {
      {"TextName", Define, First, "Mine"},        {"LabelSeries", Define, First, "Long WD"},
      {"ListSeries", Define, First, "Long WD"},   {"LabelType", Define, First, "DIC"},
      {"ListType", Define, First, "DIC"},         {"TextMag", Define, First, "12.5"},
      {"TextWD", Define, First, "3.25"},          {"TextNA", Define, First, "0.333"},
      {"ComboCondenser", Define, First, "DIC H"},
  };
  data.edits = {
      {"TextName", "Lent out", First, "Lent out|2|3|25|1.98|0.95|3"},
      {"ListSeries", "Epi", First, "Clinic 25x|6|3|25|1.98|0.95|3"},
      {"ListType", "--------", First, "Clinic 25x|2|0|25|1.98|0.95|3"},
      {"ListMag", "1.5x", First, "Clinic 25x|2|3|1.5|1.98|0.95|3"},
      {"ListMag", "----", First, "Clinic 25x|2|3|----|1.98|0.95|3"},
      {"TextMag", "0", First, "Clinic 25x|2|3|----|1.98|0.95|3"},
      {"TextMag", "200", First, "Clinic 25x|2|3|200|1.98|0.95|3"},
      {"TextMag", "1e2", First, "Clinic 25x|2|3|100|1.98|0.95|3"},
      {"TextMag", "----", First, "Clinic 25x|2|3|----|1.98|0.95|3"},
      {"TextMag", "", First, "Clinic 25x|2|3|----|1.98|0.95|3"},
      {"TextWD", "40", First, "Clinic 25x|2|3|25|40|0.95|3"},
      {"TextWD", "0", First, "Clinic 25x|2|3|25|0|0.95|3"},
      {"TextWD", "", First, "Clinic 25x|2|3|25|0|0.95|3"},
      {"TextNA", "2", First, "Clinic 25x|2|3|25|1.98|2|3"},
      {"TextNA", "", First, "Clinic 25x|2|3|25|1.98|0|3"},
      {"ComboCondenser", "None", First, "Clinic 25x|2|3|25|1.98|0.95|0"},
      {"ComboCondenser", "Ph 3", First, "Clinic 25x|2|3|25|1.98|0.95|9"},
  };
  data.refused = {
      {"TextMag", "200.1", First, kMessage}, {"TextMag", "-1", First, kMessage},
      {"TextMag", "abc", First, kMessage},   {"TextMag", "25x", First, kMessage},
      {"TextMag", "---", First, kMessage},   {"TextMag", "1,5", First, kMessage},
      {"TextMag", "0x10", First, kMessage},  {"TextWD", "abc", First, kMessage},
      {"TextWD", "40.01", First, kMessage},  {"TextWD", "-0.1", First, kMessage},
      {"TextWD", "12,34", First, kMessage},  {"TextWD", "----", First, kMessage},
      {"TextNA", "2.001", First, kMessage},  {"TextNA", "nan", First, kMessage},
      {"TextNA", "1 2", First, kMessage},    {"TextNA", "----", First, kMessage},
  };
  data.enabling = {
      {"FrmCondenser", "Harbour", {}, true},  {"ComboCondenser", "Harbour", {}, true},
      {"FrmCondenser", "Lantern", {}, false}, {"ComboCondenser", "Lantern", {}, false},
      {"FrmCondenser", "Hollow", {}, true},   {"TextName", "Lantern", {}, true},
  };
  data.tabOrder = {"TabStrip1", "TextName", "ListSeries", "ListType",      "TextMag",
                   "ListMag",   "TextWD",   "TextNA",     "ComboCondenser"};
  data.accessible = AccessibleOptionalObjectives();
  return data;
}

INSTANTIATE_TEST_SUITE_P(OptionPage, PageDrill, testing::Values(OptionPage()), PageDrillName);

TEST(OptionPage, HasNineTabs) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeObjectiveOptionCtl(rig.k70()));
  EXPECT_EQ(RowsOf(*page.TabStrip1), (Texts{"1", "2", "3", "4", "5", "6", "7", "8", "9"}));
}

TEST(OptionPage, ListsSeriesTypesAndMagnifications) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeObjectiveOptionCtl(rig.k70()));
  EXPECT_EQ(RowsOf(*page.ListSeries),
            (Texts{"-----------", "Plan A", "Plan F", "Super C", "Long WD", "Relief", "Epi"}));
  EXPECT_EQ(RowsOf(*page.ListType),
            (Texts{"--------", "Dry", "Oil", "Water", "Phase", "Phase Oil", "DIC", "Macro"}));
  EXPECT_EQ(RowsOf(*page.ListMag), (Texts{"----", "1x", "1.5x", "2x", "2.5x", "4x", "5x", "10x",
                                          "20x", "40x", "50x", "60x", "100x", "150x", "200x"}));
}

TEST(OptionPage, FieldsTakeTheirNumberOfCharacters) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeObjectiveOptionCtl(rig.k70()));
  TypeInto(*page.TextName, "1234567890123456");
  EXPECT_EQ(page.TextName->text(), "123456789012345");
  for (TextField* field :
       std::initializer_list<TextField*>{page.TextMag, page.TextWD, page.TextNA}) {
    EXPECT_TRUE(field->alignment() & Qt::AlignRight);
    TypeInto(*field, "1.23456");
    EXPECT_EQ(field->text(), "1.234");
  }
}

TEST(OptionPage, ATabShowsItsPosition) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeObjectiveOptionCtl(rig.k70()));
  ClickTab(*page.TabStrip1, 1);
  EXPECT_EQ(page.TextName->text(), "Loan 63x Oil");
  EXPECT_EQ(page.LabelSeries->text(), "Super C");
  EXPECT_EQ(page.LabelType->text(), "Oil");
  EXPECT_EQ(page.TextMag->text(), "63");
  EXPECT_EQ(page.ComboCondenser->currentText(), "DIC L");
  EXPECT_EQ(First(rig.k70()), "Clinic 25x|2|3|25|1.98|0.95|3");
  EXPECT_EQ(StoredAt(rig.k70(), 2), "Loan 63x Oil|3|2|63|0.19|1.4|5");
}

TEST(OptionPage, AChosenRowStandsAboveItsList) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeObjectiveOptionCtl(rig.k70()));
  Enter(*page.ListSeries, "Epi");
  EXPECT_EQ(page.LabelSeries->text(), "Epi");
  Enter(*page.ListType, "Oil");
  EXPECT_EQ(page.LabelType->text(), "Oil");
}

TEST(OptionPage, AnEditGoesToThePositionOnShowAlone) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeObjectiveOptionCtl(rig.k70()));
  ClickTab(*page.TabStrip1, 8);
  Enter(*page.ListSeries, "Relief");
  EXPECT_EQ(StoredAt(rig.k70(), 9), "---------------|5|0|----|0|0|0");
  EXPECT_EQ(First(rig.k70()), "Clinic 25x|2|3|25|1.98|0.95|3");
}

TEST(OptionPage, ClearingDistanceOrApertureAtOnceTurnsItIntoZero) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeObjectiveOptionCtl(rig.k70()));
  for (TextField* field : std::initializer_list<TextField*>{page.TextWD, page.TextNA}) {
    TypeInto(*field, "");
    EXPECT_EQ(field->text(), "0") << field->objectName().toStdString();
    field->setText("   ");
    EXPECT_EQ(field->text(), "0");
  }
  TypeInto(*page.TextMag, "");
  EXPECT_EQ(page.TextMag->text(), "");
}

class OptionEnter : public testing::TestWithParam<Qt::Key> {};

TEST_P(OptionEnter, StoresAndKeepsTheFocus) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeObjectiveOptionCtl(rig.k70()));
  TypeInto(*page.TextName, "By key");
  EXPECT_EQ(First(rig.k70()), "Clinic 25x|2|3|25|1.98|0.95|3");
  QTest::keyClick(page.TextName, GetParam());
  EXPECT_EQ(First(rig.k70()), "By key|2|3|25|1.98|0.95|3");
  EXPECT_TRUE(page.TextName->hasFocus());
  TypeInto(*page.TextMag, "30");
  QTest::keyClick(page.TextMag, GetParam());
  EXPECT_EQ(First(rig.k70()), "By key|2|3|30|1.98|0.95|3");
  EXPECT_TRUE(page.TextMag->hasFocus());
}

TEST_P(OptionEnter, RefusesABadNumber) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeObjectiveOptionCtl(rig.k70()));
  TypeInto(*page.TextNA, "3");
  rig.prompts.ExpectBox(kMessage, box::kOk);
  QTest::keyClick(page.TextNA, GetParam());
  EXPECT_TRUE(page.TextNA->hasFocus());
  EXPECT_TRUE(page.TextNA->isRefused());
  EXPECT_EQ(First(rig.k70()), "Clinic 25x|2|3|25|1.98|0.95|3");
  QTest::keyClicks(page.TextNA, "1");
  EXPECT_FALSE(page.TextNA->isRefused());
  EXPECT_EQ(page.TextNA->text(), "1") << "the refused text was selected";
  QTest::keyClick(page.TextNA, GetParam());
  EXPECT_EQ(First(rig.k70()), "Clinic 25x|2|3|25|1.98|1|3");
}

INSTANTIATE_TEST_SUITE_P(BothKeys, OptionEnter, testing::Values(Qt::Key_Return, Qt::Key_Enter));

TEST(OptionPage, AnEmptyNameIsStoredOnLeavingAndThenShowsDashes) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeObjectiveOptionCtl(rig.k70()));
  for (const char* blank : {"", "   "}) {
    Enter(*page.TextName, blank);
    EXPECT_EQ(page.TextName->text(), kDashes);
    EXPECT_EQ(First(rig.k70()), std::string(blank) + "|2|3|25|1.98|0.95|3");
  }
  Enter(*page.ListMag, "5x");
  EXPECT_EQ(First(rig.k70()), "---------------|2|3|5|1.98|0.95|3") << "with the next store";
}

TEST(OptionPage, TheFirstKeyWipesTheDashes) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeObjectiveOptionCtl(rig.k70()));
  ClickTab(*page.TabStrip1, 4);
  ASSERT_EQ(page.TextName->text(), kDashes);
  page.TextName->setFocus();
  QTest::keyClick(page.TextName, Qt::Key_End);
  EXPECT_EQ(page.TextName->text(), kDashes) << "moving is not typing";
  QTest::keyClicks(page.TextName, "N");
  EXPECT_EQ(page.TextName->text(), "N");
}

TEST(OptionPage, TheTabKeyThroughANameOfDashesKeepsIt) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeObjectiveOptionCtl(rig.k70()));
  ClickTab(*page.TabStrip1, 4);
  page.TextName->setFocus();
  QTest::keyClick(page.TextName, Qt::Key_Tab);
  EXPECT_EQ(page.TextName->text(), kDashes);
  EXPECT_EQ(StoredAt(rig.k70(), 5), "---------------|0|0|----|0|0|0");
}

TEST(OptionPage, EnterOnANameOfDashesStoresTheEmptyName) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeObjectiveOptionCtl(rig.k70()));
  ClickTab(*page.TabStrip1, 4);
  page.TextName->setFocus();
  QTest::keyClick(page.TextName, Qt::Key_Return);
  EXPECT_EQ(StoredAt(rig.k70(), 5), "|0|0|----|0|0|0");
  EXPECT_EQ(page.TextName->text(), "");
}

TEST(OptionPage, FourteenDashesAreAnOrdinaryName) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeObjectiveOptionCtl(rig.k70()));
  TypeInto(*page.TextName, "--------------");
  QTest::keyClicks(page.TextName, "x");
  EXPECT_EQ(page.TextName->text(), "--------------x");
}

TEST(OptionPage, ClickingATabStoresTheFieldForTheOldPosition) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeObjectiveOptionCtl(rig.k70()));
  TypeInto(*page.TextWD, "7.5");
  ClickTab(*page.TabStrip1, 1);
  EXPECT_EQ(First(rig.k70()), "Clinic 25x|2|3|25|7.5|0.95|3");
  EXPECT_EQ(StoredAt(rig.k70(), 2), "Loan 63x Oil|3|2|63|0.19|1.4|5");
  EXPECT_EQ(page.TextWD->text(), "0.19");
}

TEST(OptionPage, ARefusedNumberKeepsTheTabTheRowAndTheCondenser) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeObjectiveOptionCtl(rig.k70()));
  for (const int target : {0, 1}) {
    TypeInto(*page.TextWD, "41.5");
    rig.prompts.ExpectBox(kMessage, box::kOk);
    if (target == 0) {
      ClickTab(*page.TabStrip1, 1);
    } else {
      ClickRow(*page.ListSeries, 5);
    }
    EXPECT_EQ(page.TabStrip1->index(), 0);
    EXPECT_EQ(page.LabelSeries->text(), "Plan F");
    EXPECT_TRUE(page.TextWD->hasFocus());
    EXPECT_EQ(page.TextWD->text(), "41.5");
    EXPECT_EQ(First(rig.k70()), "Clinic 25x|2|3|25|1.98|0.95|3");
    page.TextWD->setText("1.98");
  }
}

TEST(OptionPage, TheListsAreFilledOnceOnly) {
  PageRig rig(List({"Quay", "Harbour", "Attic"}), Link::None);
  rig.prompts.AcceptAnyBox();
  rig.k70().Connect(1);
  rig.k70().Receive();
  auto& page = rig.Show(MakeObjectiveOptionCtl(rig.k70()));
  const Texts series = RowsOf(*page.ListSeries);
  const Texts types = RowsOf(*page.ListType);
  rig.k70().Connect(2);
  rig.k70().Receive();
  page.LoadData();
  EXPECT_EQ(RowsOf(*page.ListSeries), series);
  EXPECT_EQ(RowsOf(*page.ListType), types);
  EXPECT_EQ(page.ListMag->rowCount(), 15);
}

TEST(OptionPage, SelectingANewRowOnLoadingStoresTheTextsAsCut) {
  PageRig rig("Harbour");
  rig.k70().DbNosepiece.Set_DbNosepiece(1, "Sixteen letters.", 4, 6, "123.45", "12.345", "0.1234",
                                        2);
  rig.Show(MakeObjectiveOptionCtl(rig.k70()));
  EXPECT_EQ(rig.k70().DbNosepiece.Name(241), "Sixteen letters");
  EXPECT_EQ(First(rig.k70()), "Sixteen letters|4|6|123.4|12.34|0.123|2");
}

TEST(OptionPage, AnIndexBeyondTheListsSelectsNothing) {
  PageRig rig("Harbour");
  rig.k70().DbNosepiece.Set_DbNosepiece(1, "Mine", 40, 50, "5", "1", "0.1", 2);
  auto& page = rig.Show(MakeObjectiveOptionCtl(rig.k70()));
  EXPECT_EQ(page.ListSeries->index(), -1);
  EXPECT_EQ(page.ListType->index(), -1);
  EXPECT_EQ(page.LabelSeries->text(), "");
  EXPECT_EQ(page.LabelType->text(), "");
  Enter(*page.ListMag, "10x");
  EXPECT_EQ(First(rig.k70()), "Mine|40|50|10|1|0.1|2");
}

TEST(OptionPage, AnEmptyNameIsShownEmpty) {
  PageRig rig("Harbour");
  rig.k70().DbNosepiece.Set_DbNosepiece(1, "", 2, 3, "5", "1", "0.1", 2);
  auto& page = rig.Show(MakeObjectiveOptionCtl(rig.k70()));
  EXPECT_EQ(page.TextName->text(), "");
}

struct SaveRow {
  Control<TextField> ObjectiveOptionCtl::*field;
  const char* text;
  const char* stored;
};

TEST(OptionPage, SavingStoresZeroForWhatMayNotBe) {
  for (const SaveRow& row : {
           SaveRow{&ObjectiveOptionCtl::TextMag, "abc", "Clinic 25x|2|3|----|1.98|0.95|3"},
           SaveRow{&ObjectiveOptionCtl::TextMag, "200.1", "Clinic 25x|2|3|----|1.98|0.95|3"},
           SaveRow{&ObjectiveOptionCtl::TextMag, "-1", "Clinic 25x|2|3|----|1.98|0.95|3"},
           SaveRow{&ObjectiveOptionCtl::TextMag, "----", "Clinic 25x|2|3|----|1.98|0.95|3"},
           SaveRow{&ObjectiveOptionCtl::TextMag, "", "Clinic 25x|2|3|----|1.98|0.95|3"},
           SaveRow{&ObjectiveOptionCtl::TextMag, "200", "Clinic 25x|2|3|200|1.98|0.95|3"},
           SaveRow{&ObjectiveOptionCtl::TextWD, "41", "Clinic 25x|2|3|25|0|0.95|3"},
           SaveRow{&ObjectiveOptionCtl::TextWD, "40", "Clinic 25x|2|3|25|40|0.95|3"},
           SaveRow{&ObjectiveOptionCtl::TextNA, "x", "Clinic 25x|2|3|25|1.98|0|3"},
           SaveRow{&ObjectiveOptionCtl::TextNA, "2.001", "Clinic 25x|2|3|25|1.98|0|3"},
           SaveRow{&ObjectiveOptionCtl::TextNA, "2", "Clinic 25x|2|3|25|1.98|2|3"},
       }) {
    PageRig rig("Harbour");
    auto& page = rig.Show(MakeObjectiveOptionCtl(rig.k70()));
    (page.*row.field)->setText(row.text);
    page.SaveData();
    EXPECT_EQ(First(rig.k70()), row.stored) << row.text;
    EXPECT_EQ((page.*row.field)->text(), row.text) << "the box keeps its text";
    EXPECT_TRUE(rig.prompts.Boxes().empty());
  }
}

TEST(OptionPage, TakesAndShowsNumbersInTheFormatOfTheSystem) {
  SetSystemNumberFormat({",", "."});
  {
    PageRig rig("Harbour");
    auto& page = rig.Show(MakeObjectiveOptionCtl(rig.k70()));
    EXPECT_EQ(page.TextWD->text(), "1,98");
    Enter(*page.TextWD, "3,25");
    EXPECT_EQ(First(rig.k70()), "Clinic 25x|2|3|25|3,25|0,95|3");
    Enter(*page.ListMag, "1,5x");
    EXPECT_EQ(page.TextMag->text(), "1,5");
    rig.prompts.ExpectBox(kMessage, box::kOk);
    Enter(*page.TextNA, "0.95");
    EXPECT_TRUE(page.TextNA->hasFocus());
    page.TextNA->setText("0,95");
    DomDocument document;
    DomNode section = document.CreateElement("SECTION");
    rig.k70().DbNosepiece.WriteDom(document, section);
    document.Append(section);
    EXPECT_EQ(document.ToText().find(','), std::string::npos) << "files never see a comma";
  }
  SetSystemNumberFormat(PointFormat());
}

TEST(OptionPage, NamesMayHoldAnyLetters) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeObjectiveOptionCtl(rig.k70()));
  page.TextName->setText(QString::fromUtf8("Übergröße 25x µm plus"));
  page.TextName->setFocus();
  QTest::keyClick(page.TextName, Qt::Key_Return);
  EXPECT_EQ(rig.k70().DbNosepiece.Name(241), "Übergröße 25x µ");
}

}  // namespace
}  // namespace mortane::test
