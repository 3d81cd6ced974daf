// Names that controls get at run time: from a caller, a table, or with a number counted as they are
// made. A member with one fixed name is a Control, which names what it is given.
#pragma once

#include <QObject>
#include <QString>

namespace mortane {

using namespace Qt::StringLiterals;

// Gives the control its name and hands it back.
template <typename Control>
Control* Named(Control* control, const char* name) {
  control->setObjectName(QLatin1String(name));
  return control;
}

// The name of an element of an array of controls: "Label1_0".
template <typename Control>
Control* Named(Control* control, const char* arrayName, int index) {
  control->setObjectName(u"%1_%2"_s.arg(QLatin1String(arrayName)).arg(index));
  return control;
}

}  // namespace mortane
