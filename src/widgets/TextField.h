// A text box: Enter commits, leaving is told, and a refused text keeps the focus.
#pragma once

#include <QLineEdit>
#include <functional>

namespace mortane {

// Leaving runs the validation, then may put the mark back into a blank box, then raises left().
// Leaving means moving to another control of the window, edited or not: another window, a popup
// and the disabling of the window are none.
class TextField : public QLineEdit {
  Q_OBJECT

 public:
  explicit TextField(QWidget* parent = nullptr);

  // At most that many characters, typed, pasted or set.
  void SetLimit(int characters);
  void setText(const QString& text);
  enum class LeftBlank { GetsMark, StaysBlank };
  // The dashes that stand for an unnamed item: wiped by the first key that makes a character,
  // and in most boxes back when the box is left blank. They show in the colour of captions.
  void SetMark(const QString& dashes, LeftBlank leftBlank = LeftBlank::GetsMark);
  // Decides whether the text may stay (and stores it if so). A text that may not is shown refused
  // while complain runs and until the next key; focus and text stay, and what the user clicked
  // does not act.
  void setValidation(std::function<bool()> accepts, std::function<void()> complain = {});
  // Runs the validation now, as the Enter key of some fields does; true without one.
  bool validate();
  [[nodiscard]] bool isRefused() const;
  // Wide enough for that many characters of text, at the height of the grid.
  void SetWidthFor(int characters);

 signals:
  void entered();
  void left();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  [[nodiscard]] bool IsLeaving(Qt::FocusReason reason) const;
  void SetRefused(bool refused);
  [[nodiscard]] bool ShowsMark() const { return !mark_.isEmpty() && text() == mark_; }
  void WipeMark();
  void ColourText();

  QString mark_;
  LeftBlank leftBlank_ = LeftBlank::GetsMark;
  std::function<bool()> accepts_;
  std::function<void()> complain_;
  bool validating_ = false;
};

}  // namespace mortane
