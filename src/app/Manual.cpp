#include "app/Manual.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QUrl>

#include "common/Prompts.h"

namespace mortane {

using namespace Qt::StringLiterals;

std::string ManualFolder() {
  const QDir programs(QCoreApplication::applicationDirPath());
  return QDir::cleanPath(programs.absoluteFilePath(QStringLiteral(MORTANE_MANUAL))).toStdString();
}

void OpenManual(const std::string& folder, const QString& chapter, Prompts& prompts) {
  const QString file = QString::fromStdString(folder) + "/"_L1 + chapter + ".html"_L1;
  const std::string shown = QDir::toNativeSeparators(file).toStdString();
  if (!QFileInfo::exists(file)) {
    prompts.MsgBox("The manual is not installed.\r\nIts place is " + shown,
                   box::kOk + box::kExclamation);
  } else if (!QDesktopServices::openUrl(QUrl::fromLocalFile(file))) {
    prompts.MsgBox("The manual cannot be shown.\r\nOpen it with a browser: " + shown,
                   box::kOk + box::kExclamation);
  }
}

}  // namespace mortane
