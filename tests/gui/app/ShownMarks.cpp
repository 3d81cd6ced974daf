#include "ShownMarks.h"

#include <QWidget>

#include "drawings/TurretButton.h"
#include "widgets/ListBox.h"
#include "widgets/NotSentMark.h"
#include "widgets/Page.h"
#include "widgets/SectionBar.h"
#include "widgets/TabStrip.h"
#include "widgets/TextField.h"

namespace mortane::test {
namespace {

QString PageOf(const QWidget& control) {
  const QWidget* page = control.parentWidget();
  while (page != nullptr && qobject_cast<const Page*>(page) == nullptr) page = page->parentWidget();
  return page == nullptr ? QString() : page->objectName();
}

class Marks {
 public:
  void Add(const QWidget& widget) {
    const QString name = widget.objectName();
    if (const auto* field = qobject_cast<const TextField*>(&widget)) {
      if (field->isPending()) Put(widget, name + ": " + field->accessibleDescription());
    } else if (const auto* list = qobject_cast<const ListBox*>(&widget)) {
      for (int row = 0; row < list->rowCount(); ++row) {
        if (list->RowNote(row).isEmpty()) continue;
        Put(widget, QStringLiteral("%1[%2]: %3").arg(name).arg(row).arg(list->RowNote(row)));
      }
    } else if (const auto* place = qobject_cast<const TurretButton*>(&widget)) {
      if (place->isPending() && place->isVisibleTo(place->parentWidget()))
        Put(widget, name + ": " + place->accessibleDescription());
    } else if (const auto* section = qobject_cast<const SectionOption*>(&widget)) {
      if (section->isPending()) Put(widget, "section " + section->text());
    } else if (const auto* tabs = qobject_cast<const TabStrip*>(&widget)) {
      for (int i = 0; i < tabs->count(); ++i) {
        if (tabs->isTabPending(i)) Put(widget, QStringLiteral("%1[%2]").arg(name).arg(i));
      }
    } else if (const QString note = NoteOfNotSent(widget); !note.isEmpty()) {
      Put(widget, name + ": " + note);
    }
  }

  std::set<std::string> lines;

 private:
  void Put(const QWidget& widget, const QString& text) {
    lines.insert((PageOf(widget) + " " + text).toStdString());
  }
};

}  // namespace

std::set<std::string> ShownMarks(const QWidget& window) {
  Marks marks;
  for (const QWidget* widget : window.findChildren<QWidget*>()) marks.Add(*widget);
  return marks.lines;
}

}  // namespace mortane::test
