#include "gui/support/PageLayout.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QHeaderView>
#include <QScrollArea>
#include <QScrollBar>
#include <QWidget>
#include <sstream>

#include "widgets/ContainerPage.h"
#include "widgets/ListBox.h"
#include "widgets/SectionBar.h"
#include "widgets/Theme.h"

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
  std::vector<QRegion> contents;
  contents.reserve(children.size());
  for (const QWidget* child : children) contents.push_back(Contents(*child));
  for (std::size_t i = 0; i < children.size(); ++i) {
    const QWidget& control = *children[i];
    CheckSize(control, faults);
    if (!parent.rect().contains(control.geometry())) {
      faults.push_back(Describe(control) + " reaches out of " + Describe(parent));
    }
    for (std::size_t k = i + 1; k < children.size(); ++k) {
      if (!contents[i].intersects(contents[k])) continue;
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

std::vector<std::string> ListFaults(const QWidget& page) {
  constexpr int kLeastRows = 3;
  std::vector<std::string> faults;
  for (const ListBox* list : page.findChildren<ListBox*>()) {
    if (!list->isVisible()) continue;
    const std::string name = list->objectName().toStdString();
    const int cut = list->horizontalScrollBar()->maximum();
    if (cut > 0) faults.push_back(name + " cuts " + std::to_string(cut));
    const int rows = list->viewport()->height() / GridHeight(grid::kRowHeight, *list);
    if (rows < kLeastRows) faults.push_back(name + " shows rows: " + std::to_string(rows));
    const QHeaderView& head = *list->header();
    if (!list->isHeaderHidden() && head.height() < head.fontMetrics().height())
      faults.push_back(name + " has a low head");
  }
  return faults;
}

std::vector<std::string> ScrollFaults(const QWidget& root) {
  QList<const QAbstractScrollArea*> areas;
  for (const auto* area : root.findChildren<QAbstractScrollArea*>()) areas << area;
  if (const auto* area = qobject_cast<const QAbstractScrollArea*>(&root)) areas << area;
  std::vector<std::string> faults;
  int upright = 0;
  for (const QAbstractScrollArea* area : areas) {
    if (!area->isVisible() || qobject_cast<const QAbstractItemView*>(area) != nullptr) continue;
    if (const int cut = area->horizontalScrollBar()->maximum(); cut > 0)
      faults.push_back(Describe(*area) + " is scrolled sideways by " + std::to_string(cut));
    if (area->verticalScrollBar()->maximum() > 0 && ++upright > 1)
      faults.push_back(Describe(*area) + " is another one that is scrolled upright");
  }
  return faults;
}

std::vector<std::string> FaultsOfSight(const QWidget& root) {
  std::vector<std::string> faults = LayoutFaults(root);
  for (const std::string& fault : ListFaults(root)) faults.push_back(fault);
  for (const std::string& fault : ScrollFaults(root)) faults.push_back(fault);
  return faults;
}

void ForEachSection(const QWidget& window, const std::function<void(int section)>& act) {
  for (ContainerPage* page : window.findChildren<ContainerPage*>()) {
    if (!page->isVisible()) continue;
    for (int section = 0; section < page->sections()->count(); ++section) {
      if (page->OpenSection(section)) act(section);
    }
    return;
  }
  act(0);
}

void ComeToRest() {
  constexpr int kLongest = 10000;  // ms
  QApplication::processEvents(QEventLoop::AllEvents, kLongest);
}

}  // namespace mortane::test
