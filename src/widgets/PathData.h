// The text form of a path in a drawing.
#pragma once

#include <QPainterPath>
#include <QStringView>
#include <optional>

namespace mortane {

// SVG's path data with the commands M, L, H, V, C, S, A and Z, in capitals for places and in small
// letters for steps. Nothing for another command, for a number that is missing, and for an arc of a
// turned ellipse.
std::optional<QPainterPath> ParsePathData(QStringView text);

}  // namespace mortane
