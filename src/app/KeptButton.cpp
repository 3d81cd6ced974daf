#include "app/KeptButton.h"

#include <QAction>
#include <QLocale>
#include <QMenu>

#include "widgets/Theme.h"

namespace mortane {

using namespace Qt::StringLiterals;

KeptButton::KeptButton(QWidget* parent) : QToolButton(parent) {
  auto* menu = new QMenu(this);
  OpenKept = menu->addAction(u"Open"_s);
  LetKeptGo = menu->addAction(u"Let Go"_s);
  setMenu(menu);
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
  const QString time = QLocale::c().toString(left->time, u"d MMM HH:mm"_s);
  setText(u"Unsent changes of %1 were kept"_s.arg(time));
}

}  // namespace mortane
