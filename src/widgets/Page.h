// What every page and sub-page offers to the one that shows it.
#pragma once

#include <QWidget>

namespace mortane {

// A page gets the units that it edits when it is made, and outlives none of them.
//
// These operations may raise what a unit raises, Failure or another standard exception: a window
// calls each within a step of a command, which shows it in a box. Handlers of controls run outside
// of commands and let nothing out.
//
// A box runs the event loop, and the page may be destroyed while it stands. What follows a box in a
// member function therefore asks a QPointer to the page that was taken before it; MoveScope does so
// for a move, and TextField for its own check and its signal committed().
class Page : public QWidget {
  Q_OBJECT

 public:
  using QWidget::QWidget;

  // Fills the controls from the model.
  virtual void LoadData() {}
  // Takes what the controls hold into the model.
  virtual void SaveData() {}
  // Brings fields whose text SaveData did not take as it stood to what the model holds. Stores and
  // asks nothing, and makes no call to the controller.
  virtual void ShowStored() {}
  // Shows where the nosepiece stands; called after the loading that follows a connection.
  virtual void SetNosePostiton() {}
  // Carries out what a page itself has to send, after a Send of the model.
  virtual void SendData() {}
};

}  // namespace mortane
