#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include "drawings/SwitchDrawing.h"
#include "switches/ReportList.h"
#include "switches/ShownField.h"
#include "switches/SwitchCtlPlans.h"
#include "switches/TactorSwitchSettingCtl.h"
#include "widgets/Card.h"
#include "widgets/ClickFocus.h"
#include "widgets/ComboBox.h"
#include "widgets/Icons.h"
#include "widgets/Named.h"
#include "widgets/OptionGroup.h"
#include "widgets/SectionBar.h"
#include "widgets/TabStrip.h"
#include "widgets/Theme.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

constexpr int kFileIconSide = 20;

QPushButton* FileButton(IconName icon, const char* caption, const char* name, QWidget* parent) {
  auto* button = Named(new QPushButton(parent), name);
  button->setIcon(Icon(icon));
  button->setIconSize({kFileIconSide, kFileIconSide});
  button->setAccessibleName(QLatin1String(caption));
  button->setToolTip(button->accessibleName());
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

// In the order of the Tab key: from left to right and downwards.
void TactorSwitchSettingCtl::BuildControls() {
  frmSetup = Named(new QWidget(FrameBase), "frmSetup");
  TabSwitch = Named(new TabStrip(frmSetup), "TabSwitch");
  TabSwitch->setAccessibleName(u"Setting"_s);
  btnNewFileOpen = FileButton(IconName::NewSheet, "New File", "btnNewFileOpen", frmSetup);
  btnReadFileOpen = FileButton(IconName::Open, "Open", "btnReadFileOpen", frmSetup);
  Command1 = FileButton(IconName::Save, "Save", "Command1", frmSetup);
  MakeDrawing(HandControllerPlan(), frmSetup);
  optBtn->setObjectName("handController");
  OptMode = new OptionGroup(this);
  frmMode =
      OptionFrame("Mode", "frmMode", "OptMode", {u"Standard"_s, u"Extend"_s}, *OptMode, frmSetup);
  optHandle = new OptionGroup(this);
  frmHandle = OptionFrame("XY Knob", "frmHandle", "optHandle", {u"Right"_s, u"Left"_s}, *optHandle,
                          frmSetup);
  BuildPageOptions();
  MakeButtons(frmSetup);
  MakeList(frmSetup);
  textSW = ShownField("textSW", "Switch", frmSetup);
  MakeCombos(frmSetup);
  ComboSWFunc = Named(new ComboBox(frmSetup), "ComboSWFunc");
  ComboSWFunc->hide();
}

void TactorSwitchSettingCtl::BuildPageOptions() {
  optChg = new OptionGroup(this);
  const QStringList captions{u"A"_s, u"B"_s};
  for (int i = 0; i < captions.size(); ++i) {
    auto* option =
        Named(new SectionOption(captions[i], frmSetup, ChosenLook::Blue), "optChg", i + 1);
    option->setAccessibleName(captions[i]);
    option->SetEnds(i == 0, i + 1 == captions.size());
    optChg->add(option, i + 1);
  }
  optChg->select(1);
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
  right->addWidget(ListView1);
  right->addWidget(textSW);
  right->addLayout(ComboRow());

  auto* body = new QGridLayout(frmSetup);
  body->setContentsMargins({});
  body->setHorizontalSpacing(grid::kBetweenColumns);
  body->setVerticalSpacing(grid::kBetweenControls);
  body->addLayout(files, 0, 0, 1, 2);
  body->addWidget(pictureFrame(), 1, 0);
  body->addLayout(options, 2, 0);
  body->addLayout(right, 1, 1, 2, 1);
  body->setColumnStretch(0, 1);
  body->setColumnStretch(1, 1);
  body->setRowStretch(1, 1);
  FrameBase->body()->addWidget(frmSetup, 1);
}

}  // namespace mortane
