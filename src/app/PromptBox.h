// A message box made from the style number and text of the core.
#pragma once

#include <QMessageBox>
#include <string>

#include "common/Prompts.h"

namespace mortane {

// What a box or dialog of the program stands over; nullptr before there is a window.
QWidget* ParentOfBoxes();

// Plain text whatever it holds: names of devices and files are no markup. A text that would not
// fit the screen scrolls. An empty caption means the application's title.
class PromptBox {
 public:
  PromptBox(const std::string& text, int style, const std::string& caption);

  // Shows the box until it is answered.
  Answer Ask();

  // Closes a standing box as its close button does; without one it does nothing.
  void Close();

 private:
  QMessageBox box_;
};

}  // namespace mortane
