// The icon of every window and dialog.
#pragma once

#include <QIcon>
#include <QString>

namespace mortane {

inline constexpr char kMainTitle[] = "Mortane";

// The emblem for the program whose title is "Mortane", whatever its case; the wizard's picture
// for any other title.
QIcon GetAppIcon(const QString& title);

// The icon for the running program.
QIcon GetAppIcon();

}  // namespace mortane
