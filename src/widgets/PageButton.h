// One page button of the rail.
#pragma once

#include "widgets/RailButton.h"

namespace mortane {

// Kept: acts when the left button goes down with no modifier, and on Space; a click is not needed.
class PageButton : public RailButton {
  Q_OBJECT

 public:
  PageButton(IconName icon, const QString& text, QWidget* parent = nullptr);

  void SetSelected(bool selected);
  [[nodiscard]] bool isSelected() const { return selected_; }
  // The dot that says: differs from what was last received or sent. Screen readers and the tool tip
  // tell it too.
  void SetPending(bool pending);
  [[nodiscard]] bool isPending() const { return pending_; }
  [[nodiscard]] QSize sizeHint() const override;
  // In a low window the buttons stand closer.
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  [[nodiscard]] bool IsCurrent() const override { return selected_; }
  bool event(QEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  [[nodiscard]] int IconTop() const;

  bool selected_ = false;
  bool pending_ = false;
};

}  // namespace mortane
