#include "widgets/RecordForm.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>

#include "widgets/Card.h"
#include "widgets/ListBox.h"
#include "widgets/TabStrip.h"
#include "widgets/TextField.h"
#include "widgets/Theme.h"
#include "widgets/ValueLabel.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

enum Row { kCaptionRow, kValueRow, kListRow };

}  // namespace

RecordForm::RecordForm(Card& card, int records)
    : tabs_(new TabStrip(&card)), frame_(new QFrame(&card)), columns_(new QGridLayout) {
  tabs_->setAccessibleName(u"Position"_s);
  tabs_->SetNumberedTabs(records);
  auto* rows = new QVBoxLayout(frame_);
  rows->setContentsMargins({});
  rows->setSpacing(grid::kBetweenGroups);
  rows->addLayout(columns_, 1);
  columns_->setHorizontalSpacing(grid::kBetweenColumns);
  columns_->setVerticalSpacing(grid::kUnit);
  // As high as a field, whatever shows the value.
  columns_->setRowMinimumHeight(kValueRow, GridHeight(grid::kFieldHeight, *frame_));
  columns_->setRowStretch(kListRow, 1);
  card.body()->addWidget(tabs_);
  card.body()->addWidget(frame_, 1);
}

RecordForm::Name RecordForm::AddName(int limit, int shown) {
  const Name name{new QLabel(u"Name"_s, frame_), new TextField(frame_)};
  name.field->SetLimit(limit);
  name.field->SetWidthFor(shown);
  name.label->setBuddy(name.field);
  auto* row = new QHBoxLayout;
  row->setSpacing(grid::kBetweenGroups);
  row->addWidget(name.label);
  row->addWidget(name.field);
  row->addStretch();
  static_cast<QVBoxLayout*>(frame_->layout())->insertLayout(0, row);
  return name;
}

RecordForm::Column RecordForm::AddColumn(const char* caption, QWidget* value, int stretch) {
  const int place = columnCount_++;
  const Column column{CaptionLabel(QLatin1String(caption), frame_), new ListBox(frame_)};
  column.caption->setBuddy(column.list);
  column.list->setAccessibleName(column.caption->text());
  // In a low window the page is scrolled, and the list keeps its rows.
  column.list->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::MinimumExpanding);
  if (qobject_cast<ValueLabel*>(value) != nullptr) value->setAccessibleName(column.caption->text());
  // Screen readers meet caption, value and list in this order.
  value->raise();
  column.list->raise();
  columns_->addWidget(column.caption, kCaptionRow, place);
  columns_->addWidget(value, kValueRow, place);
  columns_->addWidget(column.list, kListRow, place);
  columns_->setColumnStretch(place, stretch);
  return column;
}

void RecordForm::AddPanel(QWidget* panel, int stretch) {
  const int place = columnCount_++;
  columns_->addWidget(panel, kValueRow, place, 2, 1);
  columns_->setColumnStretch(place, stretch);
}

}  // namespace mortane
