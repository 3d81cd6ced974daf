// What every page and sub-page offers to the one that shows it.
#pragma once

#include <QWidget>

namespace mortane {

// A page gets the units that it edits when it is made, and outlives none of them.
class Page : public QWidget {
  Q_OBJECT

 public:
  using QWidget::QWidget;

  // Fills the controls from the model.
  virtual void LoadData() {}
  // Takes what the controls hold into the model.
  virtual void SaveData() {}
  // Shows where the nosepiece stands; called after the loading that follows a connection.
  virtual void SetNosePostiton() {}
  // Carries out what a page itself has to send, after a Send of the model.
  virtual void SendData() {}
};

}  // namespace mortane
