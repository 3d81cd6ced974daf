#include "filters/FilterOptionalItemCtl.h"

#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <algorithm>

#include "model/OptionCodes.h"
#include "widgets/Card.h"
#include "widgets/QtText.h"
#include "widgets/TextField.h"
#include "widgets/Theme.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

constexpr int kFieldCharacters = 14;

}  // namespace

struct FilterOptionalItemCtl::Column {
  FilterItem item;
  const char* caption;
  Control<QLabel> FilterOptionalItemCtl::*label;
  Fields FilterOptionalItemCtl::*fields;
};

const std::array<FilterOptionalItemCtl::Column, kFilterItems> FilterOptionalItemCtl::kColumns{{
    {FilterItem::Exciter, "Exciter", &FilterOptionalItemCtl::Label1,
     &FilterOptionalItemCtl::TextExciter},
    {FilterItem::Dichroic, "Dichroic", &FilterOptionalItemCtl::Label2,
     &FilterOptionalItemCtl::TextDichroic},
    {FilterItem::Barrier, "Barrier", &FilterOptionalItemCtl::Label3,
     &FilterOptionalItemCtl::TextBarrier},
}};

// Kept: the caption ends in a blank.
FilterOptionalItemCtl::FilterOptionalItemCtl(const FilterItemLists& items, QWidget* parent)
    : CardPage(u"Add Optional Filter Data "_s, parent), items_(items) {
  auto* cells = new QGridLayout;
  cells->setHorizontalSpacing(grid::kBetweenControls);
  cells->setVerticalSpacing(grid::kUnit);
  BuildHeaders(*cells);
  for (int row = 0; row < kOptionPositions; ++row) BuildRow(row, *cells);
  cells->setColumnStretch(static_cast<int>(kFilterItems) + 1, 1);
  FrameBase->body()->addLayout(cells);
  layout()->setAlignment(FrameBase, Qt::AlignTop);  // as tall as what it holds
}

void FilterOptionalItemCtl::BuildHeaders(QGridLayout& cells) {
  int place = 1;
  for (const Column& column : kColumns) {
    QLabel* label = CaptionLabel(QLatin1String(column.caption), FrameBase);
    this->*column.label = label;
    cells.addWidget(label, 0, place++);
  }
}

void FilterOptionalItemCtl::BuildRow(int row, QGridLayout& cells) {
  const auto i = static_cast<std::size_t>(row);
  Label11.Set(i, new QLabel(QString::number(row + 1), FrameBase));
  Label11[i]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  cells.addWidget(Label11[i], row + 1, 0);
  int place = 1;
  for (const Column& column : kColumns) cells.addWidget(BuildField(column, row), row + 1, place++);
  Label11[i]->setBuddy(TextExciter[i]);
}

TextField* FilterOptionalItemCtl::BuildField(const Column& column, int row) {
  auto* field = new TextField(FrameBase);
  (this->*column.fields).Set(static_cast<std::size_t>(row), field);
  field->setAccessibleName(u"%1 %2"_s.arg(QLatin1String(column.caption)).arg(row + 1));
  field->setFont(FixedFont());
  field->SetLimit(static_cast<int>(kOptionNameLength));
  field->SetWidthFor(kFieldCharacters, static_cast<int>(kOptionNameLength));
  field->SetPlaceholder(ToQString(kUnnamedMark));
  connect(field, &TextField::committed, this, [this, &column, row] { Store(column, row); });
  return field;
}

void FilterOptionalItemCtl::LoadData() {
  for (const Column& column : kColumns) {
    std::int32_t code = kOptionBase;
    for (TextField* field : this->*column.fields) {
      field->setText(NameOrPlaceholder(items_.Name(column.item, ++code), kUnnamedMark));
    }
  }
}

// From right to left, barrier first.
void FilterOptionalItemCtl::SaveData() {
  for (int row = 0; row < kOptionPositions; ++row) {
    std::for_each(kColumns.rbegin(), kColumns.rend(),
                  [this, row](const Column& column) { Store(column, row); });
  }
}

void FilterOptionalItemCtl::Store(const Column& column, int row) {
  const TextField* field = (this->*column.fields)[static_cast<std::size_t>(row)];
  items_.Name(column.item, kOptionBase + row + 1, field->text().toStdString());
}

}  // namespace mortane
