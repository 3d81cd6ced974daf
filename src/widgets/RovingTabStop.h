// A column of buttons that is one stop of the Tab key.
#pragma once

#include <QObject>
#include <QVector>

class QAbstractButton;

namespace mortane {

// Up, Down, Home and End only move the focus among the buttons that can be used; why the others
// cannot is shown as they are passed.
class RovingTabStop : public QObject {
 public:
  using QObject::QObject;

  // From the first to the last.
  void Add(QAbstractButton* button);
  // Where Tab comes to while none of them has the focus; -1, and a disabled one: the first that can
  // be used.
  void SetStop(int index);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool MoveFocus(int key);
  void Update();

  QVector<QAbstractButton*> buttons_;
  int stop_ = -1;
};

}  // namespace mortane
