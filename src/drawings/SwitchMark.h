// Marks of dials and switches, as they stand on a drawing and in front of a list's rows.
#pragma once

#include <QIcon>
#include <QRectF>
#include <QString>

class QPainter;

namespace mortane {

enum class MarkKind { BodyDial, BodySwitch, HandDial, HandKey };

struct SwitchMark {
  MarkKind kind;
  QString text;
};

// How the person finds it at the moment.
struct MarkState {
  bool chosen = false;
  bool enabled = true;
  bool hovered = false;
};

inline bool IsDial(MarkKind kind) {
  return kind == MarkKind::BodyDial || kind == MarkKind::HandDial;
}

// The outline of a mark that fills the area; `outside` widens it on all sides.
void DrawMarkShape(QPainter& painter, MarkKind kind, const QRectF& area, double outside = 0);

// The scale from which a mark of that size has room for its text in the text's own size.
double LeastMarkScale(const SwitchMark& mark, const QSizeF& size);

// A mark on the dark plate of a drawing. Text grows with a large mark, and is made smaller where it
// would run into what stands around it.
void DrawMark(QPainter& painter, const SwitchMark& mark, const QRectF& area,
              const MarkState& state);

// The mark for a row; chosen on the selected one.
QIcon MarkIcon(const SwitchMark& mark);
// Side of the icon in pixels, which follows large fonts.
int MarkIconSide();

}  // namespace mortane
