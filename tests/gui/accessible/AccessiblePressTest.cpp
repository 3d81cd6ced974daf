// The press of a screen reader and the click of a person are one act.
#include <QCheckBox>
#include <QDialog>
#include <QPushButton>
#include <QRadioButton>
#include <QToolBar>
#include <QToolButton>
#include <string>

#include "drawings/MoveCross.h"
#include "drawings/SwitchDrawing.h"
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

QAccessibleInterface& InterfaceOf(QObject* object) {
  return *QAccessible::queryAccessibleInterface(object);
}

void Press(QAccessibleInterface& pressed) {
  pressed.actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  QApplication::processEvents();
}

struct PressedControls {
  PressedControls() {
    field = window.Add<TextField>();
    cross = window.Add<MoveCross>(MoveCross::Axes::Both, "Start");
    QObject::connect(cross->middle(), &QPushButton::clicked, cross, [this] { ++presses; });
    QObject::connect(cross->button(MoveDirection::Up, MoveSize::Large), &QPushButton::clicked,
                     cross, [this] { ++presses; });
    button = window.Add<QPushButton>("&Plain");
    QObject::connect(button, &QPushButton::clicked, button, [this] { ++presses; });
    check = window.Add<QCheckBox>("Auto");
    QObject::connect(check, &QCheckBox::clicked, check, [this] { ++presses; });
    options = new OptionGroup(&window.widget());
    for (const char* text : {"ON", "OFF"})
      window.widget().layout()->addWidget(options->addOption(text, &window.widget()));
    radio = window.Add<QRadioButton>("Single");
    QObject::connect(radio, &QRadioButton::clicked, radio, [this] { ++presses; });
    toggle = window.Add<CheckToggle>();
    sections = window.Add<SectionBar>();
    for (const char* text : {"Left", "Right"}) sections->AddOption(text);
    rail = window.Add<Rail>();
    for (const char* text : {"System", "Objectives"}) rail->AddPage(IconName::System, text);
    turret = window.Add<TurretDrawing>(PlaceKind::Cubes);
    turret->SetItems({{"A", "A", {}}, {"B", "B", {}}});
    list = window.Add<ListBox>();
    for (const char* text : {"one", "two"}) list->addRow(text);
    tabs = window.Add<TabStrip>();
    tabs->SetNumberedTabs(3);
    combo = window.Add<ComboBox>();
    for (const char* text : {"one", "two"}) combo->addRow(text);
    key = window.Add<CommandKey>(IconName::Send, "Send");
    QObject::connect(key, &CommandKey::commanded, key, [this] { ++presses; });
    bar = window.Add<QToolBar>();
    QAction* open = bar->addAction("Open");
    QObject::connect(open, &QAction::triggered, bar, [this] { ++presses; });
    tool = bar->widgetForAction(open);
    window.Show();
    field->setText("abc");
    field->setFocus();
  }

  TestWindow window;
  TextField* field = nullptr;
  MoveCross* cross = nullptr;
  QPushButton* button = nullptr;
  QCheckBox* check = nullptr;
  OptionGroup* options = nullptr;
  QRadioButton* radio = nullptr;
  CheckToggle* toggle = nullptr;
  SectionBar* sections = nullptr;
  Rail* rail = nullptr;
  TurretDrawing* turret = nullptr;
  ListBox* list = nullptr;
  TabStrip* tabs = nullptr;
  ComboBox* combo = nullptr;
  CommandKey* key = nullptr;
  QToolBar* bar = nullptr;
  QWidget* tool = nullptr;
  int presses = 0;
};

using C = PressedControls;

// A control, which of its items is pressed (-1: itself), and a number that the press changes.
struct PressRow {
  const char* name;
  QWidget* (*control)(C&);
  int item;
  int (*state)(C&);
  bool leavesField = true;  // as a command does not

  QAccessibleInterface& Pressed(C& c) const {
    QAccessibleInterface& whole = InterfaceOf(control(c));
    return item < 0 ? whole : *whole.child(item);
  }
};

std::ostream& operator<<(std::ostream& stream, const PressRow& row) {
  return stream << row.name;
}

int Presses(C& c) {
  return c.presses;
}

const PressRow kPresses[] = {
    {"MoveButton",
     [](C& c) -> QWidget* { return c.cross->button(MoveDirection::Up, MoveSize::Large); }, -1,
     Presses},
    {"CrossMiddle", [](C& c) -> QWidget* { return c.cross->middle(); }, -1, Presses},
    {"PushButton", [](C& c) -> QWidget* { return c.button; }, -1, Presses},
    {"CheckBox", [](C& c) -> QWidget* { return c.check; }, -1, Presses},
    {"RadioButton", [](C& c) -> QWidget* { return c.radio; }, -1, Presses},
    {"Option", [](C& c) -> QWidget* { return c.options->button(1); }, -1,
     [](C& c) { return c.options->selected(); }},
    {"Toggle", [](C& c) -> QWidget* { return c.toggle; }, -1,
     [](C& c) { return int{c.toggle->isChecked()}; }},
    {"Section", [](C& c) -> QWidget* { return c.sections->option(1); }, -1,
     [](C& c) { return c.sections->selected(); }},
    {"PageButton", [](C& c) -> QWidget* { return c.rail->button(1); }, -1,
     [](C& c) { return c.rail->selected(); }},
    {"Place", [](C& c) -> QWidget* { return c.turret->place(1); }, -1,
     [](C& c) { return c.turret->index(); }},
    {"Row", [](C& c) -> QWidget* { return c.list; }, 1, [](C& c) { return c.list->index(); }},
    {"Tab", [](C& c) -> QWidget* { return c.tabs; }, 2, [](C& c) { return c.tabs->index(); }},
    {"Entry", [](C& c) -> QWidget* { return c.combo; }, 1, [](C& c) { return c.combo->index(); }},
    {"CommandKey", [](C& c) -> QWidget* { return c.key; }, -1, Presses, false},
    {"ToolButton", [](C& c) { return c.tool; }, -1, Presses, false},
};

class AccessiblePress : public testing::TestWithParam<PressRow> {
 protected:
  void SetUp() override { before = GetParam().state(c); }
  void Press() { mortane::Press(GetParam().Pressed(c)); }
  int state() { return GetParam().state(c); }

  C c;
  int before = 0;
};

TEST_P(AccessiblePress, ActsOnce) {
  Press();
  EXPECT_NE(state(), before);
  EXPECT_LE(c.presses, 1);
}

TEST_P(AccessiblePress, DoesOverARefusedTextWhatAClickDoes) {
  c.field->SetCheck([](const QString&) { return false; });
  Press();
  EXPECT_EQ(state() == before, GetParam().leavesField);
  EXPECT_TRUE(c.field->hasFocus());
}

TEST_P(AccessiblePress, IsNoneUnderABox) {
  QDialog box(&c.window.widget());
  box.setModal(true);
  box.show();
  Press();
  EXPECT_EQ(state(), before);
}

TEST_P(AccessiblePress, IsNoneWhereNothingIsShown) {
  c.window.widget().hide();
  Press();
  EXPECT_EQ(state(), before);
}

TEST_P(AccessiblePress, IsNoneOnADisabledControl) {
  GetParam().control(c)->setEnabled(false);
  Press();
  EXPECT_EQ(state(), before);
}

// Which the refused text of a field in a window of the background needs, too.
TEST_P(AccessiblePress, AsksTheFieldOfAWindowThatIsNotActive) {
  c.field->SetCheck([](const QString&) { return false; });
  QWidget other;
  other.show();
  other.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
  Press();
  EXPECT_EQ(state() == before, GetParam().leavesField);
}

TEST_P(AccessiblePress, MovesNoFocusAwayFromARefusedText) {
  c.field->SetCheck([](const QString&) { return false; });
  InterfaceOf(GetParam().control(c))
      .actionInterface()
      ->doAction(QAccessibleActionInterface::setFocusAction());
  QApplication::processEvents();
  EXPECT_TRUE(c.field->hasFocus());
}

// A box that the press opens must not keep the screen reader waiting for its answer.
TEST_P(AccessiblePress, ReturnsBeforeTheControlActs) {
  QAccessibleActionInterface& actions = *GetParam().Pressed(c).actionInterface();
  actions.doAction(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(state(), before);
}

INSTANTIATE_TEST_SUITE_P(Rows, AccessiblePress, testing::ValuesIn(kPresses),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(AccessibleButtons, AreToldAsTheToolkitTellsThem) {
  C c;
  const QAccessibleInterface& button = InterfaceOf(c.button);
  EXPECT_EQ(button.role(), QAccessible::Button);
  EXPECT_EQ(button.text(QAccessible::Name), "Plain");
  EXPECT_EQ(button.text(QAccessible::Accelerator), "Alt+P");
  c.button->setText("This && that");
  EXPECT_EQ(button.text(QAccessible::Name), "This & that");
  c.button->setAccessibleName("Said");
  EXPECT_EQ(button.text(QAccessible::Name), "Said");
  c.button->setDown(true);
  EXPECT_TRUE(button.state().pressed);
  c.button->setDefault(true);
  EXPECT_TRUE(button.state().defaultButton);
  EXPECT_EQ(InterfaceOf(c.check).role(), QAccessible::CheckBox);
  EXPECT_EQ(InterfaceOf(c.radio).role(), QAccessible::RadioButton);
  EXPECT_EQ(InterfaceOf(c.key).role(), QAccessible::Button);
  EXPECT_EQ(InterfaceOf(c.tool).role(), QAccessible::Button);
  c.check->setTristate();
  c.check->setCheckState(Qt::PartiallyChecked);
  EXPECT_TRUE(InterfaceOf(c.check).state().checkStateMixed);
}

TEST(AccessibleButtons, TellTheKeyOfTheirOwnActionAlone) {
  QPushButton button("Send");
  button.setShortcut(QKeySequence("Ctrl+T"));
  QAccessibleActionInterface* action =
      QAccessible::queryAccessibleInterface(&button)->actionInterface();
  const QStringList key{button.shortcut().toString(QKeySequence::NativeText)};
  EXPECT_EQ(action->keyBindingsForAction(QAccessibleActionInterface::pressAction()), key);
  EXPECT_EQ(action->keyBindingsForAction(QAccessibleActionInterface::toggleAction()), key);
  EXPECT_EQ(action->keyBindingsForAction(QAccessibleActionInterface::setFocusAction()),
            QStringList());
  QPushButton without("Send");
  EXPECT_EQ(
      QAccessible::queryAccessibleInterface(&without)->actionInterface()->keyBindingsForAction(
          QAccessibleActionInterface::pressAction()),
      QStringList());
}

TEST(AccessibleButtons, AWideOptionIsPressedOnItsIndicatorInBothDirectionsOfText) {
  for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
    TestWindow window;
    auto* check = window.Add<QCheckBox>("Text");
    auto* radio = window.Add<QRadioButton>("Text");
    window.widget().setLayoutDirection(direction);
    window.widget().resize(500, 200);
    window.Show();
    for (QAbstractButton* option : std::initializer_list<QAbstractButton*>{check, radio}) {
      QAccessible::queryAccessibleInterface(option)->actionInterface()->doAction(
          QAccessibleActionInterface::toggleAction());
      QApplication::processEvents();
      EXPECT_TRUE(option->isChecked()) << direction;
    }
  }
}

}  // namespace
}  // namespace mortane
