#include "app/WindowPlace.h"

#include <QDir>
#include <QFileInfo>
#include <QScreen>
#include <QStyle>
#include <QWidget>
#include <algorithm>

#include "platform/ProfileFile.h"
#include "platform/SpecialFolder.h"

namespace mortane {
namespace {

constexpr QSize kDesignSize{1152, 740};
constexpr double kLargestShareOfScreen = 0.9;

// At most, at the left, right and bottom of a window.
constexpr int kFrame = 8;

// The toolkit's own form of a place, in hexadecimal digits.
constexpr char kKey[] = "Geometry";

// One section a window.
std::string SectionOf(const QWidget& window) {
  return window.objectName().toStdString();
}

// The toolkit brings a place back to a screen that is there, but not always as a whole.
void MoveOntoScreen(QWidget& window) {
  QRect place = window.geometry();
  const QRect available = window.screen()->availableGeometry();
  const int title = window.style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &window);
  const QRect room = available.adjusted(kFrame, title, -kFrame, -kFrame);
  const bool fits = place.width() <= room.width() && place.height() <= room.height();
  if (window.isMaximized() || (fits && available.contains(place))) return;
  place.setSize(place.size().boundedTo(room.size()));
  place.moveLeft(std::clamp(place.left(), room.left(), room.right() - place.width() + 1));
  place.moveTop(std::clamp(place.top(), room.top(), room.bottom() - place.height() + 1));
  window.setGeometry(place);
}

}  // namespace

QSize OpeningSize(const QSize& available) {
  return kDesignSize.boundedTo(available * kLargestShareOfScreen);
}

bool WindowPlace::Restore(QWidget& window) const {
  if (path_.empty()) return false;
  const std::string kept = ProfileFile(path_).Text(SectionOf(window), kKey, "");
  if (!window.restoreGeometry(QByteArray::fromHex(QByteArray::fromStdString(kept)))) return false;
  MoveOntoScreen(window);
  return true;
}

void WindowPlace::Keep(const QWidget& window) const {
  if (path_.empty()) return;
  QDir().mkpath(QFileInfo(QString::fromStdString(path_)).path());
  ProfileFile(path_).WriteText(SectionOf(window), kKey,
                               window.saveGeometry().toHex().toStdString());
}

std::string UsersPlaceFile() {
  const std::string folder = GetSpecialFolder(kApplicationDataFolder);
  return folder.empty() ? folder : folder + "/Mortane/Window.ini";
}

}  // namespace mortane
