// The dot of what is not sent yet, and its words.
#include <QCheckBox>
#include <QHelpEvent>
#include <QRadioButton>
#include <QToolTip>
#include <string>

#include "drawings/TurretDrawing.h"
#include "gui/support/TestWindow.h"
#include "widgets/CheckToggle.h"
#include "widgets/ComboBox.h"
#include "widgets/ListBox.h"
#include "widgets/NotSentMark.h"
#include "widgets/PageButton.h"
#include "widgets/Rail.h"
#include "widgets/SectionBar.h"
#include "widgets/TabStrip.h"
#include "widgets/TextField.h"
#include "widgets/Theme.h"

namespace mortane {
namespace {

struct Shown {
  Shown() {
    rail = window.Add<Rail>();
    rail->AddPage(IconName::System, "System");
    sections = window.Add<SectionBar>();
    sections->AddOption("Nosepiece");
    field = window.Add<TextField>();
    field->setText("Plan A 20x");
    list = window.Add<ListBox>();
    list->addRow("Plan A 20x");
    list->addRow("Plan A 40x");
    turret = window.Add<TurretDrawing>(PlaceKind::Cubes);
    turret->SetItems({{"GFP", "GFP", {}}, {"DAPI", "DAPI", {}}});
    option = window.Add<QRadioButton>("No Rotation");
    check = window.Add<QCheckBox>("Auto");
    toggle = window.Add<CheckToggle>();
    combo = window.Add<ComboBox>();
    combo->addRow("0.95");
    tabs = window.Add<TabStrip>();
    tabs->SetNumberedTabs(2);
    window.Show();
  }

  TestWindow window;
  Rail* rail = nullptr;
  SectionBar* sections = nullptr;
  TextField* field = nullptr;
  ListBox* list = nullptr;
  TurretDrawing* turret = nullptr;
  QRadioButton* option = nullptr;
  QCheckBox* check = nullptr;
  CheckToggle* toggle = nullptr;
  ComboBox* combo = nullptr;
  TabStrip* tabs = nullptr;
};

// What bears a dot, how it gets and loses it, and what is then said of it.
struct DotRow {
  const char* name;
  QWidget* (*widget)(Shown&);
  void (*set)(Shown&, bool pending);
  const char* words;
  int item = -1;  // of a list
};

std::ostream& operator<<(std::ostream& stream, const DotRow& row) {
  return stream << row.name;
}

std::optional<QString> Was(bool pending, const char* was) {
  return pending ? std::optional<QString>(was) : std::nullopt;
}

const DotRow kDots[] = {
    {"Page", [](Shown& s) -> QWidget* { return s.rail->button(0); },
     [](Shown& s, bool pending) { s.rail->button(0)->SetPending(pending); }, "not sent"},
    {"Section", [](Shown& s) -> QWidget* { return s.sections->option(0); },
     [](Shown& s, bool pending) { s.sections->SetOptionPending(0, pending); }, "not sent"},
    {"Field", [](Shown& s) -> QWidget* { return s.field; },
     [](Shown& s, bool pending) { s.field->SetPending(Was(pending, "Plan A 10x")); },
     "not sent: was Plan A 10x"},
    {"Row", [](Shown& s) -> QWidget* { return s.list->viewport(); },
     [](Shown& s, bool pending) { s.list->SetRowPending(0, Was(pending, "")); },
     "not sent: was blank", 0},
    {"Place", [](Shown& s) -> QWidget* { return s.turret->place(0); },
     [](Shown& s, bool pending) {
       s.turret->SetPending(pending ? QMap<int, QString>{{1, "Free"}} : QMap<int, QString>());
     },
     "not sent: was Free"},
    {"Option", [](Shown& s) -> QWidget* { return s.option; },
     [](Shown& s, bool pending) { MarkNotSent(*s.option, Was(pending, "Free")); },
     "not sent: was Free"},
    {"CheckBox", [](Shown& s) -> QWidget* { return s.check; },
     [](Shown& s, bool pending) { MarkNotSent(*s.check, Was(pending, "OFF")); },
     "not sent: was OFF"},
    {"Switch", [](Shown& s) -> QWidget* { return s.toggle; },
     [](Shown& s, bool pending) { MarkNotSent(*s.toggle, Was(pending, "OFF")); },
     "not sent: was OFF"},
    {"DropDownList", [](Shown& s) -> QWidget* { return s.combo; },
     [](Shown& s, bool pending) { MarkNotSent(*s.combo, Was(pending, "1.00")); },
     "not sent: was 1.00"},
    {"Tab", [](Shown& s) -> QWidget* { return s.tabs; },
     [](Shown& s, bool pending) { s.tabs->SetTabPending(0, pending); }, "not sent", 0},
};

class NotSentOn : public testing::TestWithParam<DotRow> {
 protected:
  void Set(bool pending) { GetParam().set(s, pending); }
  QWidget& widget() { return *GetParam().widget(s); }
  QString Said() {
    QWidget* told = &widget();
    if (told == s.list->viewport()) told = s.list;
    QAccessibleInterface* control = QAccessible::queryAccessibleInterface(told);
    if (GetParam().item >= 0) control = control->child(GetParam().item);
    return control->text(QAccessible::Description);
  }
  QString ToolTip() {
    QPoint at = widget().rect().center();
    if (&widget() == s.list->viewport()) {
      at = s.list->visualItemRect(s.list->topLevelItem(0)).center();
    }
    if (&widget() == s.tabs) at = s.tabs->tabRect(0).center();
    QToolTip::showText({}, "of before");  // a tool tip without a successor fades out slowly
    QHelpEvent help(QEvent::ToolTip, at, widget().mapToGlobal(at));
    QApplication::sendEvent(&widget(), &help);
    return QToolTip::text();
  }

  Shown s;
};

// Those in the colour of dots, on pages and in the side bar.
int DotPixels(const QImage& picture, const QPalette& palette) {
  const QRgb link = palette.color(QPalette::Link).rgb();
  const QRgb rail = ToneColor(Tone::RailPending).rgb();
  int count = 0;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      const QRgb pixel = picture.pixel(x, y);
      count += pixel == link || pixel == rail ? 1 : 0;
    }
  }
  return count;
}

TEST_P(NotSentOn, ADotIsShownAndTakenAway) {
  const QImage plain = widget().grab().toImage();
  Set(true);
  const QImage dotted = widget().grab().toImage();
  EXPECT_GT(DotPixels(dotted, widget().palette()), DotPixels(plain, widget().palette()) + 5);
  Set(false);
  EXPECT_EQ(widget().grab().toImage(), plain);
}

TEST_P(NotSentOn, TheDescriptionAndTheToolTipSayIt) {
  EXPECT_FALSE(Said().contains("not sent"));
  Set(true);
  EXPECT_EQ(Said(), GetParam().words);
  EXPECT_TRUE(ToolTip().endsWith(GetParam().words)) << ToolTip().toStdString();
  Set(false);
  EXPECT_FALSE(Said().contains("not sent"));
  EXPECT_FALSE(ToolTip().contains("not sent"));
}

TEST_P(NotSentOn, ItsToolTipGoesBeforeThatOfItsPage) {
  s.window.widget().setToolTip("Objectives");
  for (QWidget* widget : {static_cast<QWidget*>(s.list), static_cast<QWidget*>(s.turret)})
    widget->setToolTip("Objectives");
  Set(true);
  EXPECT_TRUE(ToolTip().endsWith(GetParam().words)) << ToolTip().toStdString();
}

INSTANTIATE_TEST_SUITE_P(Dots, NotSentOn, testing::ValuesIn(kDots),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(NotSent, AFieldGetsItsOwnDescriptionBack) {
  TextField field;
  field.setAccessibleDescription("in steps");
  field.SetPending("1");
  field.SetPending("2");
  EXPECT_EQ(field.accessibleDescription(), "not sent: was 2");
  field.SetPending(std::nullopt);
  EXPECT_EQ(field.accessibleDescription(), "in steps");
}

TEST(NotSent, AControlKeepsItsOwnDescriptionAndToolTip) {
  TestWindow window;
  auto* option = window.Add<QRadioButton>("");
  window.Show();
  option->setAccessibleDescription("Buzzer");
  option->setToolTip("The two controllers differ");
  MarkNotSent(*option, "ON");
  MarkNotSent(*option, "OFF");
  EXPECT_EQ(option->accessibleDescription(), "Buzzer, not sent: was OFF");
  EXPECT_EQ(NoteOfNotSent(*option), "not sent: was OFF");
  QHelpEvent help(QEvent::ToolTip, {}, option->mapToGlobal(QPoint()));
  QApplication::sendEvent(option, &help);
  EXPECT_EQ(QToolTip::text(), "The two controllers differ\nnot sent: was OFF");
  MarkNotSent(*option, std::nullopt);
  EXPECT_EQ(option->accessibleDescription(), "Buzzer");
  EXPECT_EQ(NoteOfNotSent(*option), "");
}

TEST(NotSent, APlaceKeepsItsDotWithItsAddress) {
  TurretDrawing turret(PlaceKind::Condensers);
  turret.SetItems({{"C1", "C1", {}, 1}, {"C3", "C3", {}, 3}});
  turret.SetPending({{3, "C2"}});
  turret.SetItem(1, {"C4", "C4", {}, 3});
  EXPECT_EQ(turret.place(1)->accessibleDescription(), "not sent: was C2");
  turret.SetItems({{"C3", "C3", {}, 3}, {"C4", "C4", {}, 4}});
  EXPECT_EQ(turret.placeOf(3), 0);
  EXPECT_EQ(turret.placeOf(1), -1);
  EXPECT_EQ(turret.place(0)->accessibleDescription(), "not sent: was C2");
  EXPECT_EQ(turret.place(1)->accessibleDescription(), "");
  turret.SetPending({});
  EXPECT_EQ(turret.place(0)->accessibleDescription(), "");
}

TEST(NotSent, AColumnIsAsWideAsItsTextBesideTheDot) {
  TestWindow window;
  auto* list = window.Add<ListBox>();
  list->SetColumns({{"Switch"}, {"Function"}});
  list->addCells({"CW/CCW_4", "Filter Cube CW/CCW"});
  window.Show();
  list->SetRowPending(0, "Objective CW/CCW");
  QCoreApplication::processEvents();
  const QModelIndex first = list->model()->index(0, 0);
  EXPECT_GE(list->columnWidth(0), list->itemDelegate()->sizeHint({}, first).width());
  const int withDot = list->columnWidth(0);
  list->SetRowPending(0, std::nullopt);
  QCoreApplication::processEvents();
  EXPECT_LT(list->columnWidth(0), withDot);
}

TEST(NotSent, TheDotOfTheChosenSectionHasTheColourOfItsText) {
  TestWindow window;
  auto* sections = window.Add<SectionBar>();
  for (const char* text : {"Nosepiece", "Limit Control"}) sections->AddOption(text);
  window.Show();
  sections->select(0);
  for (const int section : {0, 1}) sections->SetOptionPending(section, true);
  const auto dot = [&](int section) {
    QWidget& option = *sections->option(section);
    return DotPixels(option.grab().toImage(), option.palette());
  };
  EXPECT_EQ(dot(0), 0);
  EXPECT_GT(dot(1), 10);
}

TEST(NotSent, TheToolTipOfARowGoesBeforeThatOfItsList) {
  Shown s;
  s.list->setToolTip("Objectives");
  s.list->SetRowPending(0, "Plan A 10x");
  const QPoint at = s.list->visualItemRect(s.list->topLevelItem(0)).center();
  QHelpEvent help(QEvent::ToolTip, at, s.list->viewport()->mapToGlobal(at));
  QApplication::sendEvent(s.list->viewport(), &help);
  EXPECT_EQ(QToolTip::text(), "not sent: was Plan A 10x");
}

TEST(NotSent, ATabThatIsMadeAnewHasNoDot) {
  TabStrip tabs;
  tabs.SetNumberedTabs(2);
  tabs.SetTabPending(1, true);
  EXPECT_TRUE(tabs.isTabPending(1));
  EXPECT_FALSE(tabs.isTabPending(0));
  tabs.SetNumberedTabs(2);
  EXPECT_FALSE(tabs.isTabPending(1));
}

TEST(NotSent, ARowWithADotIsAsWideAsItsTextAndTheDot) {
  ListBox list;
  list.SetColumns({{"Name"}, {"Type"}});
  list.addCells({"Plan A 20x", "Dry"});
  list.show();
  const int plain = list.columnWidth(0);
  list.SetRowPending(0, "Plan A 10x");
  QApplication::processEvents();
  EXPECT_GT(list.columnWidth(0), plain);
}

}  // namespace
}  // namespace mortane
