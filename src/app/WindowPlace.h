// Size and place of a window, remembered from one session to the next.
#pragma once

#include <string>

class QSize;
class QWidget;

namespace mortane {

// The size that a window opens with on a screen that offers that much, unless one is remembered.
QSize OpeningSize(const QSize& available);

class WindowPlace {
 public:
  // The file, whose folder need not be there yet; empty: nothing is remembered.
  explicit WindowPlace(std::string path) : path_(std::move(path)) {}

  // Puts the window where it was when it was kept, whole and on a screen that is there. False when
  // nothing is remembered.
  bool Restore(QWidget& window) const;

  // If the file cannot be written, the place is not remembered; nothing is shown.
  void Keep(const QWidget& window) const;

 private:
  std::string path_;
};

// The file of the program's user; empty when the system names no folder for it.
std::string UsersPlaceFile();

}  // namespace mortane
