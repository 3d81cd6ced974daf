// Pages of a small window with a large font, worked by keys alone.
#include <gtest/gtest.h>

#include <QFrame>
#include <QRadioButton>

#include "AppRig.h"
#include "gui/support/FontScope.h"
#include "gui/support/PageLayout.h"
#include "hub/clsK70.h"
#include "objectives/clsDbNosepiece.h"
#include "switches/clsDbSwitch.h"
#include "widgets/ListBox.h"
#include "widgets/PageButton.h"

namespace mortane::test {
namespace {

class SmallWindowKeys : public testing::Test {
 protected:
  SmallWindowKeys() {
    rig.Start();
    rig.form->activateWindow();
    rig.form->resize(800, 500);
    ComeToRest();
  }

  static void Press(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }
  static std::string Focused() { return QApplication::focusWidget()->objectName().toStdString(); }
  // The page by its button, and from there the section by the arrow in its bar.
  void GoTo(std::size_t page, int section) {
    rig.form->ImageButton[page]->setFocus();
    Press(Qt::Key_Space);
    Press(Qt::Key_Tab);
    for (int i = 0; i < 10 && Focused().back() != '0'; ++i) Press(Qt::Key_Left);
    for (int i = 0; i < section; ++i) Press(Qt::Key_Right);
    ComeToRest();
  }
  // Whether the control is in sight once the Tab key has come to it.
  static bool TabTo(const std::string& name) {
    for (int i = 0; i < 30; ++i) {
      Press(Qt::Key_Tab);
      if (Focused() == name) return !QApplication::focusWidget()->visibleRegion().isEmpty();
    }
    return false;
  }

  const FontScope font{FontOf(18)};
  AppRig rig{benches::Named("Harbour")};
};

TEST_F(SmallWindowKeys, TheNameAndTheSeriesOfAnOptionalObjectiveAreSet) {
  GoTo(1, 1);
  ASSERT_TRUE(TabTo("TextName"));
  QTest::keyClicks(QApplication::focusWidget(), "Bay 4");
  ASSERT_TRUE(TabTo("ListSeries"));
  Press(Qt::Key_Home);
  Press(Qt::Key_Down);
  ASSERT_TRUE(TabTo("ListMag"));
  Press(Qt::Key_Down);
  Press(Qt::Key_End);
  ASSERT_TRUE(TabTo("TextNA"));
  QTest::keyClicks(QApplication::focusWidget(), "0.5");
  Press(Qt::Key_Return);
  std::string name;
  std::string magnification;
  std::string distance;
  std::string aperture;
  std::int32_t series = -1;
  std::int32_t type = -1;
  std::int32_t condenser = -1;
  GetK70().DbNosepiece.Get_DbNosepieceOption(1, name, series, type, magnification, distance,
                                             aperture, condenser);
  EXPECT_EQ(name, "Bay 4");
  EXPECT_EQ(series, 1);
  EXPECT_EQ(aperture, "0.5");
  const auto& list = rig.Find<ListBox>("ListMag");
  EXPECT_EQ(magnification + "x", list.text(list.rowCount() - 1).toStdString());
}

TEST_F(SmallWindowKeys, ASwitchGetsItsFunctionFromTheListAboveTheDrawing) {
  GoTo(5, 3);
  ASSERT_TRUE(TabTo("ListView1"));
  Press(Qt::Key_Down);
  Press(Qt::Key_End);
  const auto functions = [] {
    std::vector<std::int16_t> codes;
    for (std::int16_t i = 1; i <= clsDbSwitch::SwitchCount; ++i)
      codes.push_back(GetK70().curSwitch.Func(i));
    return codes;
  };
  const std::vector<std::int16_t> before = functions();
  Press(Qt::Key_Tab);
  EXPECT_EQ(Focused().substr(0, 6), "optBtn") << "the drawing comes after the list";
  ASSERT_TRUE(TabTo("ComboFunction"));
  Press(Qt::Key_Down);
  EXPECT_NE(functions(), before);
}

}  // namespace
}  // namespace mortane::test
