#include "switches/SwitchRowsCtl.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QSignalBlocker>
#include <utility>

#include "drawings/SwitchDrawing.h"
#include "switches/ReportList.h"
#include "widgets/Card.h"
#include "widgets/ClickFocus.h"
#include "widgets/ComboBox.h"
#include "widgets/QtText.h"
#include "widgets/Theme.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

constexpr int kFunctionColumn = 1;

}  // namespace

SwitchRowsCtl::SwitchRowsCtl(const QString& caption, KnobCheck knobCheck, QWidget* parent)
    : CardPage(caption, parent), knobCheck_(std::move(knobCheck)) {}

void SwitchRowsCtl::MakeDrawing(const SwitchPlan& plan, QWidget* parent) {
  auto* frame = new InnerFrame({}, parent);
  pictureFrame_ = frame;
  optBtn = new SwitchDrawing(plan, "optBtn", frame);
  frame->body()->setContentsMargins(grid::kUnit, grid::kUnit, grid::kUnit, grid::kUnit);
  frame->body()->addWidget(optBtn);
  optBtn->setAccessibleName(u"Switch"_s);
  connect(optBtn, &SwitchDrawing::chosen, this, [this](int index) { Select(index); });
}

void SwitchRowsCtl::MakeList(QWidget* parent) {
  ListView1 = new ReportList({u"Switch"_s, u"Function"_s}, parent);
  ListView1->setIconSize({MarkIconSide(), MarkIconSide()});
  ListView1->SetFoldingColumn(kFunctionColumn);
  ListView1->setAccessibleName(u"Switch"_s);
  ListView1->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::MinimumExpanding);
  connect(ListView1, &ListBox::selectionChanged, this, [this](int row) { Select(row); });
}

void SwitchRowsCtl::MakeCombos(QWidget* parent) {
  ComboCWCCW = new ComboBox(parent);
  ComboFunction = new ComboBox(parent);
  ComboFunction->hide();
  for (ComboBox* combo : Combos()) combo->setAccessibleName(u"Function"_s);
  connect(ComboCWCCW, &ComboBox::selectionChanged, this, [this](int entry) {
    ChooseDialFunction(ComboCWCCW->itemText(entry), EntryCode(*ComboCWCCW, entry));
  });
  connect(ComboFunction, &ComboBox::selectionChanged, this, [this](int entry) {
    ChoosePushFunction(ComboFunction->itemText(entry), EntryCode(*ComboFunction, entry));
  });
}

void SwitchRowsCtl::MakeButtons(QWidget* parent) {
  cmdDefault = new QPushButton(u"Default"_s, parent);
  cmdAllClear = new QPushButton(u"All Clear"_s, parent);
  TakeFocusByClicks(*cmdDefault);
  TakeFocusByClicks(*cmdAllClear);
  connect(cmdDefault, &QPushButton::clicked, this, [this] { SetDefaults(); });
  connect(cmdAllClear, &QPushButton::clicked, this, [this] { ClearAll(); });
}

std::array<ComboBox*, 2> SwitchRowsCtl::Combos() const {
  return {ComboCWCCW, ComboFunction};
}

std::int16_t SwitchRowsCtl::EntryCode(const ComboBox& combo, int entry) {
  return static_cast<std::int16_t>(combo.data(entry).toInt());
}

QBoxLayout* SwitchRowsCtl::ComboRow() {
  auto* row = new QHBoxLayout;
  row->addWidget(ComboCWCCW);
  row->addWidget(ComboFunction);
  return row;
}

QBoxLayout* SwitchRowsCtl::ButtonRow() {
  auto* row = new QHBoxLayout;
  row->setSpacing(grid::kBetweenControls);
  row->addWidget(cmdDefault);
  row->addWidget(cmdAllClear);
  return row;
}

void SwitchRowsCtl::SetRows(std::vector<SwitchRow> rows) {
  rows_ = std::move(rows);
  ListView1->clearRows();
  for (const SwitchRow& row : rows_) {
    const int added = ListView1->addCells({ToQString(row.name), {}});
    ListView1->SetRowIcon(added, optBtn->markIcon(added));
    ShowNameOfMark(added);
  }
  ListView1->updateGeometry();
}

const SwitchRow& SwitchRowsCtl::rowAt(int row) const {
  return rows_[static_cast<std::size_t>(row)];
}

void SwitchRowsCtl::Fill(ComboBox& combo, const SwitchFunctionList& functions) {
  combo.clearRows();
  for (const SwitchFunction& function : functions) {
    combo.addRow(ToQString(function.name), static_cast<int>(function.code));
  }
}

void SwitchRowsCtl::FillFunctions() {
  Fill(*ComboCWCCW, DialFunctions());
  Fill(*ComboFunction, PushFunctions());
}

void SwitchRowsCtl::ShowFunction(int row, const QString& text) {
  ListView1->SetCell(row, kFunctionColumn, text);
  ShowNameOfMark(row);
}

QString SwitchRowsCtl::ShownFunction(int row) const {
  return ListView1->cells(row).value(kFunctionColumn);
}

void SwitchRowsCtl::ShowNameOfMark(int row) {
  optBtn->SetMarkName(row, ListView1->cells(row).join(u", "_s));
}

void SwitchRowsCtl::Select(int row) {
  {
    const QSignalBlocker quiet(ListView1);
    ListView1->setIndex(row);
  }
  ListView1->SetBoldRow(row);
  optBtn->setIndex(row);
  const bool dial = rowAt(row).kind == SwitchKind::Dial;
  ComboCWCCW->setVisible(dial);
  ComboFunction->setVisible(!dial);
  ShowInCombos(row);
  ShowSelected(row);
}

void SwitchRowsCtl::SelectChosen() {
  const int row = optBtn->index();
  if (row >= 0 && row < ListView1->rowCount()) {
    Select(row);
    return;
  }
  ShowInCombos(-1);
  ShowSelected(-1);
}

// The row's function is the current entry, so that keys choose those beside it.
void SwitchRowsCtl::ShowInCombos(int row) {
  for (ComboBox* combo : Combos()) {
    const QSignalBlocker quiet(combo);
    combo->setIndex(row < 0 ? -1 : combo->rowOf(static_cast<int>(Func(rowAt(row).position))));
    combo->setEnabled(row >= 0);
    combo->setToolTip(row < 0 ? u"Select a switch to choose its function."_s : QString());
  }
}

void SwitchRowsCtl::ChooseDialFunction(const QString& text, std::int16_t code) {
  const int row = ListView1->index();
  if (row < 0) return;
  ShowChosen(text);
  const std::int16_t position = rowAt(row).position;
  Func(position, code);
  Func(static_cast<std::int16_t>(position + 1), SecondOfPair(code));
  ShowFunction(row, text);
}

void SwitchRowsCtl::ChoosePushFunction(const QString& text, std::int16_t code) {
  const int row = ListView1->index();
  if (row < 0) return;
  ShowChosen(text);
  Func(rowAt(row).pushPosition, code);
  if (!knobCheck_.Choose(code)) return;
  ShowFunction(row, text);
  knobCheck_.Run();
}

void SwitchRowsCtl::ClearAll() {
  for (std::int16_t i = 1; i <= SwitchCount(); ++i) Func(i, switchfunction::kNone);
  for (int row = 0; row < ListView1->rowCount(); ++row) {
    ShowFunction(row, FunctionText(Func(rowAt(row).position)));
  }
  SelectChosen();
  knobCheck_.Run();
}

}  // namespace mortane
