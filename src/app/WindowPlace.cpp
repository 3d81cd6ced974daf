#include "app/WindowPlace.h"

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QScreen>
#include <QStyle>
#include <QWidget>
#include <algorithm>
#include <array>
#include <optional>

#include "platform/ProfileFile.h"
#include "platform/SpecialFolder.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

constexpr QSize kDesignSize{1152, 740};
constexpr double kLargestShareOfScreen = 0.9;

// At most, at the left, right and bottom of a window.
constexpr int kFrame = 8;

// "left,top,width,height,maximized", in device-independent pixels and without the frame.
constexpr char kKey[] = "Place";

struct KeptPlace {
  QRect normal;
  bool maximized;
};

// One section a window.
std::string SectionOf(const QWidget& window) {
  return window.objectName().toStdString();
}

QString Text(const KeptPlace& place) {
  const QRect& at = place.normal;
  return u"%1,%2,%3,%4,%5"_s.arg(at.x())
      .arg(at.y())
      .arg(at.width())
      .arg(at.height())
      .arg(place.maximized ? 1 : 0);
}

std::optional<KeptPlace> Parse(const std::string& text) {
  const QStringList parts = QString::fromStdString(text).split(u',');
  std::array<int, 5> numbers{};
  if (parts.size() != static_cast<qsizetype>(numbers.size())) return std::nullopt;
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    bool isNumber = false;
    numbers[i] = parts[static_cast<qsizetype>(i)].toInt(&isNumber);
    if (!isNumber) return std::nullopt;
  }
  const auto [left, top, width, height, maximized] = numbers;
  if (width <= 0 || height <= 0) return std::nullopt;
  return KeptPlace{{left, top, width, height}, maximized != 0};
}

// The place itself where a screen shows all of it; otherwise one on the screen that shows its
// middle, or on the first.
QRect OnScreen(QRect place, const QWidget& window) {
  const QScreen* screen = QGuiApplication::screenAt(place.center());
  if (screen == nullptr) screen = QGuiApplication::primaryScreen();
  const QRect available = screen->availableGeometry();
  if (available.contains(place)) return place;
  const int title = window.style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &window);
  const QRect room = available.adjusted(kFrame, title, -kFrame, -kFrame);
  if (place.width() > room.width() || place.height() > room.height()) {
    place.setSize(OpeningSize(available.size()));
  }
  place.moveRight(std::min(place.right(), room.right()));
  place.moveBottom(std::min(place.bottom(), room.bottom()));
  place.moveLeft(std::max(place.left(), room.left()));
  place.moveTop(std::max(place.top(), room.top()));
  return place;
}

}  // namespace

QSize OpeningSize(const QSize& available) {
  return kDesignSize.boundedTo(available * kLargestShareOfScreen);
}

bool WindowPlace::Restore(QWidget& window) const {
  if (path_.empty()) return false;
  const auto kept = Parse(ProfileFile(path_).Text(SectionOf(window), kKey, ""));
  if (!kept) return false;
  window.setGeometry(OnScreen(kept->normal, window));
  if (kept->maximized) window.setWindowState(Qt::WindowMaximized);
  return true;
}

void WindowPlace::Keep(const QWidget& window) const {
  if (path_.empty()) return;
  QDir().mkpath(QFileInfo(QString::fromStdString(path_)).path());
  const KeptPlace place{window.normalGeometry(), window.isMaximized()};
  ProfileFile(path_).WriteText(SectionOf(window), kKey, Text(place).toStdString());
}

std::string UsersPlaceFile() {
  const std::string folder = GetSpecialFolder(kApplicationDataFolder);
  return folder.empty() ? folder : folder + "/Mortane/Window.ini";
}

}  // namespace mortane
