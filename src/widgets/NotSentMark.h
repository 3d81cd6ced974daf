// The dot at a control whose value is not the received one, where the control has none of its own:
// options, check boxes, switches and drop-down lists.
#pragma once

#include <QString>
#include <optional>

class QWidget;

namespace mortane {

// `was` is the value last received or sent; none takes the dot away. Tool tip and accessible
// description tell it behind what the control says of itself.
void MarkNotSent(QWidget& control, const std::optional<QString>& was);

// What is told of the value; empty without a dot.
QString NoteOfNotSent(const QWidget& control);

}  // namespace mortane
