#include "widgets/RecordForm.h"

#include <QHBoxLayout>
#include <QLabel>

#include "widgets/Card.h"
#include "widgets/ColumnFlow.h"
#include "widgets/ListBox.h"
#include "widgets/TabStrip.h"
#include "widgets/TextField.h"
#include "widgets/Theme.h"
#include "widgets/ValueLabel.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

// Of frame, cells and scroll bar beside the texts of a list.
constexpr int kListMargins = 30;

}  // namespace

RecordForm::RecordForm(Card& card, int records)
    : tabs_(new TabStrip(&card)),
      frame_(new QFrame(&card)),
      columns_(new ColumnFlow(grid::kBetweenColumns, grid::kBetweenGroups)) {
  tabs_->setAccessibleName(u"Position"_s);
  tabs_->SetNumberedTabs(records);
  auto* rows = new QVBoxLayout(frame_);
  rows->setContentsMargins({});
  rows->setSpacing(grid::kBetweenGroups);
  rows->addLayout(columns_, 1);
  card.body()->addWidget(tabs_);
  card.body()->addWidget(frame_, 1);
}

RecordForm::Name RecordForm::AddName(int limit, int shown) {
  const Name name{new QLabel(u"Name"_s, frame_), new TextField(frame_)};
  name.field->SetLimit(limit);
  name.field->SetWidthFor(shown, limit);
  name.label->setBuddy(name.field);
  auto* row = new QHBoxLayout;
  row->setSpacing(grid::kBetweenGroups);
  row->addWidget(name.label);
  row->addWidget(name.field);
  row->addStretch();
  static_cast<QVBoxLayout*>(frame_->layout())->insertLayout(0, row);
  return name;
}

RecordForm::Column RecordForm::AddColumn(const char* caption, QWidget* value, int stretch,
                                         int characters) {
  const Column column{CaptionLabel(QLatin1String(caption), frame_), new ListBox(frame_)};
  column.caption->setBuddy(column.list);
  column.list->setAccessibleName(column.caption->text());
  // In a low window the page is scrolled, and the list keeps its rows.
  column.list->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::MinimumExpanding);
  if (qobject_cast<ValueLabel*>(value) != nullptr) value->setAccessibleName(column.caption->text());
  column.list->setMinimumWidth(
      kListMargins + column.list->fontMetrics().horizontalAdvance(QString(characters, u'0')));
  // As high as a field, whatever shows the value.
  value->setMinimumHeight(GridHeight(grid::kFieldHeight, *frame_));
  // Screen readers meet caption, value and list in this order.
  value->raise();
  column.list->raise();
  QVBoxLayout* cells = StartColumn(stretch);
  cells->addWidget(column.caption);
  cells->addWidget(value);
  cells->addWidget(column.list, 1);
  return column;
}

void RecordForm::AddPanel(QWidget* panel, int stretch) {
  QVBoxLayout* cells = StartColumn(stretch);
  cells->addSpacing(QFontMetrics(CaptionFont()).height() + grid::kUnit);
  cells->addWidget(panel, 1);
}

QVBoxLayout* RecordForm::StartColumn(int stretch) {
  auto* cells = new QVBoxLayout;
  cells->setContentsMargins({});
  cells->setSpacing(grid::kUnit);
  columns_->AddColumn(cells, stretch);
  return cells;
}

}  // namespace mortane
