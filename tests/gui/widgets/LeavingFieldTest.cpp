// When a text field is left, and what a click does to the focus.
#include <QDialog>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <string>

#include "drawings/TurretDrawing.h"
#include "gui/support/TestWindow.h"
#include "widgets/CheckToggle.h"
#include "widgets/ClickFocus.h"
#include "widgets/ComboBox.h"
#include "widgets/CommandKey.h"
#include "widgets/ListBox.h"
#include "widgets/OptionGroup.h"
#include "widgets/PageButton.h"
#include "widgets/Rail.h"
#include "widgets/SectionBar.h"
#include "widgets/TabStrip.h"
#include "widgets/TextField.h"

namespace mortane {
namespace {

// A field in a panel of its own, and one control of each kind beside it.
struct Controls {
  Controls() {
    panel = window.Add<QWidget>();
    auto* inPanel = new QVBoxLayout(panel);
    field = new TextField(panel);
    inPanel->addWidget(field);
    second = window.Add<TextField>();
    button = window.Add<QPushButton>();
    key = window.Add<CommandKey>(IconName::Send, "Send");
    list = window.Add<ListBox>();
    for (const char* text : {"one", "two"}) list->addRow(text);
    combo = window.Add<ComboBox>();
    combo->addRow("entry");
    tabs = window.Add<TabStrip>();
    tabs->SetNumberedTabs(3);
    sections = window.Add<SectionBar>();
    for (const char* text : {"Left", "Middle", "Right"}) sections->AddOption(text);
    sections->select(0);
    options = new OptionGroup(&window.widget());
    for (const char* text : {"ON", "OFF"})
      window.widget().layout()->addWidget(options->addOption(text, &window.widget()));
    toggle = window.Add<CheckToggle>();
    turret = window.Add<TurretDrawing>(PlaceKind::Cubes);
    turret->SetItems({{"A", "A", {}}, {"B", "B", {}}});
    rail = window.Add<Rail>();
    for (const char* text : {"System", "Objectives"}) rail->AddPage(IconName::System, text);
    rail->select(0);
    window.Show();
    field->setText("old");
    field->setFocus();
    QObject::connect(field, &TextField::committed, field, [this] { ++commits; });
  }

  // As the system delivers it: to the window, which moves the focus and then hands it on.
  void Press(QWidget* target, Qt::MouseButton mouseButton, QPoint at) {
    QTest::mousePress(window.widget().windowHandle(), mouseButton, Qt::NoModifier,
                      target->mapTo(&window.widget(), at));
  }
  void Release(QWidget* target, Qt::MouseButton mouseButton, QPoint at) {
    const QPoint place = target->mapTo(&window.widget(), at);
    QTest::mouseMove(window.widget().windowHandle(), place);
    QTest::mouseRelease(window.widget().windowHandle(), mouseButton, Qt::NoModifier, place);
    QApplication::processEvents();
  }
  void Click(QWidget* target, QPoint at) {
    Press(target, Qt::LeftButton, at);
    Release(target, Qt::LeftButton, at);
  }

  TestWindow window;
  QWidget* panel = nullptr;
  TextField* field = nullptr;
  TextField* second = nullptr;
  QPushButton* button = nullptr;
  ListBox* list = nullptr;
  ComboBox* combo = nullptr;
  TabStrip* tabs = nullptr;
  SectionBar* sections = nullptr;
  OptionGroup* options = nullptr;
  CheckToggle* toggle = nullptr;
  TurretDrawing* turret = nullptr;
  Rail* rail = nullptr;
  CommandKey* key = nullptr;
  int commits = 0;
};

// What a click on a control aims at, and a number that the click changes.
struct ClickRow {
  const char* name;
  QWidget* (*target)(Controls&);
  QWidget* (*focus)(Controls&);  // what has the focus afterwards
  int (*state)(Controls&);
};

QWidget* Viewport(Controls& c) {
  return c.list->viewport();
}
QWidget* List(Controls& c) {
  return c.list;
}
QWidget* Tabs(Controls& c) {
  return c.tabs;
}
QWidget* Section(Controls& c) {
  return c.sections->option(1);
}
QWidget* Option(Controls& c) {
  return c.options->button(1);
}
QWidget* Toggle(Controls& c) {
  return c.toggle;
}
QWidget* Place(Controls& c) {
  return c.turret->place(1);
}
QWidget* PageButtonOf(Controls& c) {
  return c.rail->button(1);
}

const ClickRow kClicks[] = {
    {"List", Viewport, List, [](Controls& c) { return c.list->index(); }},
    {"Tab", Tabs, Tabs, [](Controls& c) { return c.tabs->index(); }},
    {"Section", Section, Section, [](Controls& c) { return c.sections->selected(); }},
    {"Option", Option, Option, [](Controls& c) { return c.options->selected(); }},
    {"Toggle", Toggle, Toggle, [](Controls& c) { return int{c.toggle->isChecked()}; }},
    {"Place", Place, Place, [](Controls& c) { return c.turret->index(); }},
    {"Page", PageButtonOf, PageButtonOf, [](Controls& c) { return c.rail->selected(); }},
};

// Where a click on the control does something; on the strip, the second tab.
QPoint Aim(Controls& c, const QWidget* target) {
  if (target == c.tabs) return c.tabs->tabRect(1).center();
  if (target == c.list->viewport() || target == c.options->button(1)) return {8, 8};
  return target->rect().center();
}

class LeavingByClick : public ::testing::TestWithParam<ClickRow> {
 protected:
  void SetUp() override {
    target = GetParam().target(c);
    at = Aim(c, target);
    before = GetParam().state(c);
  }
  int state() { return GetParam().state(c); }

  Controls c;
  QWidget* target = nullptr;
  QPoint at;
  int before = 0;
};

TEST_P(LeavingByClick, CommitsOnceBeforeTheClickActs) {
  int stateAtCommit = -2;
  const QObject listener;
  QObject::connect(c.field, &TextField::committed, &listener, [&] { stateAtCommit = state(); });
  c.Click(target, at);
  EXPECT_EQ(c.commits, 1);
  EXPECT_EQ(stateAtCommit, before);
  EXPECT_NE(state(), before);
  EXPECT_TRUE(GetParam().focus(c)->hasFocus());
}

TEST_P(LeavingByClick, ARefusedTextForbidsTheClickAndKeepsTheFocus) {
  int complaints = 0;
  c.field->SetCheck([](const QString&) { return false; }, [&] { ++complaints; });
  c.Click(target, at);
  EXPECT_EQ(state(), before);
  EXPECT_EQ(complaints, 1);
  EXPECT_EQ(c.commits, 0);
  EXPECT_TRUE(c.field->hasFocus());
  c.field->SetCheck({});
  c.Click(target, at);
  EXPECT_NE(state(), before) << "and acts again afterwards";
}

// As when the window goes while the message about the text stands.
TEST_P(LeavingByClick, AClickOnWhatEndsDuringTheComplaintDoesNothing) {
  QWidget* clicked = target;
  while (clicked->parentWidget() != &c.window.widget()) clicked = clicked->parentWidget();
  c.field->SetCheck([](const QString&) { return false; },
                    [&] {
                      delete c.field;
                      delete clicked;
                    });
  const QPoint place = target->mapTo(&c.window.widget(), at);
  QTest::mouseClick(c.window.widget().windowHandle(), Qt::LeftButton, Qt::NoModifier, place);
  QApplication::processEvents();
  EXPECT_EQ(c.commits, 0);
}

TEST_P(LeavingByClick, OtherButtonsLeaveTheFocusWhereItIs) {
  for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
    c.Press(target, button, at);
    c.Release(target, button, at);
    EXPECT_TRUE(c.field->hasFocus());
  }
  EXPECT_EQ(state(), before);
  EXPECT_EQ(c.commits, 0);
}

INSTANTIATE_TEST_SUITE_P(Rows, LeavingByClick, ::testing::ValuesIn(kClicks),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(LeavingField, APressLetGoOutsideLeavesTheFocusWhereItIs) {
  Controls c;
  for (QWidget* target : {Section(c), Option(c), Toggle(c), Place(c)}) {
    c.Press(target, Qt::LeftButton, Aim(c, target));
    c.Release(target, Qt::LeftButton, {-3, -3});
    EXPECT_TRUE(c.field->hasFocus()) << target->metaObject()->className();
  }
  EXPECT_EQ(c.commits, 0);
}

TEST(LeavingField, APageButtonWithAModifierLeavesTheFocusWhereItIs) {
  Controls c;
  QTest::mouseClick(c.rail->button(1), Qt::LeftButton, Qt::ShiftModifier);
  EXPECT_TRUE(c.field->hasFocus());
  EXPECT_EQ(c.commits, 0);
}

TEST(LeavingField, ACombosPressBringsTheFocusAndARefusedTextKeepsItsListShut) {
  Controls c;
  c.Press(c.combo, Qt::RightButton, {8, 8});
  c.Release(c.combo, Qt::RightButton, {8, 8});
  EXPECT_TRUE(c.field->hasFocus());
  c.field->SetCheck([](const QString&) { return false; });
  c.Click(c.combo, {8, 8});
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  EXPECT_TRUE(c.field->hasFocus());
  c.field->SetCheck({});
  c.Click(c.combo, {8, 8});
  EXPECT_EQ(c.commits, 1);
  ASSERT_NE(QApplication::activePopupWidget(), nullptr);
  c.combo->hidePopup();
  EXPECT_TRUE(c.combo->hasFocus());
}

TEST(LeavingField, ACommandKeyLeavesTheFocusWhereItIs) {
  Controls c;
  QSignalSpy commands(c.key, &CommandKey::commanded);
  c.Click(c.key, c.key->rect().center());
  EXPECT_EQ(commands.count(), 1);
  EXPECT_TRUE(c.field->hasFocus());
  EXPECT_EQ(c.commits, 0);
}

TEST(LeavingField, ByTheTabKeyInBothDirectionsCommits) {
  Controls c;
  QTest::keyClick(c.field, Qt::Key_Tab);
  EXPECT_EQ(c.commits, 1);
  c.field->setFocus();
  QTest::keyClick(c.field, Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(c.commits, 2);
  EXPECT_FALSE(c.field->hasFocus());
}

TEST(LeavingField, ByAClickIntoAnotherFieldOrOnAButtonCommits) {
  Controls c;
  c.Click(c.second, {8, 8});
  EXPECT_EQ(c.commits, 1);
  EXPECT_TRUE(c.second->hasFocus());
  c.field->setFocus();
  c.Click(c.button, {8, 8});
  EXPECT_EQ(c.commits, 2);
}

TEST(LeavingField, ByAShortcutCommits) {
  Controls c;
  auto* label = new QLabel("&Next", &c.window.widget());
  label->setBuddy(c.second);
  label->show();
  QTest::keyClick(c.field, Qt::Key_N, Qt::AltModifier);
  EXPECT_TRUE(c.second->hasFocus());
  EXPECT_EQ(c.commits, 1);
}

struct ProgramRow {
  const char* name;
  void (*act)(Controls& c);
};

class NoLeaving : public ::testing::TestWithParam<ProgramRow> {};

// Also with a text that would be refused: nothing is asked.
TEST_P(NoLeaving, CommitsAndAsksNothing) {
  for (const bool accepted : {true, false}) {
    Controls c;
    int asked = 0;
    c.field->SetCheck(
        [&](const QString&) {
          ++asked;
          return accepted;
        },
        [&] { ++asked; });
    GetParam().act(c);
    QApplication::processEvents();
    EXPECT_EQ(c.commits, 0);
    EXPECT_EQ(asked, 0);
    EXPECT_TRUE(c.field == nullptr || !c.field->hasFocus());
  }
}

INSTANTIATE_TEST_SUITE_P(
    Acts, NoLeaving,
    ::testing::Values(ProgramRow{"FocusElsewhere", [](Controls& c) { c.second->setFocus(); }},
                      ProgramRow{"FocusNowhere", [](Controls& c) { c.field->clearFocus(); }},
                      ProgramRow{"NextField",
                                 [](Controls& c) {
                                   c.panel->setFocusProxy(c.second);
                                   c.panel->setFocus();
                                 }},
                      ProgramRow{"FieldHidden", [](Controls& c) { c.field->hide(); }},
                      ProgramRow{"PanelHidden", [](Controls& c) { c.panel->hide(); }},
                      ProgramRow{"WindowHidden", [](Controls& c) { c.window.widget().hide(); }},
                      ProgramRow{"FieldDisabled", [](Controls& c) { c.field->setEnabled(false); }},
                      ProgramRow{"PanelDisabled", [](Controls& c) { c.panel->setEnabled(false); }},
                      ProgramRow{"WindowDisabled",
                                 [](Controls& c) { c.window.widget().setEnabled(false); }},
                      ProgramRow{"FieldDestroyed",
                                 [](Controls& c) {
                                   delete c.field;
                                   c.field = nullptr;
                                 }},
                      ProgramRow{"PanelDestroyed",
                                 [](Controls& c) {
                                   delete c.panel;
                                   c.field = nullptr;
                                 }}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(LeavingField, AnotherWindowAndAMenuAreNoLeaving) {
  Controls c;
  QDialog dialog;
  dialog.show();
  dialog.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
  EXPECT_FALSE(c.field->hasFocus());
  dialog.hide();
  c.window.Show();
  EXPECT_TRUE(c.field->hasFocus());
  QMenu menu(&c.window.widget());
  menu.addAction("entry");
  menu.popup({0, 0});
  menu.hide();
  c.window.Show();
  EXPECT_EQ(c.commits, 0);
}

TEST(LeavingField, TheNextTabKeyCommitsAlthoughTheFieldWasHiddenBefore) {
  Controls c;
  c.field->hide();
  c.field->show();
  c.field->setFocus();
  QTest::keyClick(c.field, Qt::Key_Tab);
  EXPECT_EQ(c.commits, 1);
}

TEST(LeaveFocusedField, CommitsWithoutMovingTheFocus) {
  Controls c;
  EXPECT_TRUE(LeaveFocusedField());
  EXPECT_EQ(c.commits, 1);
  EXPECT_TRUE(c.field->hasFocus());
  c.field->SetCheck([](const QString&) { return false; });
  EXPECT_FALSE(LeaveFocusedField());
  EXPECT_TRUE(c.field->isRefused());
}

TEST(LeaveFocusedField, HasNothingToDoWithoutAField) {
  Controls c;
  c.list->setFocus();
  EXPECT_TRUE(LeaveFocusedField());
  c.list->clearFocus();
  EXPECT_TRUE(LeaveFocusedField());
  EXPECT_EQ(c.commits, 0);
}

// While a message about the text stands, nothing else is asked.
TEST(LeaveFocusedField, IsRefusedDuringAComplaint) {
  Controls c;
  int complaints = 0;
  bool left = true;
  c.field->SetCheck([](const QString&) { return false; },
                    [&] {
                      ++complaints;
                      left = LeaveFocusedField();
                    });
  EXPECT_FALSE(c.field->Leave());
  EXPECT_EQ(complaints, 1);
  EXPECT_FALSE(left);
}

}  // namespace
}  // namespace mortane
