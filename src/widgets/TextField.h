// A text box whose text counts once the person has done with it.
#pragma once

#include <QLineEdit>
#include <functional>
#include <optional>

namespace mortane {

// The text is committed by the Enter key and when the field is left, edited or not. The field is
// left when the person moves the focus to another control of the window, or changes page, section
// or tab. A load, a hiding, a disabling or a destruction by the program, another window and a menu
// are no leaving. isModified() tells whether the person has edited the text since it was set.
class TextField : public QLineEdit {
  Q_OBJECT

 public:
  explicit TextField(QWidget* parent = nullptr);

  // At most that many characters, typed, pasted or set.
  void SetLimit(int characters);
  void setText(const QString& text);

  enum class LeftBlank { GetsPlaceholder, StaysBlank };
  // Dashes that stand for an unnamed item, in the colour of captions. Every edit replaces them as
  // a whole, and the Enter key clears them before it commits. With GetsPlaceholder they return to
  // a box that is left blank, after its text is committed.
  void SetPlaceholder(const QString& dashes, LeftBlank leftBlank = LeftBlank::GetsPlaceholder);

  // Decides whether a text may be committed. One that may not is shown refused while `complain`
  // runs and until the next key; text and focus stay, and what the person clicked does not act.
  void SetCheck(std::function<bool(const QString& text)> accepts,
                std::function<void()> complain = {});

  // Checks the text and raises committed(); false when it is refused, or when the field has ended
  // meanwhile.
  bool Commit();
  // What leaving does, whether the focus moves or not; false as for Commit().
  bool Leave();
  [[nodiscard]] bool isRefused() const;

  // The dot that says: differs from what was last received or sent, which was that text; none
  // without one. Tool tip and accessible description say it in words.
  void SetPending(const std::optional<QString>& was);
  [[nodiscard]] bool isPending() const { return was_.has_value(); }

  // Wide enough for that many characters of text, or for no less than `least` of them where the
  // room is short, at the height of the grid.
  void SetWidthFor(int characters) { SetWidthFor(characters, characters); }
  void SetWidthFor(int characters, int least);
  [[nodiscard]] QSize sizeHint() const override;

 Q_SIGNALS:
  void committed(const QString& text);

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  [[nodiscard]] bool IsMovedByPerson(Qt::FocusReason reason) const;
  void SetRefused(bool refused);
  [[nodiscard]] bool ShowsPlaceholder() const {
    return !placeholder_.isEmpty() && text() == placeholder_;
  }
  void SelectPlaceholder();
  void ColourText();

  QString placeholder_;
  LeftBlank leftBlank_ = LeftBlank::GetsPlaceholder;
  std::function<bool(const QString& text)> accepts_;
  std::function<void()> complain_;
  std::optional<QString> was_;
  QString ownDescription_;  // while another is shown
  bool checking_ = false;
  bool tabKeyPressed_ = false;
};

}  // namespace mortane
