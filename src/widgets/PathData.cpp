#include "widgets/PathData.h"

#include <QtMath>
#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace mortane {
namespace {

struct CommandRow {
  char letter;
  std::size_t numbers;
};

constexpr std::array<CommandRow, 8> kCommands{
    {{'M', 2}, {'L', 2}, {'H', 1}, {'V', 1}, {'C', 6}, {'S', 4}, {'A', 7}, {'Z', 0}}};
constexpr std::size_t kMostNumbers = 7;
using Numbers = std::array<double, kMostNumbers>;

const CommandRow* RowOf(QChar letter) {
  for (const CommandRow& row : kCommands) {
    if (QChar::fromLatin1(row.letter) == letter.toUpper()) return &row;
  }
  return nullptr;
}

// Letters and numbers one after the other. A number ends where a sign or a second point begins the
// next one.
class Scanner {
 public:
  explicit Scanner(QStringView text) : text_(text) {}

  bool AtEnd() {
    SkipSeparators();
    return text_.isEmpty();
  }
  bool AtLetter() { return !AtEnd() && text_.front().isLetter(); }
  QChar TakeLetter() {
    const QChar letter = text_.front();
    text_ = text_.mid(1);
    return letter;
  }
  std::optional<double> TakeNumber() {
    SkipSeparators();
    qsizetype length = 0;
    bool point = false;
    for (; length < text_.size(); ++length) {
      const QChar next = text_[length];
      const bool sign = length == 0 && (next == u'-' || next == u'+');
      const bool firstPoint = next == u'.' && !point;
      if (!next.isDigit() && !sign && !firstPoint) break;
      point = point || next == u'.';
    }
    bool valid = false;
    const double number = text_.left(length).toDouble(&valid);
    text_ = text_.mid(length);
    return valid ? std::optional(number) : std::nullopt;
  }

 private:
  void SkipSeparators() {
    while (!text_.isEmpty() && (text_.front().isSpace() || text_.front() == u',')) {
      text_ = text_.mid(1);
    }
  }

  QStringView text_;
};

// An ellipse through two points, told by its radii and by which of its four arcs is meant.
struct Arc {
  QPointF from;
  QPointF to;
  QSizeF radii;
  bool large;
  bool clockwise;  // on a screen, whose y axis points down
};

QPointF Scaled(const QPointF& point, const QSizeF& by) {
  return {point.x() * by.width(), point.y() * by.height()};
}

QPointF OnCircle(double angle) {
  return {std::cos(angle), std::sin(angle)};
}

// As curves of a quarter at most. In units of the radii the ellipse is a circle, whose centre lies
// on the perpendicular bisector of the chord. Radii that are too small for the chord grow until
// they fit. Angles grow clockwise.
void AppendArc(QPainterPath& path, const Arc& arc) {
  const QSizeF unit(1 / arc.radii.width(), 1 / arc.radii.height());
  const QPointF from = Scaled(arc.from, unit);
  const QPointF to = Scaled(arc.to, unit);
  const QPointF chord = to - from;
  const double half = std::hypot(chord.x(), chord.y()) / 2;
  if (half == 0) return;
  const double radius = std::max(1.0, half);
  const double height = std::sqrt(radius * radius - half * half) / (2 * half);
  const double side = arc.large == arc.clockwise ? -1 : 1;
  const QPointF centre = (from + to) / 2 + side * height * QPointF(-chord.y(), chord.x());
  double angle = std::atan2(from.y() - centre.y(), from.x() - centre.x());
  double sweep = std::atan2(to.y() - centre.y(), to.x() - centre.x()) - angle;
  if (arc.clockwise && sweep < 0) sweep += 2 * M_PI;
  if (!arc.clockwise && sweep > 0) sweep -= 2 * M_PI;

  const int steps = static_cast<int>(std::ceil(std::abs(sweep) / M_PI_2 - 1e-9));
  const double step = sweep / steps;
  const double handle = 4.0 / 3 * std::tan(step / 4);
  for (int i = 1; i <= steps; ++i, angle += step) {
    const QPointF start = OnCircle(angle);
    const QPointF end = OnCircle(angle + step);
    const QPointF first = start + handle * QPointF(-start.y(), start.x());
    const QPointF second = end - handle * QPointF(-end.y(), end.x());
    path.cubicTo(Scaled(centre + radius * first, arc.radii),
                 Scaled(centre + radius * second, arc.radii),
                 i == steps ? arc.to : Scaled(centre + radius * end, arc.radii));
  }
}

class PathBuilder {
 public:
  // False for an arc of a turned ellipse.
  bool Add(QChar letter, const Numbers& numbers) {
    origin_ = letter.isLower() ? path_.currentPosition() : QPointF();
    const QChar command = letter.toUpper();
    if (command == u'A') return AddArc(numbers);
    if (command == u'C' || command == u'S') {
      AddCurve(numbers, command == u'S');
    } else {
      AddLine(command, numbers);
      control_ = path_.currentPosition();
    }
    return true;
  }

  const QPainterPath& Path() const { return path_; }

 private:
  QPointF Point(const Numbers& numbers, std::size_t first) const {
    return origin_ + QPointF(numbers[first], numbers[first + 1]);
  }

  void AddLine(QChar command, const Numbers& numbers) {
    const QPointF now = path_.currentPosition();
    if (command == u'M') path_.moveTo(Point(numbers, 0));
    if (command == u'L') path_.lineTo(Point(numbers, 0));
    if (command == u'H') path_.lineTo(origin_.x() + numbers[0], now.y());
    if (command == u'V') path_.lineTo(now.x(), origin_.y() + numbers[0]);
    if (command == u'Z') path_.closeSubpath();
  }

  // A smooth curve goes on in the direction in which the last one ended.
  void AddCurve(const Numbers& numbers, bool smooth) {
    const QPointF first = smooth ? 2 * path_.currentPosition() - control_ : Point(numbers, 0);
    const std::size_t place = smooth ? 0 : 2;
    control_ = Point(numbers, place);
    path_.cubicTo(first, control_, Point(numbers, place + 2));
  }

  bool AddArc(const Numbers& numbers) {
    if (numbers[2] != 0) return false;
    AppendArc(path_, {path_.currentPosition(),
                      Point(numbers, 5),
                      {numbers[0], numbers[1]},
                      numbers[3] != 0,
                      numbers[4] != 0});
    control_ = path_.currentPosition();
    return true;
  }

  QPainterPath path_;
  QPointF origin_;   // of the command's numbers
  QPointF control_;  // of the last curve's end; the current position behind anything else
};

}  // namespace

std::optional<QPainterPath> ParsePathData(QStringView text) {
  Scanner scanner(text);
  PathBuilder builder;
  QChar letter;
  while (!scanner.AtEnd()) {
    // Numbers without a letter repeat the command; behind a move they are lines.
    if (scanner.AtLetter()) {
      letter = scanner.TakeLetter();
    } else if (letter.toUpper() == u'M') {
      letter = letter.isLower() ? u'l' : u'L';
    }
    const CommandRow* row = RowOf(letter);
    if (row == nullptr) return std::nullopt;
    Numbers numbers{};
    for (std::size_t i = 0; i < row->numbers; ++i) {
      const std::optional<double> number = scanner.TakeNumber();
      if (!number) return std::nullopt;
      numbers[i] = *number;
    }
    if (!builder.Add(letter, numbers)) return std::nullopt;
    if (row->numbers == 0 && !scanner.AtEnd() && !scanner.AtLetter()) return std::nullopt;
  }
  return builder.Path();
}

}  // namespace mortane
