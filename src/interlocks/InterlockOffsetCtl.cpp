#include "interlocks/InterlockOffsetCtl.h"

#include <QLabel>
#include <QVBoxLayout>
#include <algorithm>

#include "interlocks/InterlockCtlTiles.h"
#include "interlocks/clsInterLockOffset.h"
#include "widgets/Card.h"
#include "widgets/ComboBox.h"
#include "widgets/FlowRow.h"
#include "widgets/QtText.h"
#include "widgets/Theme.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

constexpr int kComboWidth = 96;

// By their codes, from 0.
constexpr std::array<std::string_view, 10> kFactors{"1.00", "0.95", "0.90", "0.85", "0.80",
                                                    "0.75", "0.70", "0.65", "0.60", "0.55"};

}  // namespace

struct InterlockOffsetCtl::Row {
  Control<QLabel> InterlockOffsetCtl::*label;
  Control<ComboBox> InterlockOffsetCtl::*list;
};

// From the top.
constexpr std::array<InterlockOffsetCtl::Row, InterlockOffsetCtl::kRowCount>
    InterlockOffsetCtl::kRows{{
        {&InterlockOffsetCtl::lblNDFilter, &InterlockOffsetCtl::ComboNDFilter},
        {&InterlockOffsetCtl::lblFieldStop, &InterlockOffsetCtl::ComboFieldStop},
        {&InterlockOffsetCtl::lblApertureStop, &InterlockOffsetCtl::ComboApertureStop},
        {&InterlockOffsetCtl::lblEpiFieldStop, &InterlockOffsetCtl::ComboEpiFieldStop},
    }};

InterlockOffsetCtl::InterlockOffsetCtl(clsInterLockOffset& offsets, QWidget* parent)
    : CardPage(u"Compensation"_s, parent), offsets_(offsets) {
  auto* rows = new QVBoxLayout;
  rows->setSpacing(grid::kBetweenControls);
  for (const OffsetAccessory* row : InPageOrder(kOffsetAccessories, &OffsetAccessory::pageRow)) {
    BuildRow(*row, *rows);
  }
  AlignLabels();
  FrameBase->body()->addLayout(rows);
  Label2 = CaptionLabel(u"The compensation setting puts the compensation on the proper value. "_s,
                        FrameBase);
  Label2->setWordWrap(true);
  FrameBase->body()->addWidget(Label2);
  layout()->setAlignment(FrameBase, Qt::AlignTop);  // as tall as what it holds
}

void InterlockOffsetCtl::BuildRow(const OffsetAccessory& row, QBoxLayout& rows) {
  const auto i = static_cast<std::size_t>(row.pageRow);
  const Row& controls = kRows[i];
  const QString caption = ToQString(row.caption);
  auto* label = new QLabel(caption, FrameBase);
  this->*controls.label = label;
  Label1.Set(i, new QLabel(u"Proper value    X"_s, FrameBase));
  Label1[i]->setToolTip(
      u"The proper value is calculated using information such as "
      u"objective N.A and condenser focal length."_s);
  auto* list = new ComboBox(FrameBase);
  this->*controls.list = list;
  for (const std::string_view factor : kFactors) list->addRow(ToQString(factor));
  list->setFont(FixedFont());
  list->setFixedWidth(kComboWidth);
  list->setAccessibleName(caption);
  label->setBuddy(list);
  auto* line = new FlowRow(grid::kBetweenColumns, 0);
  for (QWidget* part : {static_cast<QWidget*>(label), static_cast<QWidget*>(Label1[i]),
                        static_cast<QWidget*>(list)})
    line->addWidget(part);
  rows.addLayout(line);
  connect(list, &ComboBox::chosen, this,
          [this, value = row.value](int factor) { offsets_.*value = factor; });
}

// What follows them begins at one place.
void InterlockOffsetCtl::AlignLabels() {
  int width = 0;
  for (const Row& row : kRows) width = std::max(width, (this->*row.label)->sizeHint().width());
  for (const Row& row : kRows) (this->*row.label)->setMinimumWidth(width);
}

void InterlockOffsetCtl::LoadData() {
  for (const OffsetAccessory& row : kOffsetAccessories) LoadRow(row);
}

void InterlockOffsetCtl::LoadRow(const OffsetAccessory& row) {
  const Row& controls = kRows[static_cast<std::size_t>(row.pageRow)];
  const std::int32_t code = offsets_.*row.value;
  const bool compensated = offsets_.parent.IsControllable(row.number) && code != kUnknown;
  (this->*controls.label)->setEnabled(compensated);
  (this->*controls.list)->setEnabled(compensated);
  if (compensated) (this->*controls.list)->setIndex(code);
}

}  // namespace mortane
