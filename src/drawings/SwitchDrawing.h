// A drawing of something with switches, each of which bears a mark to be chosen.
#pragma once

#include <QPixmap>
#include <QString>
#include <QVector>
#include <QWidget>
#include <vector>

#include "drawings/SwitchMark.h"

class QAbstractButton;

namespace mortane {

class MarkButton;
class OptionGroup;

// A mark's index is that of its row in the list that stands beside the drawing.
struct PlacedMark {
  int index;
  SwitchMark mark;
  QRectF area;  // in design pixels
};

struct DrawnText {
  QString text;
  QPointF center;  // in design pixels
};

// Marks stand in the order in which the keys go through them; indices from 0 without a gap.
struct SwitchPlan {
  QString drawing;  // of the resources
  QSizeF size;      // in design pixels
  std::vector<PlacedMark> marks;
  std::vector<DrawnText> texts;
};

// The marks are buttons, at least 24 x 24, of which one is chosen; together they are one Tab stop,
// with arrows inside. Scales from 0.8 to 2.5 with its size and never stretches; large fonts ask for
// a larger drawing, so that texts stay within their marks.
class SwitchDrawing : public QWidget {
  Q_OBJECT

 public:
  // Marks are named after their array: optBtn_1 for index 0.
  SwitchDrawing(SwitchPlan plan, const char* arrayName, QWidget* parent = nullptr);

  [[nodiscard]] int count() const { return static_cast<int>(plan_.marks.size()); }
  [[nodiscard]] QAbstractButton* mark(int index) const;
  // What the mark tells a screen reader.
  void SetMarkName(int index, const QString& name);
  [[nodiscard]] QIcon markIcon(int index) const;

  [[nodiscard]] int index() const;  // -1: none
  void setIndex(int index);         // silent

  // Left and right of the drawing exchanged; marks and texts stay.
  void SetMirrored(bool mirrored);
  [[nodiscard]] bool isMirrored() const { return mirrored_; }

  [[nodiscard]] double drawingScale() const;
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 Q_SIGNALS:
  // For a click or a key of the person only.
  void chosen(int index);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void MakeButton(const PlacedMark& placed, const char* arrayName);
  void Step(int from, int steps);
  void PaintGround();
  [[nodiscard]] double LeastScale() const;
  [[nodiscard]] QRectF DrawnArea() const;
  [[nodiscard]] MarkButton* buttonOf(int index) const;

  SwitchPlan plan_;
  OptionGroup* group_;
  QVector<MarkButton*> buttons_;  // in the order of the plan
  bool mirrored_ = false;
  QPixmap ground_;
};

}  // namespace mortane
