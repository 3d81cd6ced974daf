#include "app/ApplyTheme.h"

#include <QApplication>
#include <QToolTip>

#include "accessible/Accessible.h"
#include "widgets/Style.h"

// The macro behind this call cannot stand inside a namespace.
static void LoadWidgetResources() {
  Q_INIT_RESOURCE(widgets);
}

namespace mortane {

void ApplyTheme(QApplication& application, std::optional<Scheme> forced) {
  LoadWidgetResources();
  InstallAccessibleInterfaces();
  const Scheme scheme = forced ? *forced : SystemScheme();
  SetCurrentScheme(scheme);
  const QPalette palette = ThemePalette(scheme);
  if (qobject_cast<Style*>(QApplication::style()) == nullptr) QApplication::setStyle(new Style);
  application.setPalette(palette);
  QToolTip::setPalette(palette);
}

}  // namespace mortane
