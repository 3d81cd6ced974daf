// A value that came out of a list or the controller: fixed pitch, elided where it must be.
#pragma once

#include <QLabel>

namespace mortane {

// text() is always the whole text; one that does not fit also shows as the tool tip.
class ValueLabel : public QLabel {
  Q_OBJECT

 public:
  explicit ValueLabel(QWidget* parent = nullptr);

  // Screen readers hear of a new text.
  void setText(const QString& text);
  // Asks for room for that many characters; a shorter or longer text changes nothing.
  void SetCharacters(int count) { characters_ = count; }
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  int characters_ = 8;
};

}  // namespace mortane
