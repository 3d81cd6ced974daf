// The system page: name and report.
#include <gtest/gtest.h>

#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "AppRig.h"
#include "app/SystemNameCtl.h"
#include "app/SystemSettingsCtl.h"
#include "drawings/MicroscopeDrawing.h"
#include "widgets/PageHeader.h"
#include "widgets/TextField.h"

namespace mortane::test {

using namespace Qt::StringLiterals;

namespace {

// The page in a window of its own, with a further control to move the focus to.
class SystemPage : public testing::Test {
 protected:
  SystemPage() {
    k70().Connect(1);
    window.setLayout(new QVBoxLayout);
    window.layout()->addWidget(page);
    window.layout()->addWidget(elsewhere);
    window.resize(1152, 740);
    window.show();
    window.activateWindow();
    QApplication::processEvents();
  }
  ~SystemPage() override { ReleaseK70(); }

  clsK70& k70() { return GetK70(); }
  SystemNameCtl& panel() { return *page->SystemNameCtl1; }
  TextField& name() { return *panel().TextSystemName; }

  RigLibrary rig{benches::Named("Harbour")};
  clsK70& provided = ProvideK70(rig.library, rig.prompts);
  QWidget window;
  SystemSettingsCtl* page = new SystemSettingsCtl(provided);
  QPushButton* elsewhere = new QPushButton("elsewhere");
};

TEST_F(SystemPage, BearsItsControlsByName) {
  EXPECT_EQ(page->Header->objectName(), "Header");
  EXPECT_EQ(page->SystemNameCtl1->objectName(), "SystemNameCtl1");
  for (const char* control :
       {"FrameBase", "Frame1", "Label1", "TextSystemName", "TextAccessories"}) {
    EXPECT_NE(page->findChild<QWidget*>(control), nullptr) << control;
  }
  EXPECT_EQ(panel().Label1->text(), "System Name:");
  EXPECT_EQ(panel().Label1->buddy(), &name());
}

TEST_F(SystemPage, IsEmptyWhenMade) {
  EXPECT_EQ(name().text(), "");
  EXPECT_EQ(panel().TextAccessories->toPlainText(), "");
}

TEST_F(SystemPage, StandsUnderItsHeaderAtTheLeft) {
  const QPoint header = page->Header->mapTo(page, page->Header->rect().bottomLeft());
  const QPoint below = page->SystemNameCtl1->mapTo(page, QPoint(0, 0));
  EXPECT_EQ(below.x(), header.x());
  EXPECT_GT(below.y(), header.y());
}

struct NameRow {
  const char* name;
  const char* shown;
};

// The controller's own name may be longer than the field, or hold what a line cannot.
TEST_F(SystemPage, LeavesANameThatNobodyEditedAsItIs) {
  for (const char* held : {"A name of twenty-one", "two\nlines", " Lab 2 "}) {
    k70().SystemName = held;
    page->LoadData();
    name().setFocus();
    elsewhere->setFocus(Qt::MouseFocusReason);
    EXPECT_EQ(k70().SystemName, held) << "passed by";
    QTest::keyClick(&name(), Qt::Key_Return);
    page->SaveData();
    EXPECT_EQ(k70().SystemName, held) << "saved";
    name().setFocus();
    name().selectAll();
    QTest::keyClicks(&name(), "Bay 4");
    elsewhere->setFocus(Qt::MouseFocusReason);
    EXPECT_EQ(k70().SystemName, "Bay 4");
    page->LoadData();
    page->SaveData();
    EXPECT_EQ(k70().SystemName, "Bay 4");
  }
}

TEST_F(SystemPage, TakesAnEditBackToTheCutNameAsAnEdit) {
  k70().SystemName = "A name of twenty-one";
  page->LoadData();
  const QString cut = name().text();
  for (const QString& typed : {u"Bay 4"_s, cut}) {
    name().setFocus();
    name().selectAll();
    QTest::keyClicks(&name(), typed);
    elsewhere->setFocus(Qt::MouseFocusReason);
    EXPECT_EQ(k70().SystemName, typed.toStdString());
  }
}

TEST_F(SystemPage, ShowsTheNameUntrimmedOrNoName) {
  for (const NameRow& row :
       {NameRow{"", "NoName"}, NameRow{"   ", "NoName"}, NameRow{" Lab 2 ", " Lab 2 "},
        NameRow{"\t", "\t"}, NameRow{"123456789012345", "123456789012345"},
        NameRow{"M\xC3\xBCnchen", "M\xC3\xBCnchen"}}) {
    k70().SystemName = row.name;
    page->LoadData();
    EXPECT_EQ(name().text().toStdString(), row.shown);
    EXPECT_EQ(k70().SystemName, row.name) << "showing changes nothing";
  }
}

TEST_F(SystemPage, ShowsTheReportWithItsTabsAndBlankLine) {
  page->LoadData();
  std::string report = panel().TextAccessories->toPlainText().toStdString();
  EXPECT_TRUE(report.starts_with("Mounted Accessories\n\tAnalyzer Control\n"));
  EXPECT_NE(report.find("\n\nNot Mounted Accessories\n"), std::string::npos);
  EXPECT_EQ(panel().TextAccessories->font().family(), "Courier New");
  EXPECT_EQ(panel().TextAccessories->font().styleHint(), QFont::Monospace);
  EXPECT_TRUE(panel().TextAccessories->isReadOnly());
  EXPECT_EQ(panel().TextAccessories->lineWrapMode(), QPlainTextEdit::NoWrap);
  const int character = panel().TextAccessories->fontMetrics().horizontalAdvance(u'0');
  EXPECT_EQ(panel().TextAccessories->tabStopDistance(), 3 * character);
}

TEST_F(SystemPage, TheDrawingTellsTheReportsWords) {
  page->LoadData();
  auto* drawing = page->findChild<MicroscopeDrawing*>();
  ASSERT_NE(drawing, nullptr);
  EXPECT_TRUE(drawing->accessibleDescription().contains("Analyzer Control"));
}

TEST_F(SystemPage, TheDrawingGoesAwayInANarrowWindow) {
  page->LoadData();
  auto* drawing = page->findChild<MicroscopeDrawing*>();
  EXPECT_TRUE(drawing->isVisible());
  window.resize(1099, 740);
  QApplication::processEvents();
  EXPECT_FALSE(drawing->isVisible());
  window.resize(1100, 740);
  QApplication::processEvents();
  EXPECT_TRUE(drawing->isVisible());
}

TEST_F(SystemPage, TheDrawingGoesAwayWhereItsLabelsHaveNoRoom) {
  page->LoadData();
  auto* drawing = page->findChild<MicroscopeDrawing*>();
  QFont large = drawing->font();
  large.setPointSizeF(large.pointSizeF() * 3);
  drawing->setFont(large);
  EXPECT_TRUE(drawing->isVisible());
  page->LoadData();
  EXPECT_FALSE(drawing->isVisible());
  window.resize(1900, 740);
  QApplication::processEvents();
  EXPECT_TRUE(drawing->isVisible());
  EXPECT_GE(drawing->width(), drawing->widthOfLabels());
  window.resize(1152, 740);
  QApplication::processEvents();
  EXPECT_FALSE(drawing->isVisible());
}

TEST_F(SystemPage, TakesFifteenCharactersAndNoMore) {
  name().setFocus();
  QTest::keyClicks(&name(), "1234567890123456");
  EXPECT_EQ(name().text(), "123456789012345");
}

class EnterKey : public SystemPage, public testing::WithParamInterface<Qt::Key> {};

TEST_P(EnterKey, TakesTheNameAndKeepsTheFocus) {
  page->LoadData();
  name().setFocus();
  name().selectAll();
  QTest::keyClicks(&name(), "Bay 4");
  EXPECT_NE(k70().SystemName, "Bay 4");
  QTest::keyClick(&name(), GetParam());
  EXPECT_EQ(k70().SystemName, "Bay 4");
  EXPECT_TRUE(name().hasFocus());
}

INSTANTIATE_TEST_SUITE_P(BothKeys, EnterKey, testing::Values(Qt::Key_Return, Qt::Key_Enter));

TEST_F(SystemPage, LeavingTheFieldTakesTheNameAlsoUntouched) {
  k70().SystemName = "  ";
  page->LoadData();
  name().setFocus();
  EXPECT_EQ(k70().SystemName, "  ");
  QTest::mouseClick(elsewhere, Qt::LeftButton);
  EXPECT_EQ(k70().SystemName, "NoName");
}

TEST_F(SystemPage, AnEmptyTextIsTakenAsEmpty) {
  page->LoadData();
  name().setFocus();
  name().clear();
  QTest::mouseClick(elsewhere, Qt::LeftButton);
  EXPECT_EQ(k70().SystemName, "");
}

TEST_F(SystemPage, LeavingTheWindowOrDisablingItTakesNothing) {
  k70().SystemName = "";
  page->LoadData();
  name().setFocus();
  QWidget other;
  other.show();
  other.activateWindow();
  QApplication::processEvents();
  EXPECT_EQ(k70().SystemName, "");
  window.activateWindow();
  QApplication::processEvents();
  window.setEnabled(false);
  EXPECT_EQ(k70().SystemName, "");
}

TEST_F(SystemPage, SavingTakesTheShownNoName) {
  k70().SystemName = "";
  page->LoadData();
  page->SaveData();
  EXPECT_EQ(k70().SystemName, "NoName");
  k70().Send();
  EXPECT_EQ(rig.simulated.bench().instruments[1].name, "NoName");
}

TEST_F(SystemPage, AFifteenCharacterNameIsSentInFull) {
  page->LoadData();
  name().setFocus();
  name().selectAll();
  QTest::keyClicks(&name(), "123456789012345");
  page->SaveData();
  k70().Send();
  EXPECT_EQ(rig.simulated.bench().instruments[1].name, "123456789012345");
}

TEST_F(SystemPage, TabGoesFromTheNameToTheReport) {
  name().setFocus();
  QTest::keyClick(&name(), Qt::Key_Tab);
  EXPECT_TRUE(panel().TextAccessories->hasFocus());
  QTest::keyClick(panel().TextAccessories, Qt::Key_Tab);
  EXPECT_TRUE(elsewhere->hasFocus());
}

}  // namespace
}  // namespace mortane::test
