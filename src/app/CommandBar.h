// The panel of the commands under the page.
#pragma once

#include <QWidget>

class QHBoxLayout;

namespace mortane {

// Under a line that ends the page; its controls stand in one row.
class CommandBar : public QWidget {
 public:
  explicit CommandBar(QWidget* parent);

  QHBoxLayout& row() { return *row_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QHBoxLayout* row_;
};

}  // namespace mortane
