// The way of the Tab key to controls that are made later than those behind them.
#pragma once

class QWidget;

namespace mortane {

// Moves a page, which has just come to its window, and everything in it behind the other widget.
void PutInTabOrder(QWidget& page, QWidget& behind);

}  // namespace mortane
