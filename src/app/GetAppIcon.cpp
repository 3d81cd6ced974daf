#include "app/GetAppIcon.h"

#include <QCoreApplication>

#include "widgets/Icons.h"

namespace mortane {

QIcon GetAppIcon(const QString& title) {
  const bool isMainProgram = title.compare(QLatin1String(kMainTitle), Qt::CaseInsensitive) == 0;
  return Icon(isMainProgram ? IconName::Emblem : IconName::CheckList);
}

QIcon GetAppIcon() {
  return GetAppIcon(QCoreApplication::applicationName());
}

}  // namespace mortane
