#include "gui/support/Scanline.h"

#include <QMetaEnum>
#include <algorithm>
#include <array>
#include <cstdlib>
#include <functional>
#include <utility>

#include "widgets/Theme.h"

namespace mortane::test {
namespace {

struct ToneName {
  Tone tone;
  const char* name;
};

constexpr std::array kTones{
    ToneName{Tone::Amber, "Amber"},
    ToneName{Tone::OnAmber, "OnAmber"},
    ToneName{Tone::Rail, "Rail"},
    ToneName{Tone::RailHover, "RailHover"},
    ToneName{Tone::RailSelected, "RailSelected"},
    ToneName{Tone::RailText, "RailText"},
    ToneName{Tone::RailResting, "RailResting"},
    ToneName{Tone::RailDisabled, "RailDisabled"},
    ToneName{Tone::RailPending, "RailPending"},
    ToneName{Tone::RefusedLine, "RefusedLine"},
    ToneName{Tone::RefusedBackground, "RefusedBackground"},
    ToneName{Tone::DrawingLine, "DrawingLine"},
    ToneName{Tone::DrawingFill, "DrawingFill"},
    ToneName{Tone::DrawingShade, "DrawingShade"},
    ToneName{Tone::DrawingDeep, "DrawingDeep"},
    ToneName{Tone::HelpLine, "HelpLine"},
    ToneName{Tone::IconAccent, "IconAccent"},
    ToneName{Tone::RingYellow, "RingYellow"},
};

// Neither near black nor near white, so that a lighter or a darker one is another colour.
QColor ColorOf(int role, bool disabled) {
  return QColor::fromHsv(role * 360 / QPalette::NColorRoles, 140, disabled ? 120 : 200);
}

std::string NameOf(QRgb pixel, const std::vector<NamedColor>& more) {
  if (qAlpha(pixel) == 0) return "none";
  const QMetaEnum roles = QMetaEnum::fromType<QPalette::ColorRole>();
  for (int role = 0; role < QPalette::NColorRoles; ++role) {
    const char* name = roles.valueToKey(role);
    if (ColorOf(role, false).rgb() == pixel) return name;
    if (ColorOf(role, true).rgb() == pixel) return std::string("disabled ") + name;
  }
  for (const NamedColor& named : more) {
    if (named.color.rgba() == pixel) return named.name;
  }
  for (const ToneName& named : kTones) {
    if (ToneColor(named.tone).rgb() == pixel) return named.name;
  }
  return "~";
}

std::string Runs(int length, const std::vector<NamedColor>& more,
                 const std::function<QRgb(int)>& pixel) {
  std::string runs;
  std::string name;
  int from = 0;
  const auto end = [&](int at) {
    if (at == from) return;
    if (!runs.empty()) runs += ", ";
    runs += name + " " + std::to_string(at - from);
    from = at;
  };
  for (int i = 0; i < length; ++i) {
    const std::string here = NameOf(pixel(i), more);
    if (here != name) end(i);
    name = here;
  }
  end(length);
  return runs;
}

// Without the mixed ones.
std::vector<std::pair<QString, int>> Inks(const std::string& line) {
  std::vector<std::pair<QString, int>> inks;
  for (const QString& run : QString::fromStdString(line).split(", ")) {
    const qsizetype blank = run.lastIndexOf(' ');
    if (!run.startsWith('~'))
      inks.emplace_back(run.left(blank), QStringView(run).mid(blank + 1).toInt());
  }
  return inks;
}

}  // namespace

QPalette TellablePalette() {
  QPalette palette;
  for (int role = 0; role < QPalette::NColorRoles; ++role) {
    const auto named = static_cast<QPalette::ColorRole>(role);
    palette.setColor(QPalette::All, named, ColorOf(role, false));
    palette.setColor(QPalette::Disabled, named, ColorOf(role, true));
  }
  return palette;
}

std::string RowOf(const QImage& picture, int y, const std::vector<NamedColor>& more) {
  return Runs(picture.width(), more, [&](int x) { return picture.pixel(x, y); });
}

std::string ColumnOf(const QImage& picture, int x, const std::vector<NamedColor>& more) {
  return Runs(picture.height(), more, [&](int y) { return picture.pixel(x, y); });
}

QRect AreaOf(const QImage& picture, const QColor& color) {
  QRect area;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      if (picture.pixel(x, y) == color.rgb()) area |= QRect(x, y, 1, 1);
    }
  }
  return area;
}

std::string RowOf(const QImage& picture, const std::vector<NamedColor>& more) {
  return RowOf(picture, picture.height() / 2, more);
}

std::string ColumnOf(const QImage& picture, const std::vector<NamedColor>& more) {
  return ColumnOf(picture, picture.width() / 2, more);
}

bool SameButForEdges(const std::string& left, const std::string& right) {
  const auto a = Inks(left);
  const auto b = Inks(right);
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](const auto& one, const auto& other) {
    return one.first == other.first && std::abs(one.second - other.second) <= 1;
  });
}

}  // namespace mortane::test
