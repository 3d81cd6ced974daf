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

ValueBox::Value ValueBox::AddValue(const QString& caption, const QString& captionName,
                                   const QString& valueName, int characters, int stretch) {
  const int column = cells_->count() / 2;
  const Value added{CaptionLabel(caption, this), new ValueLabel(this)};
  added.caption->setObjectName(captionName);
  added.value->setObjectName(valueName);
  added.value->setAccessibleName(caption);
  added.value->SetCharacters(characters);
  cells_->addWidget(added.caption, 0, column);
  cells_->addWidget(added.value, 1, column);
  cells_->setColumnStretch(column, stretch);
  return added;
}

}  // namespace mortane
