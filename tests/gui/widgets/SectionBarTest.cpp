#include "widgets/SectionBar.h"

#include "gui/support/EventLoop.h"
#include "gui/support/Face.h"
#include "gui/support/PaintCount.h"
#include "gui/support/TestWindow.h"
#include "widgets/Theme.h"

namespace mortane {
namespace {

using Rows = std::vector<int>;

class SectionBarTest : public ::testing::Test {
 protected:
  void SetUp() override {
    before = window.Add<QLineEdit>();
    bar = window.Add<SectionBar>();
    bar->setObjectName("optSettings");
    for (const char* text : {"Nosepiece", "Optional Obj.", "Limit Control"}) bar->AddOption(text);
    after = window.Add<QLineEdit>();
    window.Show();
  }

  QColor BackgroundOf(int index) {
    const QImage picture = bar->option(index)->grab().toImage();
    return picture.pixelColor(12, 5);
  }

  TestWindow window;
  QLineEdit* before = nullptr;
  SectionBar* bar = nullptr;
  QLineEdit* after = nullptr;
};

TEST_F(SectionBarTest, ProgramRaisesAClickForANewSelectionOnlyAndAUserAlways) {
  QSignalSpy clicks(bar, &SectionBar::selectionChanged);
  bar->select(0);
  bar->select(0);
  QTest::mouseClick(bar->option(0), Qt::LeftButton);
  QTest::mouseClick(bar->option(1), Qt::LeftButton);
  EXPECT_EQ(Indices(clicks), (Rows{0, 0, 1}));
}

TEST_F(SectionBarTest, TheChosenOptionIsAmberAndTheOthersAreNot) {
  bar->select(1);
  EXPECT_EQ(BackgroundOf(1), ToneColor(Tone::Amber));
  EXPECT_EQ(BackgroundOf(0), bar->palette().color(QPalette::Button));
  EXPECT_EQ(BackgroundOf(2), bar->palette().color(QPalette::Button));
}

TEST_F(SectionBarTest, EachOptionHasTheLineOfItsGround) {
  bar->select(1);
  const auto lineOf = [this](int index) {
    const QImage picture = bar->option(index)->grab().toImage();
    return picture.pixel(picture.width() / 2, 0);
  };
  EXPECT_EQ(lineOf(1), ToneColor(Tone::Amber).darker(118).rgb());
  EXPECT_EQ(lineOf(0), bar->palette().color(QPalette::Mid).rgb());
}

TEST_F(SectionBarTest, ABlueOptionIsAsHighAsAFieldAndOthersAreAsHighAsTheBar) {
  const SectionOption blue("A", nullptr, ChosenLook::Blue);
  EXPECT_EQ(blue.sizeHint().height(), GridHeight(grid::kFieldHeight, blue));
  EXPECT_EQ(bar->option(0)->sizeHint().height(), GridHeight(grid::kSectionHeight, blue));
  EXPECT_NE(grid::kFieldHeight, grid::kSectionHeight);
}

TEST_F(SectionBarTest, ABlueOptionHasTheTextOfItsGround) {
  SectionOption option("A", nullptr, ChosenLook::Blue);
  const auto shows = [&option](QPalette::ColorRole role) {
    const QImage picture = option.grab().toImage();
    const QRgb colour = option.palette().color(role).rgb();
    for (int y = 0; y < picture.height(); ++y) {
      for (int x = 0; x < picture.width(); ++x) {
        if (picture.pixel(x, y) == colour) return true;
      }
    }
    return false;
  };
  EXPECT_TRUE(shows(QPalette::ButtonText));
  option.setChecked(true);
  EXPECT_TRUE(shows(QPalette::HighlightedText));
  EXPECT_FALSE(shows(QPalette::ButtonText));
}

// A rounded corner leaves its outermost pixels to the ground.
TEST_F(SectionBarTest, EachRowIsRoundedAtItsEnds) {
  const auto square = [this](int index, bool right) {
    const QImage picture = bar->option(index)->grab().toImage();
    return picture.pixel(right ? picture.width() - 2 : 1, 0) ==
           bar->palette().color(QPalette::Mid).rgb();
  };
  bar->select(-1);
  const auto corners = [&] {
    QString shape;
    for (int i = 0; i < 3; ++i) {
      shape += square(i, false) ? u'[' : u'(';
      shape += square(i, true) ? u']' : u')';
    }
    return shape;
  };
  EXPECT_EQ(corners(), "(][][)");
  bar->setFixedWidth(bar->option(0)->minimumSizeHint().width() +
                     bar->option(1)->minimumSizeHint().width());
  QApplication::processEvents();
  EXPECT_EQ(corners(), "(][)()");
}

TEST_F(SectionBarTest, AnOptionThatBecomesAnEndIsPaintedAtOnce) {
  auto* option = static_cast<SectionOption*>(bar->option(1));
  QApplication::processEvents();
  test::PaintCount paints(*option);
  option->SetEnds(true, true);
  QApplication::processEvents();
  EXPECT_GT(paints.count, 0);
}

TEST_F(SectionBarTest, TheChosenOptionStaysAmberWhileTheWindowIsDisabled) {
  bar->select(1);
  window.widget().setEnabled(false);
  EXPECT_EQ(BackgroundOf(1), ToneColor(Tone::Amber));
  EXPECT_NE(BackgroundOf(0), ToneColor(Tone::Amber));
  window.widget().setEnabled(true);
  bar->SetOptionEnabled(1, false);
  EXPECT_NE(BackgroundOf(1), ToneColor(Tone::Amber)) << "an option that is not offered";
}

TEST_F(SectionBarTest, HomeAndEndChooseTheEndsThatCanBeUsed) {
  bar->select(1);
  bar->option(1)->setFocus();
  QSignalSpy selections(bar, &SectionBar::selectionChanged);
  QTest::keyClick(bar->option(1), Qt::Key_End);
  QTest::keyClick(bar->option(2), Qt::Key_End);
  bar->SetOptionVisible(0, false);
  QTest::keyClick(bar->option(2), Qt::Key_Home);
  EXPECT_TRUE(bar->option(1)->hasFocus());
  bar->SetOptionEnabled(2, false);
  QTest::keyClick(bar->option(1), Qt::Key_End);
  EXPECT_EQ(Indices(selections), (Rows{2, 1}));
}

TEST_F(SectionBarTest, ADisabledOptionCannotBeChosen) {
  bar->select(0);
  bar->SetOptionEnabled(2, false);
  QSignalSpy clicks(bar, &SectionBar::selectionChanged);
  QTest::mouseClick(bar->option(2), Qt::LeftButton);
  EXPECT_EQ(bar->selected(), 0);
  EXPECT_EQ(clicks.count(), 0);
}

TEST_F(SectionBarTest, AHiddenOptionClosesUp) {
  const int second = bar->option(1)->x();
  bar->SetOptionVisible(0, false);
  test::DeliverAll();
  EXPECT_LT(bar->option(1)->x(), second);
  EXPECT_EQ(bar->option(1)->x(), 0);
}

TEST_F(SectionBarTest, IsOneTabStopWithArrowsInside) {
  bar->select(1);
  before->setFocus();
  QTest::keyClick(before, Qt::Key_Tab);
  ASSERT_TRUE(bar->option(1)->hasFocus());
  QSignalSpy clicks(bar, &SectionBar::selectionChanged);
  QTest::keyClick(bar->option(1), Qt::Key_Right);
  EXPECT_EQ(Indices(clicks), (Rows{2}));
  EXPECT_TRUE(bar->option(2)->hasFocus());
  QTest::keyClick(bar->option(2), Qt::Key_Tab);
  EXPECT_TRUE(after->hasFocus());
}

TEST_F(SectionBarTest, AnOptionIsNeverNarrowerThanItsTextAndStandsInTheNextRowInstead) {
  int oneRow = 0;
  int widest = 0;
  for (int i = 0; i < bar->count(); ++i) {
    const int least = bar->option(i)->minimumSizeHint().width();
    EXPECT_GT(least, QFontMetrics(BoldFont()).horizontalAdvance(bar->option(i)->text()));
    oneRow += least;
    widest = std::max(widest, least);
  }
  EXPECT_EQ(bar->minimumSizeHint().width(), widest);
  const int high = bar->heightForWidth(oneRow);
  EXPECT_EQ(high, bar->sizeHint().height());
  for (const int width : {oneRow, oneRow - 1, widest}) {
    const int height = bar->heightForWidth(width);
    if (width < oneRow) {
      EXPECT_GT(height, high) << width;
    }
    bar->setFixedSize(width, height);
    QApplication::processEvents();
    for (int i = 0; i < bar->count(); ++i) {
      EXPECT_GE(bar->option(i)->width(), bar->option(i)->minimumSizeHint().width()) << width;
      EXPECT_TRUE(bar->rect().contains(bar->option(i)->geometry())) << width;
    }
    EXPECT_EQ(bar->option(1)->y() > bar->option(0)->y(), width == widest) << width;
    EXPECT_EQ(bar->option(2)->y() > bar->option(0)->y(), width < oneRow) << width;
  }
}

TEST_F(SectionBarTest, ArrowsGoFromTheEndOfARowToTheNextOne) {
  const int width =
      bar->option(0)->minimumSizeHint().width() + bar->option(1)->minimumSizeHint().width() + 4;
  bar->setFixedSize(width, bar->heightForWidth(width));
  QApplication::processEvents();
  ASSERT_EQ(bar->option(1)->y(), bar->option(0)->y());
  ASSERT_GT(bar->option(2)->y(), bar->option(0)->y());
  bar->select(0);
  bar->option(0)->setFocus();
  const auto press = [this](Qt::Key key) {
    QTest::keyClick(QApplication::focusWidget(), key);
    return bar->selected();
  };
  EXPECT_EQ(press(Qt::Key_Right), 1);
  EXPECT_EQ(press(Qt::Key_Right), 2);
  EXPECT_EQ(press(Qt::Key_Right), 2) << "the last one";
  EXPECT_EQ(press(Qt::Key_Left), 1);
  EXPECT_EQ(press(Qt::Key_Left), 0);
  EXPECT_EQ(press(Qt::Key_Down), 2) << "the one below";
}

TEST(EmptySectionBar, TakesNoRoom) {
  const SectionBar bar;
  EXPECT_EQ(bar.sizeHint(), QSize(0, 0));
  EXPECT_EQ(bar.minimumSizeHint(), QSize(0, 0));
  EXPECT_EQ(bar.heightForWidth(100), 0);
}

TEST_F(SectionBarTest, OptionsBearTheNameOfTheBarAndTheirText) {
  EXPECT_EQ(bar->option(2)->objectName(), "optSettings_2");
  EXPECT_EQ(bar->option(2)->accessibleName(), "Limit Control");
}

struct OptionFace {
  const char* what;
  test::Use use;
  bool chosen;
  bool pending;
  test::Face amber;
  test::Face blue;
};

// The first of several, without its text.
TEST(SectionOptionFace, TellsEachState) {
  using test::Use;
  for (const OptionFace& row : {
           OptionFace{"at rest",
                      Use::Rest,
                      false,
                      false,
                      {"Mid 1, Button 58, Mid 1", "Mid 1, Button 28, Mid 1"},
                      {"Mid 1, Button 58, Mid 1", "Mid 1, Button 28, Mid 1"}},
           OptionFace{"hovered",
                      Use::Hovered,
                      false,
                      false,
                      {"Mid 1, Midlight 58, Mid 1", "Mid 1, Midlight 28, Mid 1"},
                      {"Mid 1, Midlight 58, Mid 1", "Mid 1, Midlight 28, Mid 1"}},
           OptionFace{"focused",
                      Use::Focused,
                      false,
                      false,
                      {"Mid 1, Highlight 2, Button 54, Highlight 2, Mid 1",
                       "Mid 1, Highlight 2, Button 24, Highlight 2, Mid 1"},
                      {"Mid 1, Highlight 2, Button 54, Highlight 2, Mid 1",
                       "Mid 1, Highlight 2, Button 24, Highlight 2, Mid 1"}},
           OptionFace{"disabled",
                      Use::Disabled,
                      false,
                      false,
                      {"disabled Mid 1, disabled Button 58, disabled Mid 1",
                       "disabled Mid 1, disabled Button 28, disabled Mid 1"},
                      {"disabled Mid 1, disabled Button 58, disabled Mid 1",
                       "disabled Mid 1, disabled Button 28, disabled Mid 1"}},
           OptionFace{"chosen",
                      Use::Rest,
                      true,
                      false,
                      {"line 1, Amber 58, line 1", "line 1, Amber 28, line 1"},
                      {"line 1, Highlight 58, line 1", "line 1, Highlight 28, line 1"}},
           OptionFace{"chosen and hovered",
                      Use::Hovered,
                      true,
                      false,
                      {"line 1, Amber 58, line 1", "line 1, Amber 28, line 1"},
                      {"line 1, Highlight 58, line 1", "line 1, Highlight 28, line 1"}},
           OptionFace{"chosen and focused",
                      Use::Focused,
                      true,
                      false,
                      {"line 1, Highlight 2, Amber 54, Highlight 2, line 1",
                       "line 1, Highlight 2, Amber 24, Highlight 2, line 1"},
                      {"line 1, HighlightedText 2, Highlight 54, HighlightedText 2, line 1",
                       "line 1, HighlightedText 2, Highlight 24, HighlightedText 2, line 1"}},
           OptionFace{"chosen and disabled",
                      Use::Disabled,
                      true,
                      false,
                      {"disabled Mid 1, disabled Button 58, disabled Mid 1",
                       "disabled Mid 1, disabled Button 28, disabled Mid 1"},
                      {"disabled Mid 1, disabled Button 58, disabled Mid 1",
                       "disabled Mid 1, disabled Button 28, disabled Mid 1"}},
           OptionFace{
               "not sent",
               Use::Rest,
               false,
               true,
               {"Mid 1, Button 31, ~ 1, Link 8, ~ 1, Button 17, Mid 1", "Mid 1, Button 28, Mid 1"},
               {"Mid 1, Button 31, ~ 1, Link 8, ~ 1, Button 17, Mid 1", "Mid 1, Button 28, Mid 1"}},
           OptionFace{"chosen and not sent",
                      Use::Rest,
                      true,
                      true,
                      {"line 1, Amber 31, ~ 1, OnAmber 8, ~ 1, Amber 17, line 1",
                       "line 1, Amber 28, line 1"},
                      {"line 1, Highlight 31, ~ 1, HighlightedText 8, ~ 1, Highlight 17, line 1",
                       "line 1, Highlight 28, line 1"}},
       }) {
    for (const ChosenLook look : {ChosenLook::Amber, ChosenLook::Blue}) {
      SectionOption option({}, nullptr, look);
      option.SetEnds(true, false);
      option.setChecked(row.chosen);
      option.SetPending(row.pending);
      const QImage picture = test::PictureOf(option, {60, 30}, row.use);
      const QColor mark = look == ChosenLook::Amber
                              ? ToneColor(Tone::Amber)
                              : option.palette().color(QPalette::Active, QPalette::Highlight);
      const std::vector<test::NamedColor> names{{"line", mark.darker(118)}};
      const test::Face shown{test::RowOf(picture, names), test::ColumnOf(picture, 20, names)};
      EXPECT_EQ(shown, look == ChosenLook::Amber ? row.amber : row.blue) << row.what;
    }
  }
}

TEST_F(SectionBarTest, OptionsStandSideBySideAndGiveWayAlikeBesideTheirTexts) {
  QVector<int> texts;
  int all = 0;
  for (int i = 0; i < 3; ++i) {
    texts.append(QFontMetrics(BoldFont()).horizontalAdvance(bar->option(i)->text()));
    all += texts[i];
    EXPECT_EQ(bar->option(i)->sizeHint().width(), texts[i] + 2 * 18);
    EXPECT_EQ(bar->option(i)->minimumSizeHint().width(), texts[i] + 8 + 12);
  }
  EXPECT_EQ(bar->sizeHint(), QSize(all + 3 * 36, 34));
  for (const int beside : {20, 28, 36, 60}) {  // of each text
    bar->setFixedSize(all + 3 * beside, 34);
    QApplication::processEvents();
    int left = 0;
    for (int i = 0; i < 3; ++i) {
      EXPECT_EQ(bar->option(i)->geometry(), QRect(left, 0, texts[i] + qMin(beside, 36), 34));
      left = bar->option(i)->geometry().right() + 1;
    }
  }
  const int wide =
      bar->option(0)->minimumSizeHint().width() + bar->option(1)->minimumSizeHint().width();
  EXPECT_EQ(bar->heightForWidth(wide), 34 + 4 + 34);
  EXPECT_EQ(bar->heightForWidth(10), 34 + 4 + 34 + 4 + 34) << "too narrow for any of them";
  bar->setFixedSize(wide, 72);
  QApplication::processEvents();
  EXPECT_EQ(bar->option(1)->y(), 0);
  EXPECT_EQ(bar->option(2)->pos(), QPoint(0, 38));
}

}  // namespace
}  // namespace mortane
