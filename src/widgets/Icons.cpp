#include "widgets/Icons.h"

#include <QApplication>
#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <array>
#include <optional>
#include <string_view>

#include "widgets/Theme.h"
#include "widgets/VectorDrawing.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

constexpr std::array<std::string_view, kIconCount> kFiles{
    "system",    "objective", "cube",      "condenser", "interlock",   "control", "open",
    "save",      "select",    "receive",   "send",      "exit",        "new",     "lamp",
    "nosepiece", "nd",        "lightpath", "fieldstop", "aperture",    "zoom",    "shutter",
    "analyzer",  "zfocus",    "xystage",   "checklist", "loudspeaker", "hand",    "flag",
    "check",     "info",      "emblem",    "stepsmall", "steplarge",
};

// The colours that stand in the files for the two of a tint.
constexpr QRgb kLineInFile = qRgb(0, 0, 0);
constexpr QRgb kAccentInFile = qRgb(0, 0, 255);

QByteArray ReadDrawing(IconName name) {
  const std::string_view file = kFiles[static_cast<std::size_t>(name)];
  QFile source(u":/mortane/icons/"_s +
               QString::fromLatin1(file.data(), static_cast<qsizetype>(file.size())) + u".svg"_s);
  const bool opened = source.open(QIODevice::ReadOnly);
  Q_ASSERT(opened);
  return opened ? source.readAll() : QByteArray();
}

// A file is read once: most icons are drawn in several tints.
VectorDrawing Tinted(IconName name, const IconTint& tint) {
  static std::array<std::optional<VectorDrawing>, kIconCount> drawings;
  std::optional<VectorDrawing>& read = drawings[static_cast<std::size_t>(name)];
  if (!read) read.emplace(ReadDrawing(name));
  VectorDrawing drawing = *read;
  drawing.SetColors(
      {{kLineInFile, tint.line}, {kAccentInFile, tint.accent.isValid() ? tint.accent : tint.line}});
  return drawing;
}

QString CacheKey(IconName name, int size, const IconTint& tint, double ratio) {
  return u"mortane-%1-%2-%3-%4-%5"_s.arg(static_cast<int>(name))
      .arg(size)
      .arg(tint.line.rgba())
      .arg(tint.accent.isValid() ? tint.accent.rgba() : 0U)
      .arg(ratio);
}

class TintedIconEngine : public QIconEngine {
 public:
  explicit TintedIconEngine(IconName name) : name_(name) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
    DrawIcon(*painter, name_, rect, TintFor(mode));
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override {
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    const int side = qMin(size.width(), size.height());
    DrawIcon(painter, name_,
             QRectF((size.width() - side) / 2.0, (size.height() - side) / 2.0, side, side),
             TintFor(mode));
    return pixmap;
  }

  [[nodiscard]] QIconEngine* clone() const override { return new TintedIconEngine(name_); }

 private:
  static IconTint TintFor(QIcon::Mode mode) {
    const QPalette palette = QApplication::palette();
    if (mode == QIcon::Disabled)
      return {palette.color(QPalette::Disabled, QPalette::ButtonText), {}};
    if (mode == QIcon::Selected)
      return {palette.color(QPalette::HighlightedText), ToneColor(Tone::Amber)};
    return {palette.color(QPalette::ButtonText), ToneColor(Tone::IconAccent)};
  }

  IconName name_;
};

}  // namespace

void DrawIcon(QPainter& painter, IconName name, const QRectF& area, const IconTint& tint) {
  const double ratio = painter.device() ? painter.device()->devicePixelRatio() : 1;
  const int side = qRound(qMin(area.width(), area.height()));
  painter.drawPixmap(QRectF(area.topLeft(), QSizeF(side, side)).toRect(),
                     Icon(name, side, tint, ratio));
}

QPixmap Icon(IconName name, int size, const IconTint& tint, double devicePixelRatio) {
  const QString key = CacheKey(name, size, tint, devicePixelRatio);
  QPixmap pixmap;
  if (QPixmapCache::find(key, &pixmap)) return pixmap;
  const int pixels = qRound(size * devicePixelRatio);
  pixmap = QPixmap(pixels, pixels);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  Tinted(name, tint).Paint(painter, QRectF(0, 0, pixels, pixels));
  painter.end();
  pixmap.setDevicePixelRatio(devicePixelRatio);
  QPixmapCache::insert(key, pixmap);
  return pixmap;
}

QIcon Icon(IconName name) {
  return QIcon(new TintedIconEngine(name));
}

}  // namespace mortane
