#include "widgets/ValueBox.h"

#include <QGridLayout>
#include <QLabel>

#include "widgets/Theme.h"
#include "widgets/ValueLabel.h"

namespace mortane {

ValueBox::ValueBox(QWidget* parent) : InnerFrame({}, parent), cells_(new QGridLayout) {
  cells_->setHorizontalSpacing(grid::kBetweenColumns);
  cells_->setVerticalSpacing(grid::kUnit);
  body()->addLayout(cells_);
}

ValueBox::Value ValueBox::AddValue(const char* caption, int characters, int stretch) {
  const int column = cells_->count() / 2;
  const Value added{CaptionLabel(QLatin1String(caption), this), new ValueLabel(this)};
  added.value->setAccessibleName(added.caption->text());
  added.caption->setBuddy(added.value);
  added.value->SetCharacters(characters);
  cells_->addWidget(added.caption, 0, column);
  cells_->addWidget(added.value, 1, column);
  cells_->setColumnStretch(column, stretch);
  return added;
}

}  // namespace mortane
