// The way of the Tab key to controls that are made later than those behind them.
#pragma once

class QWidget;

namespace mortane {

// The Tab key comes to the widget right after the other one, whether or not they take the focus
// now.
void MoveBehind(QWidget& moved, QWidget& before);

// Moves a page, which has just come to its window, and everything in it behind the other widget.
void PutInTabOrder(QWidget& page, QWidget& behind);

}  // namespace mortane
