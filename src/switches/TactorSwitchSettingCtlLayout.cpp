// Where the controls of the hand controller's page stand.
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
#include "widgets/OptionGroup.h"
#include "widgets/PairPanel.h"
#include "widgets/SectionBar.h"
#include "widgets/TabStrip.h"
#include "widgets/Theme.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

constexpr int kFileIconSide = 20;
// Of a row of the list with the longest function.
constexpr int kListCharacters = 70;

QPushButton* FileButton(IconName icon, const char* caption, QWidget* parent) {
  auto* button = new QPushButton(parent);
  button->setIcon(Icon(icon));
  button->setIconSize({kFileIconSide, kFileIconSide});
  button->setAccessibleName(QLatin1String(caption));
  button->setToolTip(button->accessibleName());
  TakeFocusByClicks(*button);
  return button;
}

// Caption and options in one line.
InnerFrame* OptionFrame(const char* caption, const QStringList& options, OptionGroup& group,
                        QWidget* parent) {
  auto* frame = new InnerFrame({}, parent);
  frame->setAccessibleName(QLatin1String(caption));
  frame->body()->setContentsMargins(grid::kBetweenGroups, grid::kBetweenControls,
                                    grid::kBetweenGroups, grid::kBetweenControls);
  auto* line = new QHBoxLayout;
  line->setSpacing(grid::kBetweenControls);
  line->addWidget(CaptionLabel(frame->accessibleName(), frame));
  for (const QString& option : options) line->addWidget(group.addOption(option, frame));
  line->addStretch();
  frame->body()->addLayout(line);
  return frame;
}

}  // namespace

// In the order of the Tab key: from left to right and downwards.
void TactorSwitchSettingCtl::BuildControls() {
  frmSetup = new QWidget(FrameBase);
  TabSwitch = new TabStrip(frmSetup);
  TabSwitch->setAccessibleName(u"Setting"_s);
  btnNewFileOpen = FileButton(IconName::NewSheet, "New File", frmSetup);
  btnReadFileOpen = FileButton(IconName::Open, "Open", frmSetup);
  Command1 = FileButton(IconName::Save, "Save", frmSetup);
  pair_ = new PairPanel(frmSetup);
  left_ = new QWidget(pair_);
  right_ = new QWidget(pair_);
  MakeDrawing(HandControllerPlan(), left_);
  optBtn->setObjectName("handController");
  OptMode = new OptionGroup(this);
  frmMode = OptionFrame("Mode", {u"Standard"_s, u"Extend"_s}, *OptMode, left_);
  optHandle = new OptionGroup(this);
  frmHandle = OptionFrame("XY Knob", {u"Right"_s, u"Left"_s}, *optHandle, left_);
  BuildPageOptions();
  MakeButtons(right_);
  MakeList(right_);
  textSW = ShownField("Switch", right_);
  MakeCombos(right_);
  ComboSWFunc = new ComboBox(frmSetup);
  ComboSWFunc->hide();
}

void TactorSwitchSettingCtl::BuildPageOptions() {
  optChg = new OptionGroup(this);
  auto* letters = new RowGroup(right_);
  letters->setAccessibleName(u"Page"_s);
  auto* row = new QHBoxLayout(letters);
  row->setContentsMargins({});
  row->setSpacing(0);
  const QStringList captions{u"A"_s, u"B"_s};
  for (int i = 0; i < captions.size(); ++i) {
    auto* option = new SectionOption(captions[i], letters, ChosenLook::Blue);
    option->setAccessibleName(captions[i]);
    option->SetEnds(i == 0, i + 1 == captions.size());
    optChg->add(option, i + 1);
    row->addWidget(option);
  }
  optChg->select(1);
}

void TactorSwitchSettingCtl::BuildLayout() {
  auto* files = new QHBoxLayout;
  files->setSpacing(grid::kBetweenControls);
  files->addWidget(TabSwitch);
  files->addStretch();
  files->addWidget(btnNewFileOpen);
  files->addWidget(btnReadFileOpen);
  files->addWidget(Command1);

  auto* options = new PairPanel(left_);
  options->SetParts(frmMode, 1, frmHandle, 1, PairPanel::Upper::Left);
  auto* left = new QVBoxLayout(left_);
  left->setContentsMargins({});
  left->setSpacing(grid::kBetweenControls);
  left->addWidget(pictureFrame(), 1);
  left->addWidget(options);

  auto* pages = new QHBoxLayout;
  pages->setSpacing(0);
  pages->addWidget(optChg->button(1)->parentWidget());
  pages->addStretch();
  pages->addLayout(ButtonRow());
  auto* right = new QVBoxLayout(right_);
  right->setContentsMargins({});
  right->setSpacing(grid::kBetweenControls);
  right->addLayout(pages);
  right->addWidget(ListView1);
  right->addWidget(textSW);
  right->addLayout(ComboRow());
  pair_->SetParts(left_, 1, right_, 1);
  pair_->SetCharactersBeside(kListCharacters);

  auto* body = new QVBoxLayout(frmSetup);
  body->setContentsMargins({});
  body->setSpacing(grid::kBetweenControls);
  body->addLayout(files);
  body->addWidget(pair_, 1);
  FrameBase->body()->addWidget(frmSetup, 1);
}

}  // namespace mortane
