// Card and inner frame: the two depths that a page is made of.
#pragma once

#include <QFrame>
#include <QString>

class QLabel;
class QVBoxLayout;

namespace mortane {

// A light sheet on the background of the window, its caption as the first line. Children go into
// body().
class Card : public QFrame {
  Q_OBJECT

 public:
  explicit Card(const QString& caption = {}, QWidget* parent = nullptr);

  [[nodiscard]] QVBoxLayout* body() const { return body_; }
  [[nodiscard]] QString caption() const;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QLabel* caption_ = nullptr;
  QVBoxLayout* body_ = nullptr;
};

// Controls that belong together, a group to screen readers under its accessible name. It draws
// nothing.
class RowGroup : public QFrame {
  Q_OBJECT

 public:
  using QFrame::QFrame;
};

// A frame inside a card. Not fitted, it loses its fill and its line is dashed.
class InnerFrame : public QFrame {
  Q_OBJECT

 public:
  explicit InnerFrame(const QString& caption = {}, QWidget* parent = nullptr);

  [[nodiscard]] QVBoxLayout* body() const { return body_; }
  [[nodiscard]] QString caption() const;
  // Of a frame that was made with a caption.
  void SetCaption(const QString& caption);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  QLabel* caption_ = nullptr;
  QVBoxLayout* body_ = nullptr;
};

// Fills and outlines a widget as an inner frame is.
void DrawInnerFrame(QWidget& frame);

// A label in caption type: over a value, under an option.
QLabel* CaptionLabel(const QString& text, QWidget* parent = nullptr);

}  // namespace mortane
