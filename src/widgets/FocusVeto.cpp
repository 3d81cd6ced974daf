#include "widgets/FocusVeto.h"

#include <QApplication>
#include <QEvent>
#include <QTimer>

namespace mortane {
namespace {

FocusVeto* running = nullptr;

}  // namespace

void FocusVeto::Start(QLineEdit* field) {
  if (running == nullptr) running = new FocusVeto(field);
}

bool FocusVeto::IsRunning() {
  return running != nullptr;
}

FocusVeto::FocusVeto(QLineEdit* field) : QObject(qApp), field_(field) {
  qApp->installEventFilter(this);
  QTimer::singleShot(0, this, [this] { Finish(); });
}

FocusVeto::~FocusVeto() {
  running = nullptr;
}

bool FocusVeto::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::KeyPress:
      return watched->isWidgetType();
    default:
      return false;
  }
}

void FocusVeto::Finish() {
  qApp->removeEventFilter(this);
  if (field_ != nullptr) {
    field_->setFocus(Qt::OtherFocusReason);
    field_->selectAll();
  }
  delete this;
}

}  // namespace mortane
