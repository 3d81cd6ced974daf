// The button that offers what a session that died has left unsent.
#pragma once

#include <QToolButton>
#include <optional>

#include "app/UnsentEdits.h"
#include "widgets/Control.h"

class QAction;

namespace mortane {

// "Unsent changes of 21 Nov 14:02 were kept", with a menu to open them or let them go; hidden while
// there is nothing.
class KeptButton : public QToolButton {
 public:
  explicit KeptButton(QWidget* parent);

  void ShowLeft(const std::optional<UnsentEdits::Left>& left);

  Control<QAction> OpenKept{"OpenKept"};
  Control<QAction> LetKeptGo{"LetKeptGo"};
};

}  // namespace mortane
