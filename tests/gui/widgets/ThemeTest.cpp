#include "app/ApplyTheme.h"
#include "widgets/Theme.h"

#include <QApplication>
#include <QFontMetrics>
#include <QPalette>
#include <QPixmap>
#include <QPushButton>

#include "gui/support/Contrast.h"
#include "gui/support/TestWindow.h"
#include "widgets/Style.h"
#include "widgets/StyleProperties.h"

namespace mortane {
namespace {

QApplication& Application() {
  return *qobject_cast<QApplication*>(qApp);
}

using test::Contrast;

class ThemeIn : public ::testing::TestWithParam<Scheme> {
 protected:
  void SetUp() override { ApplyTheme(Application(), GetParam()); }
  void TearDown() override { ApplyTheme(Application(), Scheme::Light); }
};

TEST_P(ThemeIn, TextCanBeReadOnEveryBackground) {
  const QPalette palette = QApplication::palette();
  for (const auto background :
       {QPalette::Window, QPalette::Base, QPalette::AlternateBase, QPalette::Button})
    EXPECT_GE(Contrast(palette.color(QPalette::Text), palette.color(background)), 4.5)
        << background;
  for (const auto background : {QPalette::Window, QPalette::Base, QPalette::AlternateBase})
    EXPECT_GE(Contrast(palette.color(QPalette::PlaceholderText), palette.color(background)), 4.5)
        << background;
  EXPECT_GE(Contrast(palette.color(QPalette::HighlightedText), palette.color(QPalette::Highlight)),
            4.5);
  EXPECT_GE(Contrast(ToneColor(Tone::OnAmber), ToneColor(Tone::Amber)), 4.5);
  for (const auto background : {Tone::Rail, Tone::RailHover, Tone::RailSelected})
    EXPECT_GE(Contrast(ToneColor(Tone::RailText), ToneColor(background)), 4.5);
  EXPECT_GE(Contrast(ToneColor(Tone::RailResting), ToneColor(Tone::Rail)), 4.5);
  EXPECT_GE(Contrast(palette.color(QPalette::Text), ToneColor(Tone::RefusedBackground)), 4.5);
}

TEST_P(ThemeIn, LinesOfFieldsAndFocusStandOut) {
  const QPalette palette = QApplication::palette();
  EXPECT_GE(Contrast(palette.color(QPalette::Dark), palette.color(QPalette::Base)), 3.0);
  EXPECT_GE(Contrast(palette.color(QPalette::Highlight), palette.color(QPalette::Base)), 3.0);
  EXPECT_GE(Contrast(ToneColor(Tone::RefusedLine), ToneColor(Tone::RefusedBackground)), 3.0);
}

INSTANTIATE_TEST_SUITE_P(Schemes, ThemeIn, ::testing::Values(Scheme::Light, Scheme::Dark),
                         [](const auto& row) {
                           return row.param == Scheme::Dark ? "Dark" : "Light";
                         });

struct SystemRow {
  const char* asked;  // null for a variable that is not set
  int window;         // lightness
  int text;
  Scheme scheme;
};

TEST(Theme, IsThatOfTheVariableOrElseOfTheSystemsColours) {
  const bool wasSet = qEnvironmentVariableIsSet("MORTANE_SCHEME");
  const QByteArray was = qgetenv("MORTANE_SCHEME");
  for (const SystemRow& row :
       {SystemRow{nullptr, 200, 20, Scheme::Light}, SystemRow{nullptr, 20, 200, Scheme::Dark},
        SystemRow{nullptr, 100, 100, Scheme::Light}, SystemRow{nullptr, 100, 101, Scheme::Dark},
        SystemRow{"dark", 200, 20, Scheme::Dark}, SystemRow{"light", 20, 200, Scheme::Light},
        SystemRow{"other", 20, 200, Scheme::Dark}, SystemRow{"", 200, 20, Scheme::Light}}) {
    if (row.asked != nullptr) {
      qputenv("MORTANE_SCHEME", row.asked);
    } else {
      qunsetenv("MORTANE_SCHEME");
    }
    QPalette system;
    system.setColor(QPalette::Window, QColor::fromHsl(0, 0, row.window));
    system.setColor(QPalette::WindowText, QColor::fromHsl(0, 0, row.text));
    QApplication::setPalette(system);
    EXPECT_EQ(SystemScheme(), row.scheme) << row.window << ' ' << row.text;
  }
  if (wasSet) {
    qputenv("MORTANE_SCHEME", was);
  } else {
    qunsetenv("MORTANE_SCHEME");
  }
  ApplyTheme(Application(), Scheme::Light);
}

TEST(Theme, SchemesDifferAndAmberDoesNot) {
  ApplyTheme(Application(), Scheme::Dark);
  EXPECT_EQ(CurrentScheme(), Scheme::Dark);
  const QColor window = QApplication::palette().color(QPalette::Window);
  const QColor amber = ToneColor(Tone::Amber);
  ApplyTheme(Application(), Scheme::Light);
  EXPECT_NE(QApplication::palette().color(QPalette::Window), window);
  EXPECT_EQ(ToneColor(Tone::Amber), amber);
  EXPECT_EQ(amber, QColor(255, 204, 0));
}

TEST(Theme, TheEnvironmentChoosesTheScheme) {
  qputenv("MORTANE_SCHEME", "dark");
  ApplyTheme(Application());
  EXPECT_EQ(CurrentScheme(), Scheme::Dark);
  qputenv("MORTANE_SCHEME", "light");
  ApplyTheme(Application());
  EXPECT_EQ(CurrentScheme(), Scheme::Light);
  qunsetenv("MORTANE_SCHEME");
}

TEST(Theme, HeightsFollowALargeFont) {
  QFont font = QApplication::font();
  font.setPixelSize(12);
  EXPECT_EQ(GridHeight(30, QFontMetrics(font)), 30);
  font.setPixelSize(60);
  EXPECT_EQ(GridHeight(30, QFontMetrics(font)), QFontMetrics(font).height() + 10);
}

TEST(Theme, AButtonWithAPictureAloneIsNearlySquare) {
  QPixmap picture(20, 20);
  picture.fill(Qt::black);
  QPushButton button;
  button.setIcon(picture);
  button.setIconSize(picture.size());
  const int height = GridHeight(grid::kFieldHeight, button);
  EXPECT_EQ(button.sizeHint(), QSize(height + grid::kUnit, height));
  EXPECT_EQ(button.minimumSizeHint(), button.sizeHint());
  button.setText("New");
  EXPECT_GE(button.sizeHint().width(), 20 + button.fontMetrics().horizontalAdvance("New") + 36);
}

TEST(Theme, FontsKeepTheFamilyOfTheSystemAndTheScale) {
  const QFont base = QApplication::font();
  EXPECT_EQ(TitleFont().family(), base.family());
  EXPECT_NEAR(TitleFont().pointSizeF(), base.pointSizeF() * 1.5, 0.01);
  EXPECT_NEAR(CaptionFont().pointSizeF(), base.pointSizeF() * 0.92, 0.01);
  EXPECT_NEAR(FixedFont().pointSizeF(), base.pointSizeF(), 0.01);
}

TEST(Theme, ARefusedFieldIsDrawnWithItsOwnLine) {
  QLineEdit field;
  field.resize(120, 30);
  field.setProperty(kRefusedProperty, true);
  EXPECT_EQ(field.grab().toImage().pixelColor(60, 0), ToneColor(Tone::RefusedLine));
}

TEST(StyleHints, AreThoseOfQuietControls) {
  const Style own;
  const QStyle& style = own;
  for (const QStyle::StyleHint hint :
       {QStyle::SH_EtchDisabledText, QStyle::SH_DialogButtonBox_ButtonsHaveIcons,
        QStyle::SH_ComboBox_Popup, QStyle::SH_Widget_Animation_Duration,
        QStyle::SH_ItemView_ActivateItemOnSingleClick}) {
    EXPECT_EQ(style.styleHint(hint), 0) << hint;
  }
  EXPECT_EQ(style.styleHint(QStyle::SH_ItemView_ShowDecorationSelected), 1);
}

TEST(MainButton, IsFilledUnlikeAnOrdinaryOne) {
  QPushButton plain("Send");
  QPushButton main("Send");
  main.setProperty(kMainProperty, true);
  for (QPushButton* button : {&plain, &main}) button->resize(120, 40);
  EXPECT_NE(plain.grab().toImage().pixelColor(10, 20), main.grab().toImage().pixelColor(10, 20));
}

}  // namespace
}  // namespace mortane
