// An inner frame with values side by side, each under its caption.
#pragma once

#include "widgets/Card.h"

class QGridLayout;
class QLabel;

namespace mortane {

class ValueLabel;

class ValueBox : public InnerFrame {
 public:
  // The two labels of one value.
  struct Value {
    QLabel* caption;
    ValueLabel* value;
  };

  explicit ValueBox(QWidget* parent = nullptr);

  // Adds a column that asks for room for that many characters and takes `stretch` shares of what
  // is left over.
  Value AddValue(const char* caption, int characters, int stretch);

 private:
  QGridLayout* cells_;
};

}  // namespace mortane
