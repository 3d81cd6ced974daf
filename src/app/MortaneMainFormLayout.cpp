// The controls of the main window and where they stand.
#include <QAction>
#include <QGridLayout>
#include <QMenuBar>
#include <QRadioButton>
#include <QToolBar>
#include <QToolButton>

#include "app/CommandBar.h"
#include "app/GetAppIcon.h"
#include "app/MortaneMainForm.h"
#include "app/PageArea.h"
#include "widgets/CommandKey.h"
#include "widgets/Page.h"
#include "widgets/PageButton.h"
#include "widgets/Rail.h"
#include "widgets/Theme.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

constexpr int kToolbarIcon = 20;

struct CommandRow {
  const char* text;
  IconName icon;
  void (MortaneMainForm::*run)();
};

}  // namespace

MortaneMainForm::MortaneMainForm(const FormServices& services, const PageTable& pages)
    : ProgramForm(services, QLatin1String(kMainTitle)), table_(pages) {
  setObjectName("MortaneMainForm");
  setAcceptDrops(true);
  BuildMenus();
  BuildToolbar();
  // The Tab key goes by the order of making: page buttons, page, command keys.
  BuildRail();
  BuildPages(services);
  BuildCommandBar();
  Arrange();
  // A window that is activated without a focus gives it to the first field, which is then left.
  ImageButton[0]->setFocus();
}

QAction* MortaneMainForm::AddMenuItem(QMenu& menu, const QString& text, Command command) {
  QAction* item = menu.addAction(text);
  connect(item, &QAction::triggered, this, [this, command] { Run(command); });
  return item;
}

void MortaneMainForm::BuildMenus() {
  MenuFile = menuBar()->addMenu(u"File(&F)"_s);
  MenuFileOpen = AddMenuItem(*MenuFile, u"Open(&O)"_s, &MortaneMainForm::DoOpen);
  MenuFileSave = AddMenuItem(*MenuFile, u"Save(&S)"_s, &MortaneMainForm::DoSave);
  MenuSeparator = MenuFile->addSeparator();
  FileMenuExit = AddMenuItem(*MenuFile, u"Exit(&X)"_s, &MortaneMainForm::DoExit);

  MenuConnect = menuBar()->addMenu(u"Connect(&C)"_s);
  MenuConnectSelect = AddMenuItem(*MenuConnect, u"Select(&L)"_s, &MortaneMainForm::DoSelect);
  MenuConnectReceive = AddMenuItem(*MenuConnect, u"Receive(&R)"_s, &MortaneMainForm::DoReceive);
  MenuConnectSend = AddMenuItem(*MenuConnect, u"Send(&N)"_s, &MortaneMainForm::DoSend);
}

void MortaneMainForm::BuildToolbar() {
  Toolbar1 = addToolBar(u"Toolbar1"_s);
  Toolbar1->setAccessibleName(u"Commands"_s);
  Toolbar1->setMovable(false);
  Toolbar1->setIconSize({kToolbarIcon, kToolbarIcon});
  Toolbar1->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  Toolbar1->addAction(Icon(IconName::Open), u"Open"_s);
  Toolbar1->addAction(Icon(IconName::Save), u"Save"_s);
  Toolbar1->addSeparator();
  Toolbar1->addAction(Icon(IconName::Select), u"Select"_s);
  Toolbar1->addAction(Icon(IconName::Receive), u"Receive"_s);
  Toolbar1->addAction(Icon(IconName::Send), u"Send"_s);
  connect(Toolbar1, &QToolBar::actionTriggered, this, [this](QAction* button) {
    OnToolbarButton(static_cast<int>(Toolbar1->actions().indexOf(button)) + 1);
  });
  note_ = new SessionNote(*Toolbar1);
  OfferKept(*note_->ButtonKept, [this](const FileResult& file) { TakeOpened(file); });
  connect(note_->ButtonManual, &QToolButton::clicked, this, &MortaneMainForm::ShowManual);
  connect(note_->ButtonPending, &QToolButton::clicked, this,
          [this] { Run(&MortaneMainForm::DoShowPending); });
}

void MortaneMainForm::BuildRail() {
  PictureMenu = new Rail(this);
  FrameOptionButton = new QFrame(this);
  FrameOptionButton->hide();
  for (std::size_t i = 0; i < table_.size(); ++i) {
    optMenu.Set(i, new QRadioButton(FrameOptionButton));
    const int added = PictureMenu->AddPage(table_[i].icon, table_[i].title);
    ImageButton.Set(i, PictureMenu->button(added));
    EnablePage(i, i == 0, u"No microscope is connected."_s);
    connect(optMenu[i], &QRadioButton::toggled, this, [this, i](bool checked) {
      if (checked) OnMenuChanged(i);
    });
  }
  connect(PictureMenu, &Rail::selectionChanged, this,
          [this](int index) { optMenu[static_cast<std::size_t>(index)]->setChecked(true); });
}

void MortaneMainForm::BuildCommandBar() {
  static const std::array<CommandRow, 4> kCommands{{
      {"Select", IconName::Select, &MortaneMainForm::DoSelect},
      {"Receive", IconName::Receive, &MortaneMainForm::DoReceive},
      {"Send", IconName::Send, &MortaneMainForm::DoSend},
      {"Exit", IconName::Exit, &MortaneMainForm::DoExit},
  }};
  auto* bar = new CommandBar(this);
  Picture2 = bar;
  for (std::size_t i = 0; i < kCommands.size(); ++i) {
    const CommandRow& row = kCommands[i];
    if (i == 2) bar->row().addStretch();
    ImageCommand.Set(i, new CommandKey(row.icon, QLatin1String(row.text), Picture2));
    connect(ImageCommand[i], &CommandKey::commanded, this, [this, &row] { Run(row.run); });
    bar->row().addWidget(ImageCommand[i]);
  }
  ImageCommand[2]->setMain(true);
}

void MortaneMainForm::BuildPages(const FormServices& services) {
  area_ = new PageArea(this);
  FrameControl = area_->frame();
  for (std::size_t i = 0; i < table_.size(); ++i) {
    if (table_[i].make) pages_[i] = table_[i].make(*this, services);
  }
}

void MortaneMainForm::Arrange() {
  auto* content = new QWidget(this);
  auto* cells = new QGridLayout(content);
  cells->setContentsMargins({});
  cells->setSpacing(0);
  cells->addWidget(PictureMenu, 0, 0, 2, 1);
  cells->addWidget(area_, 0, 1);
  cells->addWidget(Picture2, 1, 1);
  cells->setRowStretch(0, 1);
  cells->setColumnStretch(1, 1);
  SetContent(content);
}

}  // namespace mortane
