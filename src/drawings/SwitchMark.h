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

// A mark on the dark plate of a drawing. Text keeps its size, whatever that of the area.
void DrawMark(QPainter& painter, const SwitchMark& mark, const QRectF& area,
              const MarkState& state);

// The mark for a row; chosen on the selected one.
QIcon MarkIcon(const SwitchMark& mark);
inline constexpr int kMarkIconSide = 20;

}  // namespace mortane
