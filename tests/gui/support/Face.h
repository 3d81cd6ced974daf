// What a control shows in one of the states that a person finds it in.
#pragma once

#include <QApplication>
#include <QTest>
#include <QWidget>
#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "gui/support/Scanline.h"

namespace mortane::test {

enum class Use { Rest, Hovered, Focused, Disabled };

struct Face {
  std::string row;
  std::string column;

  bool operator==(const Face&) const = default;
};

inline void PrintTo(const Face& face, std::ostream* out) {
  *out << "\n  row    " << face.row << "\n  column " << face.column << "\n";
}

// The picture of a control of that size in a window of its own, in TellablePalette. `act` is done
// just before it is taken.
inline QImage PictureOf(QWidget& control, const QSize& size, Use use,
                        const std::function<void()>& act = {}) {
  QWidget window;
  window.resize(size);
  control.setParent(&window);
  control.setPalette(TellablePalette());
  control.setGeometry(QRect(QPoint(), size));
  window.show();
  window.activateWindow();
  if (!QTest::qWaitForWindowActive(&window)) return {};
  control.setEnabled(use != Use::Disabled);
  control.setAttribute(Qt::WA_UnderMouse, use == Use::Hovered);
  if (use == Use::Focused) {
    control.setFocus(Qt::TabFocusReason);
  } else {
    control.clearFocus();
  }
  control.show();
  if (act) act();
  QImage picture = control.grab().toImage();
  control.setParent(nullptr);
  return picture;
}

}  // namespace mortane::test
