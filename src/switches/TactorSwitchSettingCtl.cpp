#include "switches/TactorSwitchSettingCtl.h"

#include <QPointer>
#include <QPushButton>
#include <QSignalBlocker>

#include "drawings/SwitchDrawing.h"
#include "switches/ReportList.h"
#include "switches/clsControlTactor.h"
#include "switches/clsDbSwitch.h"
#include "widgets/ComboBox.h"
#include "widgets/OptionGroup.h"
#include "widgets/QtText.h"
#include "widgets/TabStrip.h"
#include "widgets/TextField.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

constexpr int kPageB = 2;  // page A is 1
constexpr int kStandard = 0;
constexpr int kLeft = 1;

bool IsOption(std::int16_t mode) {
  return mode == 0 || mode == 1;
}

}  // namespace

TactorSwitchSettingCtl::TactorSwitchSettingCtl(clsControlTactor& tactor, const clsDbSwitch& body,
                                               KnobModes knobs, TactorProgram program,
                                               QWidget* parent)
    : SwitchRowsCtl(u"Tactor Switch Setting"_s,
                    KnobCheck(body, tactor, knobs, TactorSearch::Always, tactor.parent.prompts()),
                    parent),
      CommonDialog1{0, "XML File (*.xml)|*.xml", ".xml"},
      tactor_(tactor),
      program_(std::move(program)) {
  BuildControls();
  BuildLayout();

  connect(OptMode, &OptionGroup::selectionChanged, this, [this](int mode) { ClickMode(mode); });
  connect(optHandle, &OptionGroup::selectionChanged, this, [this](int side) { ClickHandle(side); });
  connect(optChg, &OptionGroup::selectionChanged, this, [this] { LoadData(); });
  connect(ComboSWFunc, &ComboBox::selectionChanged, this, [this](int entry) {
    ChoosePushFunction(ComboSWFunc->itemText(entry), EntryCode(*ComboSWFunc, entry));
  });
  connect(btnNewFileOpen, &QPushButton::clicked, this,
          [this] { TabSwitch->AppendTab(u"New File"_s); });
  connect(btnReadFileOpen, &QPushButton::clicked, this, [this] { OpenFile(); });
  connect(Command1, &QPushButton::clicked, this, [this] { SaveFile(); });
}

// The rows come before the mode: selecting a new mode runs the whole loading again, with the rows
// of that mode.
void TactorSwitchSettingCtl::LoadData() {
  LoadRows();
  FillFunctions();
  Fill(*ComboSWFunc, AllSwitchFunctions());
  TabSwitch->SetTabs({u"Setting"_s});
  LoadMode();
  LoadHandle();
  for (int row = 0; row < ListView1->rowCount(); ++row) ShowFunction(row, TextOf(row));
  SelectChosen();
}

// In standard mode page B offers the dial alone. Kept: without a mode the names stay those of the
// page before, and a list without rows stays empty.
void TactorSwitchSettingCtl::LoadRows() {
  const bool pageB = optChg->selected() == kPageB;
  const int mode = OptMode->selected();
  const bool keepsNames = pageB && mode < 0;
  if (keepsNames && ListView1->rowCount() == 0) return;
  const int offered = pageB && mode == kStandard ? 1 : optBtn->count();
  const TactorPage& page = kTactorPages[pageB ? 1 : 0];
  std::vector<SwitchRow> rows;
  for (int i = 0; i < optBtn->count(); ++i) {
    const TactorRow& row = page[static_cast<std::size_t>(i)];
    const bool dial = row.kind == SwitchKind::Dial;
    const auto last = static_cast<std::int16_t>(row.position + (dial ? 1 : 0));
    rows.push_back({keepsNames ? rowAt(i).name : row.name, row.kind, row.position, last});
    optBtn->mark(i)->setEnabled(i < offered);
    optBtn->SetMarkName(i, ToQString(row.name));
  }
  rows.resize(static_cast<std::size_t>(offered));
  SetRows(std::move(rows));
}

QString TactorSwitchSettingCtl::TextOf(int row) const {
  const std::int16_t held = Func(rowAt(row).position);
  const std::int16_t code = held == -1 ? switchfunction::kNone : held;
  return rowAt(row).kind == SwitchKind::Dial ? ToQString(FunctionName(DialFunctions(), code))
                                             : FunctionText(code);
}

void TactorSwitchSettingCtl::LoadMode() {
  const bool known = IsOption(tactor_.ControlMode);
  frmMode->setEnabled(known);
  if (known) OptMode->select(tactor_.ControlMode);
}

void TactorSwitchSettingCtl::LoadHandle() {
  const bool usable = program_.hasStage() && IsOption(tactor_.HandleMode);
  frmHandle->setEnabled(usable);
  for (int i = 0; i < optHandle->count(); ++i) optHandle->button(i)->setEnabled(usable);
  if (usable) optHandle->select(tactor_.HandleMode);
  optBtn->SetMirrored(tactor_.HandleMode == kLeft);
}

void TactorSwitchSettingCtl::ClickMode(int mode) {
  tactor_.ControlMode = static_cast<std::int16_t>(mode);
  LoadData();
}

void TactorSwitchSettingCtl::ClickHandle(int side) {
  tactor_.HandleMode = static_cast<std::int16_t>(side);
  optBtn->SetMirrored(side == kLeft);
}

void TactorSwitchSettingCtl::SetDefaults() {
  std::int16_t position = 0;
  for (const std::int16_t code : TactorDefaults(tactor_.parent.curType)) Func(++position, code);
  {
    const QSignalBlocker quiet(OptMode);
    OptMode->select(kStandard);
  }
  ClickMode(kStandard);
  RunKnobCheck();
}

// The dialog, and the boxes of reading and writing, run the event loop: the page may be destroyed
// while one stands.
void TactorSwitchSettingCtl::OpenFile() {
  const QPointer<TactorSwitchSettingCtl> page(this);
  CommonDialog1.flags = kFileOpenFlags;
  const FileQuestion question = CommonDialog1;
  const std::string name = tactor_.parent.prompts().AskFileToOpen(question);
  if (page.isNull() || name.empty()) return;
  const auto readFile = program_.readFile;
  readFile(name);
  if (!page.isNull()) LoadData();
}

void TactorSwitchSettingCtl::SaveFile() {
  const QPointer<TactorSwitchSettingCtl> page(this);
  Prompts& prompts = tactor_.parent.prompts();
  SaveData();
  CommonDialog1.flags = kFileSaveFlags;
  const FileQuestion question = CommonDialog1;
  const std::string name = prompts.AskFileToSave(question);
  if (!page.isNull() && !name.empty()) {
    const auto writeFile = program_.writeFile;
    writeFile(name);
  }
  prompts.FlushInput();
}

std::int16_t TactorSwitchSettingCtl::Func(std::int16_t position) const {
  return tactor_.Func(position);
}

void TactorSwitchSettingCtl::Func(std::int16_t position, std::int16_t code) {
  tactor_.Func(position, code);
}

std::int16_t TactorSwitchSettingCtl::SwitchCount() const {
  return clsControlTactor::SwitchCount;
}

QString TactorSwitchSettingCtl::FunctionText(std::int32_t code) const {
  return ComboSWFunc->itemText(code);
}

void TactorSwitchSettingCtl::ShowSelected(int row) {
  textSW->setText(row < 0 ? QString() : ToQString(rowAt(row).name));
}

}  // namespace mortane
