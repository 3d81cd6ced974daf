// Letters that are held with the Alt key.
#pragma once

#include <QObject>

namespace mortane {

// In a field or combo box they edit nothing and choose nothing: they are meant for a menu or a
// shortcut, and one that is none goes on to the window. Style watches each such control.
class AltKeys : public QObject {
 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace mortane
