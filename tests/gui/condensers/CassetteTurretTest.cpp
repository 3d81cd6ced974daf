// The turret of the cassette's page and its lists.
#include <QAbstractButton>
#include <QLabel>
#include <QLayout>
#include <QTest>

#include "drawings/TurretDrawing.h"
#include "gui/condensers/CondenserPages.h"
#include "gui/support/PageActs.h"
#include "widgets/ComboBox.h"
#include "widgets/Theme.h"

namespace mortane::test {
namespace {

using Names = std::vector<std::string>;

class CassetteTurret : public testing::Test {
 protected:
  ComboBox& combo(int address) { return *page.Combo1[static_cast<std::size_t>(address - 1)]; }
  QAbstractButton& place(int address) { return *turret.place(address - 1); }
  void ClickPlace(int address) {
    QTest::mouseClick(&place(address), Qt::LeftButton, {}, place(address).rect().center());
  }
  Names Places() {
    Names names;
    for (int i = 0; i < turret.count(); ++i) {
      names.push_back(turret.place(i)->accessibleName().toStdString());
    }
    return names;
  }
  // Addresses whose number is bold; the chosen place and the bold number agree.
  std::vector<int> Chosen() {
    std::vector<int> chosen;
    for (int address = 1; address <= 7; ++address) {
      const bool bold = page.Label1[static_cast<std::size_t>(address - 1)]->font().bold();
      EXPECT_EQ(place(address).isChecked(), bold) << address;
      if (bold) chosen.push_back(address);
    }
    return chosen;
  }

  PageRig rig{"Harbour"};
  CondenserCassetteCtl& page = rig.Show(MakeCondenserCassetteCtl(rig.k70()));
  TurretDrawing& turret = rig.Find<TurretDrawing>("turret");
};

TEST_F(CassetteTurret, ShowsWhatTheListsShow) {
  EXPECT_EQ(Places(), (Names{"Address 1, Bright", "Address 2, Ph 1", "Address 3, Ph 2",
                             "Address 4, Darkfield", "Address 5, DIC L", "Address 6, DIC M",
                             "Address 7, DIC H"}));
  rig.k70().curCondenser.code(2, 9);
  rig.k70().curCondenser.code(3, 141);
  page.LoadData();
  EXPECT_EQ(Places()[1], "Address 2, Ph 3");
  EXPECT_EQ(Places()[2], "Address 3, Slit");
}

TEST_F(CassetteTurret, APlaceIsFreeWhereItsListShowsNothing) {
  rig.k70().curCondenser.code(1, 0);    // empty
  rig.k70().curCondenser.code(2, 4);    // does not suit the address
  rig.k70().curCondenser.code(3, 142);  // has no name
  page.LoadData();
  EXPECT_EQ(Places()[0], "Address 1, ----");
  EXPECT_EQ(Places()[1], "Address 2, ----");
  EXPECT_EQ(Places()[2], "Address 3, ----");
}

TEST_F(CassetteTurret, ANameOfBlanksOrDashesIsAFreePlace) {
  for (const char* name : {"-------", "---------", "\t"}) {
    rig.k70().dbcon.Name(145, name);
    rig.k70().curCondenser.code(1, 145);
    page.LoadData();
    EXPECT_NE(combo(1).currentIndex(), -1) << name;
    const bool free = Places()[0] == "Address 1, ----";
    EXPECT_EQ(free, std::string(name) != "\t") << name;
  }
}

TEST_F(CassetteTurret, AnAddressWhoseRowIsHiddenHasNoPlace) {
  rig.k70().curCondenser.code(3, -1);
  page.LoadData();
  EXPECT_EQ(Places(), (Names{"Address 1, Bright", "Address 2, Ph 1", "Address 4, Darkfield",
                             "Address 5, DIC L", "Address 6, DIC M", "Address 7, DIC H"}));
  QTest::mouseClick(turret.place(2), Qt::LeftButton);
  EXPECT_TRUE(combo(4).hasFocus());
  EXPECT_EQ(turret.index(), 2);
  combo(7).setFocus();
  EXPECT_EQ(turret.index(), 5);
}

TEST_F(CassetteTurret, AChoiceInAListChangesItsPlaceAtOnce) {
  ChooseRow(combo(5), 1);
  EXPECT_EQ(Places()[4], "Address 5, Bright");
  ChooseRow(combo(5), 0);
  EXPECT_EQ(Places()[4], "Address 5, ----");
  EXPECT_EQ(turret.index(), 4);
}

TEST_F(CassetteTurret, AClickOnAPlaceGoesToItsList) {
  for (const int address : {4, 7, 1}) {
    ClickPlace(address);
    EXPECT_TRUE(combo(address).hasFocus()) << address;
    EXPECT_EQ(Chosen(), std::vector<int>{address});
    EXPECT_EQ(rig.k70().curCondenser.code(address), address) << "nothing is stored";
  }
}

TEST_F(CassetteTurret, TheListThatIsWorkedIsTheChosenPlace) {
  EXPECT_EQ(Chosen(), std::vector<int>{1});
  combo(6).setFocus();
  EXPECT_EQ(Chosen(), std::vector<int>{6});
  rig.elsewhere().setFocus();
  EXPECT_EQ(Chosen(), std::vector<int>{6});
  page.LoadData();
  EXPECT_EQ(Chosen(), std::vector<int>{6});
}

TEST_F(CassetteTurret, ArrowsGoAlongTheTurretAndChangeNoList) {
  place(1).setFocus();
  QTest::keyClick(&place(1), Qt::Key_Right);
  EXPECT_TRUE(place(2).hasFocus());
  EXPECT_EQ(Chosen(), std::vector<int>{2});
  QTest::keyClick(&place(2), Qt::Key_Down);
  EXPECT_TRUE(place(3).hasFocus());
  QTest::keyClick(&place(3), Qt::Key_End);
  EXPECT_EQ(Chosen(), std::vector<int>{7});
  for (int address = 1; address <= 7; ++address) {
    EXPECT_EQ(rig.k70().curCondenser.code(address), address);
  }
}

TEST_F(CassetteTurret, TheSpaceKeyGoesFromAPlaceToItsList) {
  place(1).setFocus();
  QTest::keyClick(&place(1), Qt::Key_Right);
  QTest::keyClick(&place(2), Qt::Key_Space);
  EXPECT_TRUE(combo(2).hasFocus());
}

TEST_F(CassetteTurret, TheTabKeyComesToTheChosenPlace) {
  combo(3).setFocus();
  rig.elsewhere().setFocus();
  QTest::keyClick(&rig.elsewhere(), Qt::Key_Tab);
  EXPECT_TRUE(place(3).hasFocus());
}

TEST_F(CassetteTurret, BoldNumbersMoveNothing) {
  std::vector<int> before;
  for (const ComboBox* list : page.Combo1) before.push_back(list->x());
  combo(6).setFocus();
  rig.window().layout()->activate();
  std::vector<int> after;
  for (const ComboBox* list : page.Combo1) after.push_back(list->x());
  EXPECT_EQ(after, before);
}

TEST_F(CassetteTurret, StandsAtTheLeftOfTheLists) {
  EXPECT_GE(page.Label1[0]->mapTo(&page, QPoint()).x(),
            turret.mapTo(&page, turret.rect().topRight()).x() + 16);
  EXPECT_EQ(combo(1).width(), 280);
}

}  // namespace
}  // namespace mortane::test
