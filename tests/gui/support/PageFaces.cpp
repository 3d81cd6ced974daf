// What every page looks like in windows and fonts of many sizes, and in both palettes.
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QScrollArea>
#include <algorithm>
#include <map>
#include <span>

#include "app/ApplyTheme.h"
#include "drawings/MarkButton.h"
#include "gui/support/Contrast.h"
#include "gui/support/FontScope.h"
#include "gui/support/PageDrill.h"
#include "gui/support/PageLayout.h"
#include "support/Sample.h"
#include "widgets/Theme.h"

namespace mortane::test {
namespace {

// The rooms of windows of 1152 x 740, 1024 x 640 and 800 x 500 with the usual font, which is of 9
// points. In larger fonts the window leaves less; the last one is that of the wizard's window of
// 800 x 500 with 18 points.
constexpr QSize kDesignRoom{1048, 560};
constexpr QSize kNarrowRoom{920, 460};
constexpr QSize kSmallRoom{696, 300};
constexpr QSize kLargeFontsRoom{620, 280};

struct Face {
  double points;
  double letterSpacing;  // per cent of the font's own
  std::array<QSize, 3> rooms;
  Tried tried = Tried::Always;
};

constexpr std::array kFaces{
    Face{9, 100, {kDesignRoom, kNarrowRoom, kSmallRoom}},
    Face{9, 120, {kDesignRoom, kNarrowRoom, kLargeFontsRoom}},
    Face{10, 100, {kDesignRoom, kNarrowRoom, kSmallRoom}, Tried::WithAllCases},
    Face{12, 100, {kDesignRoom, kNarrowRoom, kSmallRoom}},
    Face{14, 100, {kDesignRoom, kNarrowRoom, kLargeFontsRoom}, Tried::WithAllCases},
    Face{16, 100, {kDesignRoom, kNarrowRoom, kLargeFontsRoom}, Tried::WithAllCases},
    Face{18, 100, {kDesignRoom, kNarrowRoom, kLargeFontsRoom}},
};

QFont FontFor(const Face& face) {
  QFont font = FontOf(face.points);
  font.setLetterSpacing(QFont::PercentageSpacing, face.letterSpacing);
  return font;
}

class SchemeScope {
 public:
  explicit SchemeScope(Scheme scheme) { Apply(scheme); }
  ~SchemeScope() { Apply(Scheme::Light); }
  SchemeScope(const SchemeScope&) = delete;
  SchemeScope& operator=(const SchemeScope&) = delete;

 private:
  static void Apply(Scheme scheme) { ApplyTheme(*qobject_cast<QApplication*>(qApp), scheme); }
};

// In pixels of 32 bits.
QImage PictureOf(PageWindow& rig, const QWidget& control) {
  QApplication::processEvents();
  const QPoint corner = control.mapTo(&rig.window(), QPoint());
  const QImage picture = rig.window().grab(QRect(corner, control.size())).toImage();
  return picture.convertToFormat(QImage::Format_RGB32);
}

std::span<const QRgb> LineOf(const QImage& picture, int y) {
  return {reinterpret_cast<const QRgb*>(picture.constScanLine(y)),
          static_cast<std::size_t>(picture.width())};
}

// Pixels that take the colour of the focus.
int NewlyColoured(const QImage& before, const QImage& after, const QColor& focus) {
  const QRgb colour = focus.rgb();
  int count = 0;
  for (int y = 0; y < after.height(); ++y) {
    const auto was = LineOf(before, y);
    const auto is = LineOf(after, y);
    for (std::size_t x = 0; x < is.size(); ++x)
      count += is[x] == colour && was[x] != colour ? 1 : 0;
  }
  return count;
}

QColor MostFrequentColour(const QImage& picture) {
  std::map<QRgb, std::ptrdiff_t> counts;
  for (int y = 0; y < picture.height(); ++y) {
    const auto line = LineOf(picture, y);
    for (auto from = line.begin(); from != line.end();) {
      const auto to = std::find_if(from, line.end(), [&](QRgb pixel) { return pixel != *from; });
      counts[*from] += to - from;
      from = to;
    }
  }
  const auto most =
      std::max_element(counts.begin(), counts.end(),
                       [](const auto& a, const auto& b) { return a.second < b.second; });
  return QColor(most->first);
}

// The line of the focus is white on the dark plates of marks and on a fill in Highlight.
QColor FocusColour(const QWidget& control, const QImage& before) {
  if (qobject_cast<const MarkButton*>(&control) != nullptr) return ToneColor(Tone::RailText);
  const QPalette palette = QApplication::palette();
  const QColor highlight = palette.color(QPalette::Highlight);
  const bool onHighlight = MostFrequentColour(before) == highlight;
  return onHighlight ? palette.color(QPalette::HighlightedText) : highlight;
}

bool ShowsText(const QWidget& control) {
  if (const auto* label = qobject_cast<const QLabel*>(&control)) return !label->text().isEmpty();
  return qobject_cast<const QLineEdit*>(&control) != nullptr ||
         qobject_cast<const QRadioButton*>(&control) != nullptr;
}

}  // namespace

// With one scroll bar at most, which is the page's own and stands upright.
TEST_P(PageDrill, ShowsAllControlsWholeAndApart) {
  const std::vector<std::string> none;
  for (const Face& face : RowsToTry(kFaces)) {
    const FontScope font(FontFor(face));
    const auto made = MakeRig();
    PageWindow& rig = *made;
    Page& page = ShowOn(rig);
    QScrollArea window;  // as the program's, where a page that is too high is scrolled
    window.setWidgetResizable(true);
    window.setWidget(&page);
    page.show();
    window.show();
    for (const QSize& room : face.rooms) {
      window.resize(room);
      ComeToRest();
      const std::string where = std::to_string(face.points) + " " +
                                std::to_string(face.letterSpacing) + " " +
                                std::to_string(room.width());
      EXPECT_EQ(FaultsOfSight(window), none) << where;
    }
  }
}

TEST_P(PageDrill, IsNoWiderThanTheNarrowestWindow) {
  const auto made = MakeRig();
  PageWindow& rig = *made;
  EXPECT_LE(ShowOn(rig).minimumSizeHint().width(), kSmallRoom.width());
}

TEST_P(PageDrill, EveryStopOfTheTabKeyShowsItsFocus) {
  constexpr int kLeastPixels = 60;
  for (const Scheme scheme : {Scheme::Light, Scheme::Dark}) {
    const SchemeScope scope(scheme);
    const auto made = MakeRig();
    PageWindow& rig = *made;
    ShowOn(rig);
    for (const std::string& stop : rig.TabOrder()) {
      QWidget& control = rig.Find(stop);
      rig.elsewhere().setFocus();
      const QImage before = PictureOf(rig, control);
      const QColor focus = FocusColour(control, before);
      control.setFocus();
      EXPECT_GE(NewlyColoured(before, PictureOf(rig, control), focus), kLeastPixels) << stop;
    }
  }
}

TEST_P(PageDrill, TextCanBeReadOnWhatItStandsOn) {
  for (const Scheme scheme : {Scheme::Light, Scheme::Dark}) {
    const SchemeScope scope(scheme);
    const auto made = MakeRig();
    PageWindow& rig = *made;
    const Page& page = ShowOn(rig);
    for (const QWidget* control : page.findChildren<QWidget*>()) {
      if (!control->isVisible() || !control->isEnabled() || !ShowsText(*control)) continue;
      const QColor text = control->palette().color(control->foregroundRole());
      EXPECT_GE(Contrast(text, MostFrequentColour(PictureOf(rig, *control))), 4.5)
          << control->objectName().toStdString();
    }
  }
}

}  // namespace mortane::test
