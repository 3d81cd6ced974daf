#include "gui/support/PageLayout.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QScrollArea>
#include <QWidget>
#include <sstream>

namespace mortane::test {
namespace {

std::string Describe(const QWidget& control) {
  std::ostringstream text;
  text << control.metaObject()->className() << ' ' << control.objectName().toStdString() << ' '
       << control.accessibleName().toStdString() << " [" << control.x() << ' ' << control.y() << ' '
       << control.width() << 'x' << control.height() << ']';
  return text.str();
}

std::string SizeText(const QSize& size) {
  return std::to_string(size.width()) + 'x' + std::to_string(size.height());
}

std::vector<const QWidget*> ShownChildren(const QWidget& parent) {
  std::vector<const QWidget*> children;
  for (const QObject* child : parent.children()) {
    const auto* control = qobject_cast<const QWidget*>(child);
    if (control == nullptr || control->isHidden() || control->isWindow()) continue;
    children.push_back(control);
  }
  return children;
}

void CheckSize(const QWidget& control, std::vector<std::string>& faults) {
  QSize needed = control.minimumSizeHint().expandedTo(control.minimumSize());
  if (control.hasHeightForWidth()) needed.setHeight(control.heightForWidth(control.width()));
  if (control.width() >= needed.width() && control.height() >= needed.height()) return;
  faults.push_back(Describe(control) + " needs " + SizeText(needed));
}

// What the control takes of its parent, without the room around it for halo and focus. A masked
// control takes what its mask leaves.
QRegion Contents(const QWidget& control) {
  QRegion contents = control.contentsRect();
  if (!control.mask().isEmpty()) contents &= control.mask();
  return contents.translated(control.pos());
}

void CheckChildren(const QWidget& parent, std::vector<std::string>& faults) {
  const std::vector<const QWidget*> children = ShownChildren(parent);
  for (std::size_t i = 0; i < children.size(); ++i) {
    const QWidget& control = *children[i];
    CheckSize(control, faults);
    if (!parent.rect().contains(control.geometry())) {
      faults.push_back(Describe(control) + " reaches out of " + Describe(parent));
    }
    for (std::size_t k = i + 1; k < children.size(); ++k) {
      if (!Contents(control).intersects(Contents(*children[k]))) continue;
      faults.push_back(Describe(control) + " overlaps " + Describe(*children[k]));
    }
  }
}

void Walk(const QWidget& parent, std::vector<std::string>& faults) {
  if (const auto* area = qobject_cast<const QScrollArea*>(&parent)) {
    CheckSize(*area->widget(), faults);
    return Walk(*area->widget(), faults);
  }
  // The parts of lists and texts are the toolkit's.
  if (qobject_cast<const QAbstractScrollArea*>(&parent) != nullptr) return;
  CheckChildren(parent, faults);
  for (const QWidget* child : ShownChildren(parent)) Walk(*child, faults);
}

}  // namespace

std::vector<std::string> LayoutFaults(const QWidget& root) {
  std::vector<std::string> faults;
  Walk(root, faults);
  return faults;
}

void ComeToRest() {
  constexpr int kLongest = 10000;  // ms
  QApplication::processEvents(QEventLoop::AllEvents, kLongest);
}

}  // namespace mortane::test
