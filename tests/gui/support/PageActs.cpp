#include "gui/support/PageActs.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QTest>

#include "widgets/ComboBox.h"
#include "widgets/ListBox.h"
#include "widgets/TabStrip.h"
#include "widgets/TextField.h"

namespace mortane::test {
namespace {

int RowWith(const std::vector<std::string>& rows, const QString& text) {
  const std::string wanted = text.toStdString();
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (rows[i] == wanted) return static_cast<int>(i);
  }
  ADD_FAILURE() << "no row " << wanted;
  return -1;
}

}  // namespace

void ClickRow(ListBox& list, int row) {
  QTreeWidgetItem* item = list.topLevelItem(row);
  ASSERT_NE(item, nullptr) << "row " << row << " of " << list.rowCount();
  list.scrollToItem(item);
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(item).center());
  QApplication::processEvents();
}

void ClickTab(TabStrip& strip, int index) {
  ASSERT_LT(index, strip.count());
  QTest::mouseClick(&strip, Qt::LeftButton, {}, strip.tabRect(index).center());
  QApplication::processEvents();
}

void ClickButton(QAbstractButton& button) {
  QTest::mouseClick(&button, Qt::LeftButton, {}, QPoint(12, button.height() / 2));
  QApplication::processEvents();
}

void ChooseRow(ComboBox& combo, int row) {
  ASSERT_LT(row, combo.count());
  combo.setFocus();
  QTest::keyClick(&combo, Qt::Key_Return);
  QWidget* list = QApplication::activePopupWidget();
  ASSERT_NE(list, nullptr) << "the list did not open";
  QTest::keyClick(list->focusProxy() != nullptr ? list->focusProxy() : combo.view(), Qt::Key_Home);
  for (int i = 0; i < row; ++i) QTest::keyClick(combo.view(), Qt::Key_Down);
  QTest::keyClick(combo.view(), Qt::Key_Return);
  QApplication::processEvents();
}

void TypeInto(TextField& field, const QString& text) {
  QTest::mouseClick(&field, Qt::LeftButton);
  field.selectAll();
  if (text.isEmpty()) {
    QTest::keyClick(&field, Qt::Key_Delete);
  } else {
    QTest::keyClicks(&field, text);
  }
}

void Enter(QWidget& control, const QString& text) {
  if (auto* field = qobject_cast<TextField*>(&control)) {
    TypeInto(*field, text);
    QTest::keyClick(field, Qt::Key_Tab);
  } else if (auto* list = qobject_cast<ListBox*>(&control)) {
    ClickRow(*list, RowWith(RowsOf(control), text));
  } else if (auto* combo = qobject_cast<ComboBox*>(&control)) {
    ChooseRow(*combo, RowWith(RowsOf(control), text));
  } else if (auto* strip = qobject_cast<TabStrip*>(&control)) {
    ClickTab(*strip, RowWith(RowsOf(control), text));
  } else if (auto* button = qobject_cast<QAbstractButton*>(&control)) {
    EXPECT_EQ(button->text(), text);
    ClickButton(*button);
  } else {
    ADD_FAILURE() << control.objectName().toStdString() << " takes no text";
  }
  QApplication::processEvents();
}

std::string Shown(const QWidget& control) {
  if (const auto* label = qobject_cast<const QLabel*>(&control)) {
    return label->text().toStdString();
  }
  if (const auto* field = qobject_cast<const QLineEdit*>(&control)) {
    return field->text().toStdString();
  }
  if (const auto* list = qobject_cast<const ListBox*>(&control)) {
    return list->text(list->index()).toStdString();
  }
  if (const auto* combo = qobject_cast<const ComboBox*>(&control)) {
    return combo->currentText().toStdString();
  }
  if (const auto* strip = qobject_cast<const TabStrip*>(&control)) {
    return strip->caption().toStdString();
  }
  if (const auto* button = qobject_cast<const QAbstractButton*>(&control)) {
    return button->isChecked() ? "on" : "off";
  }
  ADD_FAILURE() << control.objectName().toStdString() << " shows no text";
  return {};
}

std::vector<std::string> RowsOf(const QWidget& control) {
  std::vector<std::string> rows;
  if (const auto* list = qobject_cast<const ListBox*>(&control)) {
    for (int i = 0; i < list->rowCount(); ++i) rows.push_back(list->text(i).toStdString());
  } else if (const auto* combo = qobject_cast<const ComboBox*>(&control)) {
    for (int i = 0; i < combo->count(); ++i) rows.push_back(combo->itemText(i).toStdString());
  } else if (const auto* strip = qobject_cast<const TabStrip*>(&control)) {
    for (int i = 0; i < strip->count(); ++i) rows.push_back(strip->tabText(i).toStdString());
  } else {
    ADD_FAILURE() << control.objectName().toStdString() << " has no rows";
  }
  return rows;
}

}  // namespace mortane::test
