#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include "switches/TactorSwitchSettingCtl.h"
#include "widgets/Card.h"
#include "widgets/ClickFocus.h"
#include "widgets/ComboBox.h"
#include "widgets/Icons.h"
#include "widgets/Named.h"
#include "widgets/OptionGroup.h"
#include "widgets/ReportList.h"
#include "widgets/SectionBar.h"
#include "widgets/ShownField.h"
#include "widgets/SwitchDrawing.h"
#include "widgets/TabStrip.h"
#include "widgets/Theme.h"

namespace mortane {
namespace {

constexpr int kFileIconSide = 20;

QPushButton* FileButton(IconName icon, const char* caption, const char* name, QWidget* parent) {
  auto* button = Named(new QPushButton(parent), name);
  button->setIcon(Icon(icon));
  button->setIconSize({kFileIconSide, kFileIconSide});
  button->setAccessibleName(QLatin1String(caption));
  button->setToolTip(button->accessibleName());
  button->setFixedWidth(GridHeight(grid::kFieldHeight, *button) + grid::kUnit);
  TakeFocusByClicks(*button);
  return button;
}

// Caption and options in one line.
InnerFrame* OptionFrame(const char* caption, const char* name, const char* optionsName,
                        const QStringList& options, OptionGroup& group, QWidget* parent) {
  auto* frame = Named(new InnerFrame({}, parent), name);
  frame->setAccessibleName(QLatin1String(caption));
  frame->body()->setContentsMargins(grid::kBetweenGroups, grid::kBetweenControls,
                                    grid::kBetweenGroups, grid::kBetweenControls);
  auto* line = new QHBoxLayout;
  line->setSpacing(grid::kBetweenControls);
  line->addWidget(CaptionLabel(frame->accessibleName(), frame));
  for (const QString& option : options)
    line->addWidget(group.addOption(option, optionsName, frame));
  line->addStretch();
  frame->body()->addLayout(line);
  return frame;
}

}  // namespace

void TactorSwitchSettingCtl::BuildControls() {
  frmSetup = Named(new QWidget(FrameBase), "frmSetup");
  TabSwitch = Named(new TabStrip(frmSetup), "TabSwitch");
  TabSwitch->setAccessibleName(QStringLiteral("Setting"));
  btnNewFileOpen = FileButton(IconName::NewSheet, "New File", "btnNewFileOpen", frmSetup);
  btnReadFileOpen = FileButton(IconName::Open, "Open", "btnReadFileOpen", frmSetup);
  Command1 = FileButton(IconName::Save, "Save", "Command1", frmSetup);
  OptMode = new OptionGroup(this);
  frmMode = OptionFrame("Mode", "frmMode", "OptMode",
                        {QStringLiteral("Standard"), QStringLiteral("Extend")}, *OptMode, frmSetup);
  optHandle = new OptionGroup(this);
  frmHandle = OptionFrame("XY Knob", "frmHandle", "optHandle",
                          {QStringLiteral("Right"), QStringLiteral("Left")}, *optHandle, frmSetup);
  optChg = new OptionGroup(this);
  for (const int page : {1, 2}) {
    const QString caption = page == 1 ? QStringLiteral("A") : QStringLiteral("B");
    auto* option = Named(new SectionOption(caption, frmSetup, ChosenLook::Blue), "optChg", page);
    option->SetEnds(page == 1, page == 2);
    optChg->add(option, page);
  }
  optChg->select(1);
  textSW = ShownField("textSW", "Switch", frmSetup);
  ComboSWFunc = Named(new ComboBox(frmSetup), "ComboSWFunc");
  ComboSWFunc->hide();
  optBtn->setObjectName("handController");
}

void TactorSwitchSettingCtl::BuildLayout() {
  auto* files = new QHBoxLayout;
  files->setSpacing(grid::kBetweenControls);
  files->addWidget(TabSwitch);
  files->addStretch();
  for (QPushButton* button : {btnNewFileOpen, btnReadFileOpen, Command1}) files->addWidget(button);

  auto* options = new QHBoxLayout;
  options->setSpacing(grid::kBetweenGroups);
  options->addWidget(frmMode);
  options->addWidget(frmHandle);

  auto* pages = new QHBoxLayout;
  pages->setSpacing(0);
  pages->addWidget(optChg->button(1));
  pages->addWidget(optChg->button(2));
  pages->addStretch();
  pages->addLayout(ButtonRow());
  auto* right = new QVBoxLayout;
  right->setSpacing(grid::kBetweenControls);
  right->addLayout(pages);
  right->addWidget(ListView1, 1);
  right->addWidget(textSW);
  right->addLayout(ComboRow());

  auto* body = new QGridLayout(frmSetup);
  body->setContentsMargins({});
  body->setHorizontalSpacing(grid::kBetweenColumns);
  body->setVerticalSpacing(grid::kBetweenControls);
  body->addLayout(files, 0, 0, 1, 2);
  body->addWidget(PictureFrame(), 1, 0);
  body->addLayout(options, 2, 0);
  body->addLayout(right, 1, 1, 2, 1);
  body->setColumnStretch(0, 1);
  body->setColumnStretch(1, 1);
  body->setRowStretch(1, 1);
  FrameBase->body()->addWidget(frmSetup, 1);
}

// From left to right and downwards.
void TactorSwitchSettingCtl::SetTabOrder() {
  std::vector<QWidget*> order{TabSwitch, btnNewFileOpen, btnReadFileOpen, Command1};
  const auto append = [&order](const OptionGroup& group, int first) {
    for (int i = 0; i < group.count(); ++i) order.push_back(group.button(first + i));
  };
  optBtn->AppendTo(order);
  append(*OptMode, 0);
  append(*optHandle, 0);
  append(*optChg, 1);
  for (QWidget* control : {static_cast<QWidget*>(cmdDefault), static_cast<QWidget*>(cmdAllClear),
                           static_cast<QWidget*>(ListView1), static_cast<QWidget*>(ComboCWCCW),
                           static_cast<QWidget*>(ComboFunction)}) {
    order.push_back(control);
  }
  for (std::size_t i = 1; i < order.size(); ++i) setTabOrder(order[i - 1], order[i]);
}

}  // namespace mortane
