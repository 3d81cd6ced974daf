// A message box made from the style number and text of the core.
#pragma once

#include <QMessageBox>
#include <QPointer>
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
  ~PromptBox();
  PromptBox(const PromptBox&) = delete;
  PromptBox& operator=(const PromptBox&) = delete;

  // Shows the box until it is answered. A window that ends takes its box with it: cancelled.
  Answer Ask();

  // Closes a standing box as its close button does; without one it does nothing.
  void Close();

 private:
  QPointer<QMessageBox> box_;
};

}  // namespace mortane
