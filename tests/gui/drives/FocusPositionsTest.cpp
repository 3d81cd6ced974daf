// The positions of the nosepiece's addresses on the focus drive page.
#include <QLabel>
#include <QTest>

#include "common/Numbers.h"
#include "gui/drives/DrivePages.h"
#include "widgets/Card.h"
#include "widgets/Theme.h"

namespace mortane::test {

using namespace Qt::StringLiterals;
namespace {

class FocusPositions : public testing::Test {
 protected:
  ~FocusPositions() override { SetSystemNumberFormat(PointFormat()); }
};

struct RowsRow {
  const char* bench;
  int rows;
};

TEST_F(FocusPositions, HaveARowForEachAddressUpToSeven) {
  for (const RowsRow& given : {RowsRow{"Harbour", 6}, RowsRow{"Lantern", 5}, RowsRow{"Pair", 7},
                               RowsRow{"Attic", 7}, RowsRow{"Hub", 0}}) {
    PageRig rig(given.bench, Link::Reported);
    rig.prompts.AcceptAnyBox();
    auto& page = rig.Show(MakeControlFocusDriveCtl(rig.k70()));
    page.FrameZNose->show();
    for (int row = 0; row < 7; ++row) {
      const TextField* field = page.TextNosepiece[static_cast<std::size_t>(row)];
      EXPECT_EQ(page.optNosepiece->button(row)->isVisible(), row < given.rows) << given.bench;
      EXPECT_EQ(field->isVisible(), row < given.rows) << given.bench;
      EXPECT_EQ(field->text().isEmpty(), row >= given.rows) << given.bench << row;
    }
  }
}

TEST_F(FocusPositions, OfALargePageStandInACardThatIsNotMuchWider) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeControlFocusDriveCtl(rig.k70()));
  rig.window().resize(2400, 900);
  QApplication::processEvents();
  EXPECT_EQ(page.FrameBase->x(), 0);
  EXPECT_LT(page.FrameBase->width(), page.width() * 2 / 3);
}

TEST_F(FocusPositions, HaveNoRowBeforeTheFirstLoading) {
  PageRig rig("Harbour");
  const std::unique_ptr<ControlFocusDriveCtl> page(MakeControlFocusDriveCtl(rig.k70()));
  for (int row = 0; row < 7; ++row) {
    EXPECT_TRUE(page->optNosepiece->button(row)->isHidden());
    EXPECT_TRUE(page->TextNosepiece[static_cast<std::size_t>(row)]->isHidden());
  }
  EXPECT_EQ(page->optNosepiece->selected(), -1);
}

TEST_F(FocusPositions, StandInFixedPitchUnderTheirAddress) {
  FocusRig rig;
  for (int row = 0; row < 7; ++row) {
    const QString address = u"Address %1"_s.arg(row + 1);
    EXPECT_EQ(rig.field(row).font(), FixedFont());
    EXPECT_EQ(rig.field(row).accessibleName(), address);
    EXPECT_EQ(rig.page.optNosepiece->button(row)->accessibleName(), address);
    EXPECT_EQ(rig.page.optNosepiece->button(row)->text(), QString::number(row + 1));
  }
}

TEST_F(FocusPositions, TheMarkOfNoSettingDependsOnTheDevice) {
  struct Row {
    const char* bench;
    std::int32_t steps;
    const char* shown;
  };
  for (const Row& row :
       {Row{"Quay", 20000, "No Setting"}, Row{"Quay", -900000, "-45000"}, Row{"Quay", 0, "0"},
        Row{"Harbour", 20000, "1000"}, Row{"Harbour", -900000, "No Setting"}}) {
    FocusRig rig(row.bench);
    rig.drive().Position(1, row.steps);
    rig.page.LoadData();
    EXPECT_EQ(rig.shown(0), row.shown) << row.bench << row.steps;
  }
}

TEST_F(FocusPositions, NoSettingIsShownAndSavedAsZero) {
  FocusRig rig;
  rig.drive().Position(2, -900000);
  rig.page.LoadData();
  EXPECT_EQ(rig.shown(1), "No Setting");
  EXPECT_EQ(rig.drive().Position(2), -900000);
  rig.page.SaveData();
  EXPECT_EQ(rig.drive().Position(2), 0);
}

// The field would refuse the number, whose steps saving finds within the bounds.
TEST_F(FocusPositions, TheBoundsOfTheFieldComeBeforeRoundingAndThoseOfSavingAfter) {
  struct Row {
    const char* text;
    std::int32_t saved;
  };
  for (const Row& row :
       {Row{"50000", 1000000}, Row{"50000.01", 1000000}, Row{"50000.05", 0}, Row{"50001", 0},
        Row{"-100000", -2000000}, Row{"-100000.02", -2000000}, Row{"-100000.05", 0},
        Row{"0.125", 2}, Row{"0.375", 8}, Row{"0.025", 0}, Row{"-0.075", -2}, Row{"abc", 0},
        Row{"", 0}, Row{"1e300", 0}, Row{"-1e300", 0}, Row{"nan", 0}, Row{"1e2", 2000}}) {
    FocusRig rig;
    rig.drive().Position(1, 77);
    rig.field(0).setText(row.text);
    rig.page.SaveData();
    EXPECT_EQ(rig.drive().Position(1), row.saved) << row.text;
  }
  FocusRig rig;
  rig.field(0).setText(QString(400, u'9'));
  rig.page.SaveData();
  EXPECT_EQ(rig.drive().Position(1), 0);
}

TEST_F(FocusPositions, SavingGoesOverAllSevenRowsAndNoFurther) {
  FocusRig rig;
  for (std::int32_t address = 1; address <= 10; ++address) rig.drive().Position(address, address);
  rig.page.LoadData();
  rig.page.SaveData();
  for (std::int32_t address = 1; address <= 6; ++address) {
    EXPECT_EQ(rig.drive().Position(address), address);
  }
  EXPECT_EQ(rig.drive().Position(7), 0) << "a hidden row is empty";
  for (std::int32_t address = 8; address <= 10; ++address) {
    EXPECT_EQ(rig.drive().Position(address), address);
  }
}

TEST_F(FocusPositions, SavingShowsNoBoxAndChangesNoText) {
  FocusRig rig;
  rig.field(0).setText("abc");
  rig.page.SaveData();
  EXPECT_EQ(rig.shown(0), "abc");
  EXPECT_TRUE(rig.prompts.Log().empty());
}

TEST_F(FocusPositions, TheEnterKeyIsSwallowedAndStores) {
  FocusRig rig;
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
    rig.drive().Position(3, 0);
    TypeInto(rig.field(2), "2.5");
    EXPECT_EQ(rig.drive().Position(3), 0);
    QTest::keyClick(&rig.field(2), key);
    EXPECT_EQ(rig.drive().Position(3), 50);
    EXPECT_TRUE(rig.field(2).hasFocus());
  }
}

TEST_F(FocusPositions, ARefusalOfTheEnterKeyIsABoxAndStoresNothing) {
  FocusRig rig;
  rig.drive().Position(3, 12);
  TypeInto(rig.field(2), "50000.01");
  rig.prompts.ExpectBox(kWrongValue, box::kOk);
  QTest::keyClick(&rig.field(2), Qt::Key_Return);
  EXPECT_EQ(rig.drive().Position(3), 12);
  EXPECT_TRUE(rig.field(2).hasFocus());
}

TEST_F(FocusPositions, FiftyThousandPassesTheFieldAndAHundredthMoreDoesNot) {
  FocusRig rig;
  Enter(rig.field(0), "50000");
  EXPECT_EQ(rig.drive().Position(1), 1000000);
  Enter(rig.field(0), "-100000");
  EXPECT_EQ(rig.drive().Position(1), -2000000);
  rig.prompts.ExpectBox(kWrongValue, box::kOk);
  Enter(rig.field(0), "50000.01");
  EXPECT_EQ(rig.drive().Position(1), -2000000);
}

TEST_F(FocusPositions, AnEmptyFieldPassesAndIsZero) {
  FocusRig rig;
  rig.drive().Position(1, 12);
  rig.page.LoadData();
  Enter(rig.field(0), "");
  EXPECT_EQ(rig.drive().Position(1), 0);
  EXPECT_EQ(rig.shown(0), "");
}

TEST_F(FocusPositions, AnUntouchedNoSettingIsRefusedWhenItsFieldIsLeft) {
  FocusRig rig;
  rig.drive().Position(1, -900000);
  rig.page.LoadData();
  rig.field(0).setFocus();
  rig.prompts.ExpectBox(kWrongValue, box::kOk);
  QTest::keyClick(&rig.field(0), Qt::Key_Tab);
  QApplication::processEvents();
  EXPECT_TRUE(rig.field(0).hasFocus());
  EXPECT_EQ(rig.drive().Position(1), -900000);
}

TEST_F(FocusPositions, ARefusedTextForbidsTheClickOnAMoveButton) {
  FocusRig rig;
  rig.Select(1);
  TypeInto(rig.field(0), "abc");
  rig.Forget();
  rig.prompts.ExpectBox(kWrongValue, box::kOk);
  ClickButton(*rig.page.ButtonUpLarge);
  EXPECT_EQ(rig.journal.CallCount(), 0U);
  EXPECT_TRUE(rig.field(0).hasFocus());
}

TEST_F(FocusPositions, FollowTheUsersDecimalComma) {
  SetSystemNumberFormat({",", "."});
  FocusRig rig;
  rig.drive().Position(1, 50);
  rig.page.LoadData();
  EXPECT_EQ(rig.shown(0), "2,5");
  Enter(rig.field(0), "-0,375");
  EXPECT_EQ(rig.drive().Position(1), -8);
  rig.prompts.ExpectBox(kWrongValue, box::kOk);
  Enter(rig.field(0), "2.5");
  rig.field(0).setText("1,05");
  rig.page.SaveData();
  EXPECT_EQ(rig.drive().Position(1), 21);
}

}  // namespace
}  // namespace mortane::test
