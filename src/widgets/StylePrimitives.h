// The plates, frames and indicators that Style draws.
#pragma once

#include <Qt>

class QPainter;
class QStyleOption;
class QStyleOptionMenuItem;
class QWidget;

namespace mortane {

void DrawFieldPlate(const QStyleOption& option, QPainter& painter, const QWidget* widget);
void DrawListFrame(const QStyleOption& option, QPainter& painter, const QWidget* widget);
void DrawCheckBoxIndicator(const QStyleOption& option, QPainter& painter);
void DrawRadioIndicator(const QStyleOption& option, QPainter& painter);
void DrawButtonPlate(const QStyleOption& option, QPainter& painter, const QWidget* widget);
void DrawRowGround(const QStyleOption& option, QPainter& painter);
void DrawFocusLine(const QStyleOption& option, QPainter& painter);
void DrawToolButtonPlate(const QStyleOption& option, QPainter& painter);
void DrawHeaderSection(const QStyleOption& option, QPainter& painter);
void DrawMenuBarItem(const QStyleOptionMenuItem& option, QPainter& painter);
// Tool bar and status bar: the window's ground with a line towards the middle of the window.
void DrawBar(const QStyleOption& option, QPainter& painter, Qt::Edge line);

}  // namespace mortane
