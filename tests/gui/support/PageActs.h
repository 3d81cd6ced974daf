// What a person does with a control, by real events, and what a control then shows.
#pragma once

#include <QString>
#include <string>
#include <vector>

class QAbstractButton;
class QWidget;

namespace mortane {
class ComboBox;
class ListBox;
class TabStrip;
class TextField;
}  // namespace mortane

namespace mortane::test {

// All wait until the events are through.
void ClickRow(ListBox& list, int row);
void ClickTab(TabStrip& strip, int index);
void ClickButton(QAbstractButton& button);
// By keyboard: opens the list, goes to the row and takes it.
void ChooseRow(ComboBox& combo, int row);
// Clicks into the field and types over what stands there.
void TypeInto(TextField& field, const QString& text);

// Does with the control whatever enters this text: types it and leaves by the Tab key, clicks or
// chooses the row, tab or button that bears it. Fails the test when there is no such row.
void Enter(QWidget& control, const QString& text);

// The text of a label, a field, the selected row or tab; "on" and "off" of a button that can be
// checked. Empty when nothing is selected.
std::string Shown(const QWidget& control);

// The texts of all rows of a list or a combo.
std::vector<std::string> RowsOf(const QWidget& control);

}  // namespace mortane::test
