// A part of a card under a caption, without a line of its own.
#pragma once

#include <QFrame>

class QVBoxLayout;

namespace mortane {

// For controls and inner frames that belong together; two frames within each other would be one
// line too many.
class CaptionedFrame : public QFrame {
  Q_OBJECT

 public:
  explicit CaptionedFrame(const QString& caption, QWidget* parent = nullptr);

  [[nodiscard]] QVBoxLayout* body() const { return body_; }

 private:
  QVBoxLayout* body_;
};

}  // namespace mortane
