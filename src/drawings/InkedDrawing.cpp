#include "drawings/InkedDrawing.h"

#include <QFile>
#include <QPalette>
#include <array>

#include "widgets/Theme.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

struct Ink {
  const char* inFile;
  Tone tone;
};

constexpr std::array kInks{
    Ink{"#33415c", Tone::DrawingLine},  Ink{"#e9edf3", Tone::DrawingFill},
    Ink{"#d5dce6", Tone::DrawingShade}, Ink{"#bfc9d6", Tone::DrawingDeep},
    Ink{"#2e9a57", Tone::RingGreen},    Ink{"#f0c419", Tone::RingYellow},
    Ink{"#5db1e6", Tone::RingBlue},     Ink{"#ffdf66", Tone::LightCone},
    Ink{"#101838", Tone::SwitchPlate},
};

}  // namespace

QByteArray InkedDrawing(const QString& name, const QPalette& palette) {
  QFile source(u":/mortane/%1.svg"_s.arg(name));
  const bool opened = source.open(QIODevice::ReadOnly);
  Q_ASSERT(opened);
  if (!opened) return {};
  QByteArray drawing = source.readAll();
  for (const Ink& ink : kInks) drawing.replace(ink.inFile, ToneColor(ink.tone).name().toLatin1());
  drawing.replace("#ffffff", palette.color(QPalette::Active, QPalette::Base).name().toLatin1());
  drawing.replace("#3c475c", palette.color(QPalette::Active, QPalette::Shadow).name().toLatin1());
  return drawing;
}

}  // namespace mortane
