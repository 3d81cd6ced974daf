// Renders every control in every state, and a page of each kind, into PNG files for the eye.
#include <QApplication>
#include <QDir>
#include <QDockWidget>
#include <QGridLayout>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QStatusBar>
#include <QTextEdit>
#include <QToolBar>
#include <QVBoxLayout>
#include <functional>

#include "app/ApplyTheme.h"
#include "drawings/MicroscopeDrawing.h"
#include "switches/ReportList.h"
#include "widgets/Card.h"
#include "widgets/CheckToggle.h"
#include "widgets/ComboBox.h"
#include "widgets/CommandKey.h"
#include "widgets/ContainerPage.h"
#include "widgets/Icons.h"
#include "widgets/ListBox.h"
#include "widgets/OptionGroup.h"
#include "widgets/PageButton.h"
#include "widgets/PageHeader.h"
#include "widgets/ProgressLine.h"
#include "widgets/Rail.h"
#include "widgets/SectionBar.h"
#include "widgets/TabStrip.h"
#include "widgets/TextField.h"
#include "widgets/Theme.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

// A state that only the mouse or the keyboard brings about is painted by giving the control the
// event and taking its picture at once.
QPixmap Picture(QWidget* widget, const std::function<void(QWidget*)>& prepare = {}) {
  QPalette onCard = QApplication::palette();
  onCard.setColor(QPalette::Window, onCard.color(QPalette::Base));
  widget->setPalette(onCard);
  widget->resize(widget->sizeHint());
  widget->move(300, 300);
  widget->show();
  widget->activateWindow();
  QApplication::processEvents();
  if (QWidget* focused = QApplication::focusWidget()) focused->clearFocus();
  if (prepare) prepare(widget);
  QPixmap picture = widget->grab();
  delete widget;
  return picture;
}

QWidget* Shown(const QPixmap& picture, const QString& caption) {
  auto* cell = new QWidget;
  auto* column = new QVBoxLayout(cell);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(grid::kUnit);
  auto* label = new QLabel;
  label->setPixmap(picture);
  column->addWidget(label);
  column->addWidget(CaptionLabel(caption));
  return cell;
}

void Focus(QWidget* widget) {
  widget->setFocus(Qt::TabFocusReason);
}

void Hover(QWidget* widget) {
  widget->setAttribute(Qt::WA_UnderMouse);
}

void Press(QWidget* widget) {
  const QPointF at(10, 10);
  QMouseEvent press(QEvent::MouseButtonPress, at, widget->mapToGlobal(at), Qt::LeftButton,
                    Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(widget, &press);
}

QHBoxLayout* Row(Card* card) {
  auto* row = new QHBoxLayout;
  row->setSpacing(grid::kBetweenColumns);
  card->body()->addLayout(row);
  card->body()->addStretch();
  return row;
}

Card* PageButtons() {
  auto* card = new Card("Page button");
  auto* row = Row(card);
  row->setSpacing(0);
  const auto make = [] { return new PageButton(IconName::Objective, "Objectives"); };
  row->addWidget(Shown(Picture(make()), "resting"));
  row->addWidget(Shown(Picture(make(), Hover), "hover"));
  row->addWidget(Shown(Picture(make(), Focus), "focus"));
  row->addWidget(
      Shown(Picture(make(), [](QWidget* w) { static_cast<PageButton*>(w)->SetSelected(true); }),
            "selected"));
  row->addWidget(Shown(Picture(make(), [](QWidget* w) { w->setEnabled(false); }), "disabled"));
  row->addWidget(
      Shown(Picture(make(), [](QWidget* w) { static_cast<PageButton*>(w)->SetPending(true); }),
            "pending change"));
  row->addStretch();
  return card;
}

Card* Sections() {
  auto* card = new Card("Section options");
  auto* row = Row(card);
  auto* bar = new SectionBar;
  for (const char* text : {"Nosepiece", "Optional Obj.", "Limit Control"}) bar->AddOption(text);
  bar->select(0);
  bar->SetOptionEnabled(2, false);
  row->addWidget(Shown(Picture(bar), "selected, resting, disabled"));
  auto* focused = new SectionBar;
  for (const char* text : {"Nosepiece", "Optional Obj.", "Limit Control"}) focused->AddOption(text);
  focused->SetOptionVisible(0, false);
  focused->select(1);
  row->addWidget(
      Shown(Picture(focused, [](QWidget* w) { Focus(static_cast<SectionBar*>(w)->option(1)); }),
            "first hidden, focus"));
  row->addStretch();
  return card;
}

Card* CommandKeys() {
  auto* card = new Card("Command key");
  auto* row = Row(card);
  const auto make = [] { return new CommandKey(IconName::Receive, "Receive"); };
  row->addWidget(Shown(Picture(make()), "resting"));
  row->addWidget(Shown(Picture(make(), Hover), "hover"));
  row->addWidget(Shown(Picture(make(), Press), "pressed"));
  row->addWidget(Shown(Picture(make(), Focus), "focus"));
  row->addWidget(Shown(Picture(make(), [](QWidget* w) { w->setEnabled(false); }), "disabled"));
  const auto send = [] {
    auto* key = new CommandKey(IconName::Send, "Send");
    key->setMain(true);
    return key;
  };
  row->addWidget(Shown(Picture(send()), "main command"));
  row->addWidget(Shown(Picture(send(), Focus), "main, focus"));
  row->addStretch();
  return card;
}

TextField* MakeField(const QString& text) {
  auto* field = new TextField;
  field->SetWidthFor(12);
  field->setText(text);
  return field;
}

Card* Fields() {
  auto* card = new Card("Field");
  auto* row = Row(card);
  row->addWidget(Shown(Picture(MakeField("Lab 2 East")), "normal"));
  row->addWidget(Shown(Picture(MakeField("Lab 2 East"), Focus), "focus"));
  row->addWidget(Shown(Picture(MakeField("41.5"),
                               [](QWidget* w) {
                                 auto* field = static_cast<TextField*>(w);
                                 field->SetCheck([](const QString&) { return false; });
                                 field->setFocus();
                                 field->Commit();
                               }),
                       "refused"));
  row->addWidget(Shown(Picture(MakeField("Lab 2 East"),
                               [](QWidget* w) { static_cast<TextField*>(w)->setReadOnly(true); }),
                       "read only"));
  row->addWidget(
      Shown(Picture(MakeField("0.75"), [](QWidget* w) { w->setEnabled(false); }), "not fitted"));
  const auto combo = [] {
    auto* box = new ComboBox;
    box->addRow("DIC turret 0.52");
    box->setIndex(0);
    return box;
  };
  row->addWidget(Shown(Picture(combo()), "combo"));
  row->addWidget(Shown(Picture(combo(), Focus), "focus"));
  row->addWidget(Shown(Picture(combo(), [](QWidget* w) { w->setEnabled(false); }), "not fitted"));
  row->addStretch();
  return card;
}

QRadioButton* Option(bool checked) {
  auto* option = new QRadioButton("Extend");
  option->setChecked(checked);
  return option;
}

QPushButton* Button(const QString& text, bool isDefault) {
  auto* button = new QPushButton(text);
  button->setDefault(isDefault);
  return button;
}

Card* Switches() {
  auto* card = new Card("Switch, options, buttons");
  auto* row = Row(card);
  const auto make = [](bool on) {
    auto* toggle = new CheckToggle;
    toggle->setChecked(on);
    return toggle;
  };
  const auto disable = [](QWidget* w) { w->setEnabled(false); };
  row->addWidget(Shown(Picture(make(true)), "on"));
  row->addWidget(Shown(Picture(make(false)), "off"));
  row->addWidget(Shown(Picture(make(true), Focus), "focus"));
  row->addWidget(Shown(Picture(make(false), disable), "not fitted, off"));
  row->addWidget(Shown(Picture(make(true), disable), "not fitted, on"));
  row->addWidget(
      Shown(Picture(make(true), [](QWidget* w) { static_cast<CheckToggle*>(w)->SetUnknown(); }),
            "unknown"));
  row->addWidget(Shown(Picture(Option(true)), "option"));
  row->addWidget(Shown(Picture(Option(false)), "option"));
  row->addWidget(Shown(Picture(Option(true), Focus), "focus"));
  row->addWidget(Shown(Picture(Option(true), disable), "disabled"));
  row->addWidget(Shown(Picture(Button("&Cancel", false)), "button"));
  row->addWidget(Shown(Picture(Button("&Cancel", false), Focus), "focus"));
  row->addWidget(Shown(Picture(Button("&Cancel", false), disable), "disabled"));
  row->addStretch();
  return card;
}

Card* Icons() {
  auto* card = new Card("Icons");
  auto* gridLayout = new QGridLayout;
  card->body()->addLayout(gridLayout);
  const QPalette palette = QApplication::palette();
  for (int i = 0; i < kIconCount; ++i) {
    auto* label = new QLabel;
    label->setPixmap(Icon(static_cast<IconName>(i), 36,
                          {palette.color(QPalette::WindowText), ToneColor(Tone::IconAccent)},
                          label->devicePixelRatio()));
    gridLayout->addWidget(label, i / 17, i % 17);
  }
  return card;
}

QWidget* States() {
  auto* sheet = new QWidget;
  auto* column = new QVBoxLayout(sheet);
  column->setContentsMargins(20, 20, 20, 20);
  column->setSpacing(grid::kBetweenGroups);
  for (Card* card : {PageButtons(), Sections(), CommandKeys(), Fields(), Switches(), Icons()})
    column->addWidget(card);
  sheet->resize(1180, 900);
  return sheet;
}

class SystemPage : public QWidget {
 public:
  SystemPage() {
    QVBoxLayout* column = MakePageLayout(this, new PageHeader(IconName::System, "System"));
    auto* top = new Card;
    auto* row = new QHBoxLayout;
    top->body()->addLayout(row);
    auto* field = new TextField;
    field->SetWidthFor(22);
    field->setText("Lab 2 East");
    row->addWidget(new QLabel("System Name:"));
    row->addWidget(field);
    row->addStretch();
    column->addWidget(top);
    auto* bottom = new Card;
    auto* side = new QHBoxLayout;
    side->setSpacing(grid::kBetweenColumns);
    bottom->body()->addLayout(side);
    auto* text = new QTextEdit;
    text->setReadOnly(true);
    text->setFont(FixedFont());
    text->setText("Mounted Accessories\n\tAnalyzer Control\n\tDIA Aperture Stop Control");
    text->setFixedWidth(320);
    side->addWidget(text);
    auto* drawing = new MicroscopeDrawing;
    drawing->SetAccessories({{8, "Analyzer Control", 2},
                             {3, "DIA Aperture Stop Control", 2},
                             {5, "Condenser Control", 2},
                             {13, "Epi Field Stop Sensor", 0},
                             {7, "Epi Shutter Control", 2},
                             {6, "Filter Cube Control", 2},
                             {2, "DIA Field Stop Control", 2},
                             {4, "DIA Lamp Control", 2},
                             {11, "LightPath Sensor", 1},
                             {1, "ND Filter Control", 2},
                             {9, "Nosepiece Control", 2},
                             {10, "Optical Zoom Sensor", 0},
                             {14, "XY Stage Control", 2},
                             {12, "Z Focus Drive Control", 2}});
    auto* frame = new InnerFrame;
    frame->body()->addWidget(drawing);
    side->addWidget(frame, 1);
    column->addWidget(bottom, 1);
  }
};

class ListsPage : public Page {
 public:
  ListsPage() {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    auto* card = new Card("Set Objective Data to Each Address");
    column->addWidget(card);
    auto* tabs = new TabStrip;
    tabs->SetTabs({"1", "2", "3", "4", "5", "6"});
    tabs->setIndex(3);
    card->body()->addWidget(tabs);
    auto* row = new QHBoxLayout;
    row->setSpacing(grid::kBetweenColumns);
    card->body()->addLayout(row, 1);
    auto* series = new ListBox;
    for (const char* text : {"-----------", "Plan Achromat", "Plan Semi-Apo", "Long Distance"})
      series->addRow(text);
    series->setIndex(2);
    series->setFixedWidth(150);
    row->addWidget(series);
    auto* items = new ListBox;
    items->SetColumns({{"Type", Qt::AlignLeft},
                       {"Mag.", Qt::AlignRight},
                       {"W.D.", Qt::AlignRight},
                       {"N.A.", Qt::AlignRight},
                       {"Name", Qt::AlignLeft}});
    for (int i = 0; i < 20; ++i)
      items->addCells({"DIC", u"%1x"_s.arg((i + 1) * 5), "0.66", "0.75",
                       u"Plan SA %1x DIC"_s.arg((i + 1) * 5)});
    items->setIndex(5);
    row->addWidget(items, 1);
    auto* report = new ReportList({"Switch", "Function"});
    report->addCells({"L (A)", "Z Focus Knob Speed Change"});
    report->addCells({"R (A)", "XYstage Knob Speed Change"});
    report->setIndex(0);
    report->SetBoldRow(0);
    report->SetIconRows(true);
    report->SetRowIcon(0, IconName::System);
    report->SetRowIcon(1, IconName::System);
    report->SetRowDimmed(1, true);
    report->SetRowChecked(1, true);
    row->addWidget(report, 1);
    auto* frames = new QHBoxLayout;
    card->body()->addLayout(frames);
    auto* fitted = new InnerFrame("Mode");
    auto* options = new OptionGroup(this);
    fitted->body()->addWidget(options->addOption("Standard", fitted));
    fitted->body()->addWidget(options->addOption("Extend", fitted));
    options->select(1);
    frames->addWidget(fitted);
    auto* missing = new InnerFrame("Zoom");
    missing->body()->addWidget(new CheckToggle);
    missing->setEnabled(false);
    frames->addWidget(missing);
  }
  void LoadData() override {}
  void SaveData() override {}
};

class ObjectivesPage : public ContainerPage {
 public:
  ObjectivesPage() : ContainerPage(IconName::Objective, "Objectives") {
    SetSections({{"Nosepiece", new ListsPage},
                 {"Optional Obj.", new ListsPage},
                 {"Limit Control", new ListsPage}},
                {});
    LoadData();
  }
};

QWidget* Window(QWidget* page, int selected) {
  auto* window = new QMainWindow;
  window->menuBar()->addMenu("File(&F)")->addAction("Open(&O)");
  window->menuBar()->addMenu("Connect(&C)");
  QToolBar* bar = window->addToolBar("");
  bar->setMovable(false);
  bar->setIconSize({20, 20});
  bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  bar->addAction(Icon(IconName::Open), "Open");
  bar->addAction(Icon(IconName::Save), "Save");
  bar->addSeparator();
  bar->addAction(Icon(IconName::Select), "Select");
  bar->addAction(Icon(IconName::Receive), "Receive");
  bar->addAction(Icon(IconName::Send), "Send")->setEnabled(false);
  auto* center = new QWidget;
  auto* row = new QHBoxLayout(center);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(0);
  auto* rail = new Rail;
  rail->AddPage(IconName::System, "System");
  rail->AddPage(IconName::Objective, "Objectives");
  rail->AddPage(IconName::Cube, "Filter Cubes");
  rail->AddPage(IconName::Condenser, "Condensers");
  rail->AddPage(IconName::Interlock, "Interlocks");
  rail->AddPage(IconName::Control, "Controls");
  rail->select(selected);
  rail->SetPageEnabled(3, false);
  row->addWidget(rail);
  row->addWidget(page, 1);
  window->setCentralWidget(center);
  window->statusBar()->addPermanentWidget(CaptionLabel("1.0.0"));
  window->resize(1152, 740);
  return window;
}

void Save(QWidget* widget, const QString& path) {
  widget->show();
  QApplication::processEvents();
  widget->grab().save(path);
  delete widget;
}

}  // namespace
}  // namespace mortane

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  const QString folder = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QDir::currentPath();
  QDir().mkpath(folder);
  for (const auto scheme : {mortane::Scheme::Light, mortane::Scheme::Dark}) {
    mortane::ApplyTheme(application, scheme);
    const QString end = scheme == mortane::Scheme::Dark ? "-dark.png" : ".png";
    mortane::Save(mortane::States(), folder + "/states" + end);
    mortane::Save(mortane::Window(new mortane::SystemPage, 0), folder + "/system" + end);
    mortane::Save(mortane::Window(new mortane::ObjectivesPage, 1), folder + "/lists" + end);
  }
  return 0;
}
