// The two palettes, the colours beyond them, the grid and the type scale.
#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>

class QFontMetrics;
class QWidget;

namespace mortane {

enum class Scheme { Light, Dark };

// Colours that no palette role stands for.
enum class Tone {
  Amber,
  OnAmber,
  Rail,
  RailHover,
  RailSelected,
  RailText,
  RailResting,
  RailDisabled,
  RailAccent,
  RailPending,
  RefusedLine,
  RefusedBackground,
  DrawingLine,
  DrawingFill,
  DrawingShade,
  DrawingDeep,
  HelpLine,
  IconAccent,
  RingBlack,
  RingGrey,
  RingBrown,
  RingRed,
  RingYellow,
  RingGreen,
  RingBlue,
  RingDarkBlue,
  RingWhite,
  LightCone,
  SwitchPlate,
};
inline constexpr int kToneCount = static_cast<int>(Tone::SwitchPlate) + 1;

// The scheme that the environment variable MORTANE_SCHEME (light, dark) or else the system asks
// for; light where neither tells. Only before the application has a palette of ours.
Scheme SystemScheme();
// Light until it is set.
Scheme CurrentScheme();
void SetCurrentScheme(Scheme scheme);
QPalette ThemePalette(Scheme scheme);
QColor ToneColor(Tone tone);

// The type scale: factors of the system's font at its own size; no family is named.
QFont TitleFont();         // 1.5, semibold
QFont FrameCaptionFont();  // 1.0, semibold
QFont BoldFont();          // 1.0, bold: what is chosen
QFont RailFont();          // 0.94, semibold
QFont CaptionFont();       // 0.92: captions over values, column headers
QFont MarkFont();          // 0.86, bold: numbers on marks
QFont FixedFont();         // values that came out of a list or the controller

// A measure of the grid in device-independent pixels, never too small for a line of text.
int GridHeight(int value, const QFontMetrics& metrics);
int GridHeight(int value, const QWidget& widget);

namespace grid {
inline constexpr int kUnit = 4;
inline constexpr int kBetweenControls = 8;
inline constexpr int kBetweenGroups = 12;
inline constexpr int kBetweenColumns = 16;
inline constexpr int kCardPadding = 16;
inline constexpr int kPageMargin = 20;
inline constexpr int kFieldHeight = 30;
inline constexpr int kSectionHeight = 34;
inline constexpr int kRowHeight = 26;
inline constexpr int kIconRowHeight = 38;
inline constexpr int kTabHeight = 32;
inline constexpr int kKeyHeight = 42;
inline constexpr int kKeyWidth = 124;
inline constexpr int kRailButtonHeight = 78;
inline constexpr int kRailWidth = 104;
inline constexpr int kHeaderHeight = 56;
inline constexpr int kSectionStart = 180;
inline constexpr double kCardCorner = 8;
inline constexpr double kKeyCorner = 7;
inline constexpr double kInnerCorner = 6;
inline constexpr double kFieldCorner = 5;
}  // namespace grid

}  // namespace mortane
