#include "filters/FilterOptionalItemCtl.h"

#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <algorithm>

#include "widgets/Card.h"
#include "widgets/TextField.h"
#include "widgets/Theme.h"

namespace mortane {
namespace {

constexpr int kFieldCharacters = 14;

}  // namespace

struct FilterOptionalItemCtl::Column {
  FilterItem item;
  const char* labelName;
  const char* caption;
  const char* fieldName;
  QLabel* FilterOptionalItemCtl::*label;
  Fields FilterOptionalItemCtl::*fields;
};

const std::array<FilterOptionalItemCtl::Column, kFilterItems> FilterOptionalItemCtl::kColumns{{
    {FilterItem::Exciter, "Label1", "Exciter", "TextExciter", &FilterOptionalItemCtl::Label1,
     &FilterOptionalItemCtl::TextExciter},
    {FilterItem::Dichroic, "Label2", "Dichroic", "TextDichroic", &FilterOptionalItemCtl::Label2,
     &FilterOptionalItemCtl::TextDichroic},
    {FilterItem::Barrier, "Label3", "Barrier", "TextBarrier", &FilterOptionalItemCtl::Label3,
     &FilterOptionalItemCtl::TextBarrier},
}};

FilterOptionalItemCtl::FilterOptionalItemCtl(QWidget* parent) : Page(parent) {
  // The blank at the end of the caption is given so.
  auto* card = new Card(QStringLiteral("Add Optional Filter Data "), this);
  FrameBase = card;
  FrameBase->setObjectName("FrameBase");
  auto* panel = new QVBoxLayout(this);
  panel->setContentsMargins({});
  panel->addWidget(card);
  auto* cells = new QGridLayout;
  cells->setHorizontalSpacing(grid::kBetweenColumns);
  cells->setVerticalSpacing(grid::kUnit);
  BuildHeads(*cells);
  for (int row = 0; row < kFilterPositions; ++row) BuildRow(row, *cells);
  cells->setColumnStretch(static_cast<int>(kFilterItems) + 1, 1);
  card->body()->addLayout(cells);
  card->body()->addStretch();
}

void FilterOptionalItemCtl::BuildHeads(QGridLayout& cells) {
  int place = 1;
  for (const Column& column : kColumns) {
    QLabel* label = CaptionLabel(QLatin1String(column.caption), FrameBase);
    label->setObjectName(QLatin1String(column.labelName));
    this->*column.label = label;
    cells.addWidget(label, 0, place++);
  }
}

void FilterOptionalItemCtl::BuildRow(int row, QGridLayout& cells) {
  const auto i = static_cast<std::size_t>(row);
  Label11[i] = new QLabel(QString::number(row + 1), FrameBase);
  Label11[i]->setObjectName(QStringLiteral("Label11_%1").arg(row));
  Label11[i]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  cells.addWidget(Label11[i], row + 1, 0);
  int place = 1;
  for (const Column& column : kColumns) cells.addWidget(BuildField(column, row), row + 1, place++);
  Label11[i]->setBuddy(TextExciter[i]);
}

TextField* FilterOptionalItemCtl::BuildField(const Column& column, int row) {
  auto* field = new TextField(FrameBase);
  field->setObjectName(QStringLiteral("%1_%2").arg(QLatin1String(column.fieldName)).arg(row));
  field->setAccessibleName(QStringLiteral("%1 %2").arg(QLatin1String(column.caption)).arg(row + 1));
  field->setFont(FixedFont());
  field->SetLimit(kFilterNameLength);
  field->SetWidthFor(kFieldCharacters);
  field->SetMark(QLatin1String(kUnusedFilter));
  field->setValidation([this, &column, row] {
    Store(column, row);
    return true;
  });
  connect(field, &TextField::entered, field, &TextField::validate);
  (this->*column.fields)[static_cast<std::size_t>(row)] = field;
  return field;
}

void FilterOptionalItemCtl::LoadData() {
  for (const Column& column : kColumns) {
    std::int32_t code = kFirstOptionalFilter;
    for (TextField* field : this->*column.fields) {
      field->setText(NameOrMark(FilterItemName(column.item, code++)));
    }
  }
}

// From right to left, barrier first.
void FilterOptionalItemCtl::SaveData() {
  for (int row = 0; row < kFilterPositions; ++row) {
    std::for_each(kColumns.rbegin(), kColumns.rend(),
                  [this, row](const Column& column) { Store(column, row); });
  }
}

void FilterOptionalItemCtl::Store(const Column& column, int row) {
  const TextField* field = (this->*column.fields)[static_cast<std::size_t>(row)];
  PutFilterItemName(column.item, kFirstOptionalFilter + row, field->text());
}

}  // namespace mortane
