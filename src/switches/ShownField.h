// A box that only shows a text.
#pragma once

#include "widgets/TextField.h"

namespace mortane {

// Takes no focus: what it shows stands in a list, too.
inline TextField* ShownField(const char* whatItShows, QWidget* parent) {
  auto* field = new TextField(parent);
  field->setReadOnly(true);
  field->setFocusPolicy(Qt::NoFocus);
  field->setAccessibleName(QLatin1String(whatItShows));
  return field;
}

}  // namespace mortane
