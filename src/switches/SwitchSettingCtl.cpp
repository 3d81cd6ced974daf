#include "switches/SwitchSettingCtl.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "drawings/SwitchDrawing.h"
#include "switches/ReportList.h"
#include "switches/ShownField.h"
#include "switches/SwitchCtlPlans.h"
#include "switches/clsControlTactor.h"
#include "switches/clsDbSwitch.h"
#include "widgets/Card.h"
#include "widgets/ComboBox.h"
#include "widgets/PairPanel.h"
#include "widgets/QtText.h"
#include "widgets/Theme.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

// Shares of the width of drawing and list.
constexpr int kDrawingShare = 9;
constexpr int kListShare = 5;
// Margins of cells and frame in a row of the list.
constexpr int kBesidesTexts = 54;

// Of the longest name and dial function in bold, as in the selected row.
int ListWidth() {
  const QFontMetrics metrics(BoldFont());
  int name = 0;
  for (const BodyRow& row : kBodyRows) {
    name = qMax(name, metrics.horizontalAdvance(ToQString(row.name)));
  }
  int function = 0;
  for (const SwitchFunction& dial : DialFunctions()) {
    function = qMax(function, metrics.horizontalAdvance(ToQString(dial.name)));
  }
  return MarkIconSide() + name + function + kBesidesTexts;
}

}  // namespace

SwitchSettingCtl::SwitchSettingCtl(clsDbSwitch& switches, const clsControlTactor& tactor,
                                   KnobModes knobs, QWidget* parent)
    : SwitchRowsCtl(
          u"K70 Switch Setting"_s,
          KnobCheck(switches, tactor, knobs, TactorSearch::IfPresent, switches.parent.prompts()),
          parent),
      switches_(switches) {
  Frame1 = static_cast<Card*>(FrameBase);
  auto* upper = new PairPanel(FrameBase);
  MakeDrawing(BodyPlan(), upper);
  Picture4 = optBtn;
  MakeList(upper);
  upper->SetParts(pictureFrame(), kDrawingShare, ListView1, kListShare);
  upper->SetWidthBeside(ListWidth());
  textSwFunc = ShownField("Function", FrameBase);
  MakeCombos(FrameBase);
  MakeButtons(FrameBase);
  lstSwFunc = new ListBox(FrameBase);
  lstSwFunc->hide();
  BuildLayout(upper);
}

void SwitchSettingCtl::BuildLayout(QWidget* upper) {
  auto* editor = new InnerFrame({}, FrameBase);
  auto* strip = new PairPanel(editor);
  auto* fields = new QWidget(strip);
  auto* cells = new QHBoxLayout(fields);
  cells->setContentsMargins({});
  cells->setSpacing(grid::kBetweenControls);
  cells->addWidget(textSwFunc, 1);
  cells->addLayout(ComboRow(), 1);
  auto* buttons = new QWidget(strip);
  QBoxLayout* row = ButtonRow();
  row->setContentsMargins({});
  buttons->setLayout(row);
  strip->SetParts(fields, 1, buttons, 0, PairPanel::Upper::Left);
  editor->body()->addWidget(strip);

  FrameBase->body()->addWidget(upper, 1);
  FrameBase->body()->addWidget(editor);
}

void SwitchSettingCtl::LoadData() {
  lstSwFunc->clearRows();
  for (const SwitchFunction& function : AllSwitchFunctions()) {
    lstSwFunc->addRow(ToQString(function.name), static_cast<int>(function.code));
  }
  FillFunctions();
  std::vector<SwitchRow> rows;
  rows.reserve(kBodyRows.size());
  for (const BodyRow& row : kBodyRows) {
    rows.push_back({row.name, row.kind, row.position, row.position});
  }
  SetRows(std::move(rows));
  QString text;
  for (int row = 0; row < ListView1->rowCount(); ++row) {
    const std::int16_t code = Func(rowAt(row).position);
    text = rowAt(row).kind == SwitchKind::Dial ? DialText(code, text) : FunctionText(code);
    ShowFunction(row, text);
  }
  SelectChosen();
}

QString SwitchSettingCtl::DialText(std::int16_t code, const QString& otherwise) const {
  const int entry = ComboCWCCW->rowOf(static_cast<int>(code));
  return entry < 0 ? otherwise : ComboCWCCW->itemText(entry);
}

std::int16_t SwitchSettingCtl::Func(std::int16_t position) const {
  return switches_.Func(position);
}

void SwitchSettingCtl::Func(std::int16_t position, std::int16_t code) {
  switches_.Func(position, code);
}

std::int16_t SwitchSettingCtl::SwitchCount() const {
  return clsDbSwitch::SwitchCount;
}

void SwitchSettingCtl::SetDefaults() {
  std::int16_t position = 0;
  for (const std::int16_t code : BodyDefaults()) switches_.Func(++position, code);
  LoadData();
  RunKnobCheck();
}

QString SwitchSettingCtl::FunctionText(std::int32_t code) const {
  return lstSwFunc->text(code);
}

void SwitchSettingCtl::ShowSelected(int row) {
  textSwFunc->setText(ShownFunction(row));
}

void SwitchSettingCtl::ShowChosen(const QString& text) {
  textSwFunc->setText(text);
}

}  // namespace mortane
