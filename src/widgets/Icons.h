// The program's own icons: one grid, tinted when painted, sharp at every scale.
#pragma once

#include <QColor>
#include <QIcon>
#include <QPixmap>
#include <QRectF>

class QPainter;

namespace mortane {

enum class IconName {
  // pages
  System,
  Objective,
  Cube,
  Condenser,
  Interlock,
  Control,
  // commands
  Open,
  Save,
  Select,
  Receive,
  Send,
  Exit,
  NewSheet,
  // accessories
  Lamp,
  Nosepiece,
  NDFilter,
  LightPath,
  FieldStop,
  Aperture,
  Zoom,
  Shutter,
  Analyzer,
  ZFocus,
  XYStage,
  // wizard
  CheckList,
  Loudspeaker,
  HandController,
  Flag,
  Check,
  Info,
  Emblem,
  // move buttons
  StepSmall,
  StepLarge,
};
inline constexpr int kIconCount = static_cast<int>(IconName::StepLarge) + 1;

struct IconTint {
  QColor line;
  QColor accent;  // the one accent stroke; the colour of the line where it is not valid
};

// Paints the icon into the area.
void DrawIcon(QPainter& painter, IconName name, const QRectF& area, const IconTint& tint);

QPixmap Icon(IconName name, int size, const IconTint& tint, double devicePixelRatio = 1);

// An icon for menus, tool bars, buttons and list rows. It takes its colours from the palette when
// painted; disabled it stands wholly in the disabled text colour, selected in white and amber.
QIcon Icon(IconName name);

}  // namespace mortane
