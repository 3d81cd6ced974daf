// A text that a screen reader can read and not change.
#pragma once

#include <QAccessible>

namespace mortane {

// Some screen readers read a control's value from this interface and from nowhere else.
class ReadOnlyText : public QAccessibleTextInterface {
 public:
  [[nodiscard]] virtual QString content() const = 0;

  [[nodiscard]] QString text(int start, int end) const override;
  [[nodiscard]] int characterCount() const override;
  QString attributes(int offset, int* start, int* end) const override;

  // Nothing is ever selected, and there is no cursor.
  void selection(int index, int* start, int* end) const override;
  [[nodiscard]] int selectionCount() const override { return 0; }
  void addSelection(int, int) override {}
  void removeSelection(int) override {}
  void setSelection(int, int, int) override {}
  [[nodiscard]] int cursorPosition() const override { return 0; }
  void setCursorPosition(int) override {}
  void scrollToSubstring(int, int) override {}

  // Places of single characters are not told.
  [[nodiscard]] QRect characterRect(int) const override { return {}; }
  [[nodiscard]] int offsetAtPoint(const QPoint&) const override { return -1; }
};

}  // namespace mortane
