// The help line: what it says by page and tab, how it is told to screen readers, and its room.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QImage>
#include <QLabel>
#include <algorithm>
#include <vector>

#include "WizardRig.h"
#include "condensers/CondenserSettingsCtl.h"
#include "filters/FilterQubeSettingsCtl.h"
#include "interlocks/InterlockSettingsCtl.h"
#include "objectives/ObjectiveSettingsCtl.h"
#include "widgets/SectionBar.h"
#include "widgets/Theme.h"
#include "wizard/HelpLine.h"

namespace mortane::test {

using namespace Qt::StringLiterals;
namespace {

struct HelpRow {
  int step;
  ContainerPage* (*page)(SadrelMainForm&);
  std::vector<const char*> texts;
};

template <auto Member>
ContainerPage* PageOf(SadrelMainForm& form) {
  return form.*Member;
}

class TabHelp : public testing::TestWithParam<HelpRow> {};

TEST_P(TabHelp, FollowsTheClicksOfTheTabs) {
  WizardRig rig(benches::Named("Harbour"));
  rig.Start();
  rig.form->OnItemChanged(GetParam().step - kFirstItem, true);
  rig.form->optMenu[static_cast<std::size_t>(GetParam().step)]->setChecked(true);
  ASSERT_EQ(rig.form->currentStep, GetParam().step);
  ContainerPage& page = *GetParam().page(*rig.form);
  EXPECT_EQ(page.CurrentItem(), 0);
  EXPECT_EQ(rig.form->LabelHelp->text(), GetParam().texts[0]);
  for (std::size_t tab : {1U, 0U}) {
    QTest::mouseClick(page.sections()->option(static_cast<int>(tab)), Qt::LeftButton);
    EXPECT_EQ(rig.form->LabelHelp->text(), GetParam().texts[tab]) << tab;
  }
  for (std::size_t tab = 0; tab < GetParam().texts.size(); ++tab) {
    page.sections()->select(static_cast<int>(tab));
    EXPECT_EQ(rig.form->LabelHelp->text(), GetParam().texts[tab]) << tab;
  }
}

INSTANTIATE_TEST_SUITE_P(
    Pages, TabHelp,
    testing::Values(
        HelpRow{2,
                PageOf<&SadrelMainForm::ObjectiveSettingsCtl1>,
                {"Click Address Number Tab and Select Series and Description from the list.",
                 "Click Number Tab and Input  Objective Name, W.D., N.A. and select Series, Type "
                 "and Mag from the lists.",
                 "Set the Limit Controls."}},
        HelpRow{3,
                PageOf<&SadrelMainForm::FilterQubeSettingsCtl1>,
                {"Click Address Number Tab and Select Filter Cube from the List.",
                 "Click Number Tab, Input Filter Cube Name and Select Exciter / Dichroic / Barrier "
                 "from the list.",
                 "Input Exciter / Dichroic / Barrier Name."}},
        HelpRow{4,
                PageOf<&SadrelMainForm::CondenserSettingsCtl1>,
                {"Select Condenser Module of Each Address from the List.",
                 "Input Name of Optional Condenser Module."}},
        HelpRow{6,
                PageOf<&SadrelMainForm::InterlockSettingsCtl1>,
                {"Set whether each accessory is interlocked when Observation Method is changed.",
                 "Set whether each accessory is interlocked when each of Nosepiece / LightPath / "
                 "Optical Zoom is changed.",
                 "Set the compensation on the proper value. The proper value is calculated using "
                 "information such as objective N.A and condenser focal length."}}),
    [](const auto& row) { return "Step" + std::to_string(row.param.step); });

TEST(Help, IsThatOfTheTabTheLoadingSelects) {
  WizardRig rig(benches::Named("Harbour"));
  rig.Start();
  rig.form->optMenu[2]->setChecked(true);
  QTest::mouseClick(rig.form->ObjectiveSettingsCtl1->sections()->option(2), Qt::LeftButton);
  ASSERT_EQ(rig.form->LabelHelp->text(), "Set the Limit Controls.");
  QTest::mouseClick(rig.form->ButtonPrevious, Qt::LeftButton);
  QTest::mouseClick(rig.form->ButtonNext, Qt::LeftButton);
  EXPECT_EQ(rig.form->ObjectiveSettingsCtl1->CurrentItem(), 0);
  EXPECT_EQ(rig.form->LabelHelp->text(),
            "Click Address Number Tab and Select Series and Description from the list.");
}

TEST(Help, StaysAsItIsForATabWithoutAText) {
  WizardRig rig(benches::Named("Harbour"));
  rig.Start();
  rig.form->optMenu[4]->setChecked(true);
  CondenserSettingsCtl& page = *rig.form->CondenserSettingsCtl1;
  Q_EMIT page.Change(1);
  const QString before = rig.form->LabelHelp->text();
  ASSERT_EQ(before, "Input Name of Optional Condenser Module.");
  for (const int tab : {2, 3, -1}) {
    Q_EMIT page.Change(tab);
    EXPECT_EQ(rig.form->LabelHelp->text(), before) << tab;
  }
}

// A line that keeps what it announces.
class HeardLine : public HelpLine {
 public:
  Lines heard;

 protected:
  void Announce(QAccessibleEvent& changed) override {
    HelpLine::Announce(changed);
    EXPECT_EQ(changed.type(), QAccessible::Alert);
    EXPECT_EQ(changed.object(), LabelHelp);
    heard.push_back(LabelHelp->text().toStdString());
  }
};

TEST(Help, IsAnnouncedWhenItChangesAndOnlyThen) {
  HeardLine line;
  for (const char* text : {"a", "a", "b", "a"}) line.Show(text);
  EXPECT_EQ(line.heard, (Lines{"a", "b", "a"}));
}

TEST(HelpRoom, HoldsTwoLinesAtLeast) {
  HelpLine line;
  line.SetTexts({"short"});
  line.resize(800, 10);
  EXPECT_EQ(line.height(), 2 * line.LabelHelp->fontMetrics().lineSpacing() + 12);
}

TEST(HelpRoom, IsThatOfTheLongestTextAtItsWidth) {
  const QString text = u"word "_s.repeated(60);
  HelpLine line;
  line.SetTexts({"short", text});
  line.show();
  for (const int width : {300, 600, 3000}) {
    line.resize(width, 10);
    QApplication::processEvents();
    line.Show("short");
    const int before = line.height();
    line.Show(text);
    EXPECT_EQ(line.height(), before) << "a new text moves nothing";
    EXPECT_LE(line.LabelHelp->heightForWidth(line.LabelHelp->width()), line.LabelHelp->height())
        << width;
  }
}

TEST(HelpRoom, GrowsWithTheFont) {
  HelpLine line;
  line.SetTexts({"short"});
  line.resize(800, 10);
  const int before = line.height();
  QFont large = line.font();
  large.setPointSizeF(large.pointSizeF() * 2);
  line.setFont(large);
  EXPECT_GT(line.height(), before);
}

TEST(HelpRoom, IsMeasuredAnewWhenFontOrStyleChangeAndNotOtherwise) {
  struct Row {
    QEvent::Type type;
    bool grows;
  };
  for (const Row& row : {Row{QEvent::FontChange, true}, Row{QEvent::StyleChange, true},
                         Row{QEvent::PaletteChange, false}}) {
    HelpLine line;
    line.SetTexts({"short"});
    line.resize(800, 10);
    const int before = line.height();
    QFont large = line.font();
    large.setPointSizeF(large.pointSizeF() * 2);
    line.LabelHelp->setFont(large);
    QEvent change(row.type);
    QApplication::sendEvent(&line, &change);
    EXPECT_EQ(line.height() > before, row.grows) << row.type;
  }
}

TEST(HelpRoom, HoldsATextThatALargerFontBreaksIntoLines) {
  const QString text = u"word "_s.repeated(20);
  HelpLine line;
  QFont font = line.font();
  line.SetTexts({text});
  line.resize(QFontMetrics(font).horizontalAdvance(text) + 100, 10);
  const int oneLine = line.height();
  font.setPointSizeF(font.pointSizeF() * 4);
  line.setFont(font);
  line.Show(text);
  EXPECT_GT(line.height(), oneLine);
  EXPECT_GE(line.height() - 12,
            line.LabelHelp->heightForWidth(line.width() - 50 - grid::kPageMargin));
}

TEST(HelpRoom, LeavesItsMarginsRoundTheText) {
  HelpLine line;
  line.SetTexts({"short"});
  line.resize(800, 10);
  line.show();
  QApplication::processEvents();
  EXPECT_EQ(line.LabelHelp->geometry(), QRect(50, 6, 800 - 50 - 20, line.height() - 12));
}

// How many pixels of the line's first part each row has in that colour.
std::vector<int> Rows(const QImage& picture, const QColor& colour) {
  std::vector<int> rows;
  for (int y = 0; y < picture.height(); ++y) {
    int count = 0;
    for (int x = 0; x < 45; ++x) count += picture.pixelColor(x, y) == colour ? 1 : 0;
    rows.push_back(count);
  }
  return rows;
}

TEST(HelpLine, HasItsMarkInTheMiddleAndALineBelow) {
  for (const QString& text : {QString("short"), u"word "_s.repeated(200)}) {
    HelpLine line;
    line.SetTexts({text});
    line.resize(400, 10);
    const QImage picture = line.grab().toImage();
    const std::vector<int> mark = Rows(picture, ToneColor(Tone::IconAccent));
    const auto inked = [](int count) { return count > 0; };
    const auto above = std::find_if(mark.begin(), mark.end(), inked) - mark.begin();
    const auto below = std::find_if(mark.rbegin(), mark.rend(), inked) - mark.rbegin();
    ASSERT_LT(above, picture.height());
    EXPECT_NEAR(static_cast<double>(above), static_cast<double>(below), 1);
    const std::vector<int> edge =
        Rows(picture, line.palette().color(QPalette::Active, QPalette::Mid));
    EXPECT_EQ(edge.back(), 45);
    const std::vector<int> ground = Rows(picture, ToneColor(Tone::HelpLine));
    EXPECT_EQ(ground[ground.size() - 2], 45);
    EXPECT_EQ(ground.front(), 45);
  }
}

TEST(HelpLine, BreaksALongTextInPlaceOfAskingForItsWidth) {
  HelpLine line;
  line.Show(u"Click Number Tab and select Series, Type and Mag from the lists. "_s.repeated(5));
  EXPECT_TRUE(line.LabelHelp->wordWrap());
  EXPECT_LT(line.minimumSizeHint().width(), 400);
}

TEST(HelpLine, ShowsNoMarkup) {
  HelpLine line;
  EXPECT_EQ(line.LabelHelp->textFormat(), Qt::PlainText);
}

}  // namespace
}  // namespace mortane::test
