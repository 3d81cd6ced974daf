// What every page and sub-page offers to the one that shows it.
#pragma once

#include <QWidget>

namespace mortane {

class Page : public QWidget {
  Q_OBJECT

 public:
  using QWidget::QWidget;

  // Fills the controls from the model.
  virtual void LoadData() = 0;
  // Takes what the controls hold into the model.
  virtual void SaveData() = 0;
};

}  // namespace mortane
