// Where the focus stands when nobody has put it anywhere: a field that nobody went to is not left.
#include <gtest/gtest.h>

#include <QAction>
#include <QPushButton>
#include <QRadioButton>

#include "CommandRig.h"
#include "app/SelScopeDlg.h"
#include "app/SystemNameCtl.h"
#include "app/SystemSettingsCtl.h"
#include "widgets/ListBox.h"
#include "widgets/PageButton.h"
#include "widgets/TextField.h"

namespace mortane::test {
namespace {

Bench Nameless() {
  Bench bench = benches::Named("Harbour");
  bench.instruments[1].name = "";
  return bench;
}

// A window that is active, as on a desk.
struct FocusRig : AppRig {
  explicit FocusRig(Bench bench, std::vector<std::string> arguments = {})
      : AppRig(std::move(bench), std::move(arguments)) {
    form->Load();
    form->show();
    form->activateWindow();
    EXPECT_TRUE(QTest::qWaitFor([this] { return form->IsStarted(); }));
  }
  void Press(std::size_t page) { QTest::mouseClick(form->ImageButton[page], Qt::LeftButton); }
  TextField& Name() { return *form->SystemSettingsCtl1->SystemNameCtl1->TextSystemName; }
};

TEST(FirstPageButton, IsEnabledBeforeAnythingIsConnected) {
  AppRig rig(benches::Named("Harbour"));
  rig.form->Load();
  for (std::size_t i = 0; i < kPageCount; ++i) {
    EXPECT_EQ(rig.form->ImageButton[i]->isEnabled(), i == 0) << i;
  }
}

TEST(FirstPageButton, HasTheFocusAtTheStart) {
  FocusRig rig(benches::Named("Harbour"));
  EXPECT_EQ(QApplication::focusWidget(), rig.form->ImageButton[0]);
}

TEST(FirstPageButton, TakesWhatIsTypedRightAfterTheStart) {
  FocusRig rig(Nameless());
  QTest::keyClicks(QApplication::focusWidget(), "Bay 4");
  EXPECT_EQ(rig.Name().text(), "NoName");
  EXPECT_EQ(GetK70().SystemName, "");
}

TEST(NamelessController, StaysNamelessWhileNobodyGoesToTheNameField) {
  FocusRig rig(Nameless());
  rig.Press(1);
  rig.Press(0);
  rig.Press(2);
  EXPECT_EQ(GetK70().SystemName, "");
  rig.form->MenuConnectSend->trigger();
  EXPECT_EQ(rig.instrument().name, "");
}

// The shell has no name and nothing fitted.
TEST(Select, ThatDisablesTheButtonWithTheFocusGivesTheFocusToTheFirst) {
  Bench bench = benches::Named("Harbour");
  bench.instruments.push_back(benches::InstrumentNamed("Shell"));
  bench.instruments.back().name = "";
  FocusRig rig(bench, {"Harbour"});
  rig.Press(3);
  ASSERT_TRUE(rig.form->ImageButton[3]->hasFocus());
  const WhenShown<SelScopeDlg> person([](SelScopeDlg& dialog) {
    dialog.List1->setIndex(1);
    dialog.OkButton->click();
  });
  rig.form->MenuConnectSelect->trigger();
  ASSERT_FALSE(rig.form->ImageButton[3]->isEnabled());
  EXPECT_EQ(rig.form->focusWidget(), rig.form->ImageButton[0]);
  EXPECT_EQ(GetK70().SystemName, "");
}

}  // namespace
}  // namespace mortane::test
