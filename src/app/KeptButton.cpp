#include "app/KeptButton.h"

#include <QAction>
#include <QLocale>
#include <QMenu>

#include "widgets/Theme.h"

namespace mortane {

using namespace Qt::StringLiterals;

KeptButton::KeptButton(QWidget* parent) : QToolButton(parent) {
  OpenKept = new QAction(u"Open"_s, this);
  LetKeptGo = new QAction(u"Let Go"_s, this);
  setPopupMode(InstantPopup);
  setFont(CaptionFont());
  setAutoRaise(true);
  setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  setFocusPolicy(Qt::TabFocus);
  hide();
}

void KeptButton::ShowLeft(const std::optional<UnsentEdits::Left>& left) {
  setVisible(left.has_value());
  if (!left) return;
  // Most sessions find nothing that was left, and do without the menu.
  if (menu() == nullptr) {
    auto* menu = new QMenu(this);
    menu->addActions({OpenKept, LetKeptGo});
    setMenu(menu);
  }
  const QString time = QLocale::c().toString(left->time, u"d MMM HH:mm"_s);
  setText(u"Unsent changes of %1 were kept"_s.arg(time));
}

}  // namespace mortane
