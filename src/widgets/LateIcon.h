// An icon that is made when somebody wants its picture.
#pragma once

#include <QIcon>
#include <functional>

namespace mortane {

QIcon LateIcon(std::function<QIcon()> make);

}  // namespace mortane
