// The boxes, frames and indicators that Style draws.
//
// Each fills the rectangle of its option, in the colours of the option's palette and after its
// state. The painter is left as it was found, except for pen and brush. `widget` may be null; where
// it is given, its properties (StyleProperties.h) count too.
#pragma once

#include <QRect>
#include <QStyle>

class QPainter;
class QStyleOption;
class QStyleOptionMenuItem;
class QStyleOptionSlider;
class QStyleOptionToolButton;
class QWidget;

namespace mortane {

void DrawFieldBox(const QStyleOption& option, QPainter& painter, const QWidget* widget);
void DrawListFrame(const QStyleOption& option, QPainter& painter, const QWidget* widget);
void DrawCheckBoxIndicator(const QStyleOption& option, QPainter& painter);
void DrawRadioIndicator(const QStyleOption& option, QPainter& painter);
void DrawButtonBox(const QStyleOption& option, QPainter& painter, const QWidget* widget);
void DrawRowBackground(const QStyleOption& option, QPainter& painter);
void DrawFocusLine(const QStyleOption& option, QPainter& painter);
void DrawToolButtonBox(const QStyleOption& option, QPainter& painter);
inline constexpr int kScrollBarLeastHandle = 28;  // pixels
// A bar without end buttons: the handle may use its whole length.
QRect ScrollBarPart(const QStyleOptionSlider& bar, QStyle::SubControl part);
// What a button with icon and text side by side takes; `without` for any other.
QSize ToolButtonSize(const QStyleOptionToolButton& option, const QSize& without);
void DrawToolButtonLabel(const QStyleOptionToolButton& option, QPainter& painter);
void DrawHeaderSection(const QStyleOption& option, QPainter& painter);
void DrawMenuBarItem(const QStyleOptionMenuItem& option, QPainter& painter);
// Tool bar and status bar: the window's background with a line towards the middle of the window.
void DrawBar(const QStyleOption& option, QPainter& painter, Qt::Edge line);

}  // namespace mortane
