// What the named controls of a page show, as lines of text.
#pragma once

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>

#include "support/Rows.h"
#include "widgets/ComboBox.h"
#include "widgets/ListBox.h"
#include "widgets/OptionGroup.h"
#include "widgets/Page.h"
#include "widgets/TabStrip.h"

namespace mortane::test {

using namespace Qt::StringLiterals;

// What a control shows: text, selection, rows.
inline QString TextOf(const QObject& control) {
  if (const auto* list = qobject_cast<const ListBox*>(&control)) {
    QString text = QString::number(list->index());
    for (int row = 0; row < list->rowCount(); ++row)
      text += u'\n' + list->text(row) + u'=' + list->data(row).toString();
    return text;
  }
  if (const auto* combo = qobject_cast<const ComboBox*>(&control)) {
    QString text = QString::number(combo->index());
    for (int row = 0; row < combo->count(); ++row) text += u'\n' + combo->itemText(row);
    return text;
  }
  if (const auto* tabs = qobject_cast<const TabStrip*>(&control))
    return QString::number(tabs->index()) + u'/' + QString::number(tabs->count());
  if (const auto* field = qobject_cast<const QLineEdit*>(&control)) return field->text();
  if (const auto* label = qobject_cast<const QLabel*>(&control)) return label->text();
  if (const auto* button = qobject_cast<const QAbstractButton*>(&control))
    return button->text() + (button->isChecked() ? u'+' : u'-');
  if (const auto* group = qobject_cast<const OptionGroup*>(&control))
    return QString::number(group->selected());
  return {};
}

// What the named controls of a sub-page show, one line each.
inline Lines ShownIn(const Page& page) {
  Lines lines;
  for (const QObject* control : page.findChildren<QObject*>()) {
    if (control->objectName().isEmpty() || control->objectName().startsWith("qt_")) continue;
    QString line = page.objectName() + u'.' + control->objectName() + u": "_s + TextOf(*control);
    if (const auto* widget = qobject_cast<const QWidget*>(control)) {
      line += widget->isEnabledTo(&page) ? u" on"_s : u" off"_s;
      line += widget->isVisibleTo(&page) ? u" shown"_s : u" hidden"_s;
    }
    lines.push_back(line.toStdString());
  }
  return lines;
}

}  // namespace mortane::test
