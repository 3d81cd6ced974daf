// Texts that are elided show in full as tool tips.
#include <QHelpEvent>
#include <QToolTip>
#include <set>

#include "drawings/MicroscopeDrawing.h"
#include "gui/support/TestWindow.h"
#include "widgets/ComboBox.h"
#include "widgets/ElidedTip.h"
#include "widgets/ListBox.h"
#include "widgets/SectionBar.h"
#include "widgets/ValueLabel.h"

namespace mortane {
namespace {

constexpr char kLong[] = "A text that is a good deal wider than what shows it";

// The tip that the pointer gets there; empty for none.
std::string TipAt(QWidget& widget, QPoint at) {
  QToolTip::hideText();
  EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
  QHelpEvent help(QEvent::ToolTip, at, widget.mapToGlobal(at));
  EXPECT_TRUE(QApplication::sendEvent(&widget, &help));
  return QToolTip::isVisible() ? QToolTip::text().toStdString() : std::string();
}

std::string TipOf(QWidget& widget) {
  return TipAt(widget, widget.rect().center());
}

class ElidedTip : public testing::Test {
 protected:
  void ShowAt(int width) {
    window.widget().resize(width, 400);
    window.Show();
    QApplication::processEvents();
  }
  TestWindow window;
};

TEST_F(ElidedTip, OfAValue) {
  auto* value = window.Add<ValueLabel>();
  value->setText(kLong);
  ShowAt(120);
  EXPECT_EQ(TipOf(*value), kLong);
  value->setText("1x");
  EXPECT_EQ(TipOf(*value), "");
}

TEST_F(ElidedTip, OfARow) {
  auto* list = window.Add<ListBox>();
  list->addRow(kLong);
  list->addRow("Plan A");
  ShowAt(150);
  EXPECT_EQ(TipAt(*list->viewport(), list->visualItemRect(list->topLevelItem(0)).center()), kLong);
  EXPECT_EQ(TipAt(*list->viewport(), list->visualItemRect(list->topLevelItem(1)).center()), "");
}

TEST_F(ElidedTip, OfTheEntryOfAComboBox) {
  auto* combo = window.Add<ComboBox>();
  combo->addRow(kLong);
  combo->addRow("Ph 1");
  combo->setFixedWidth(120);
  ShowAt(200);
  combo->setIndex(0);
  EXPECT_EQ(TipOf(*combo), kLong);
  combo->setIndex(1);
  EXPECT_EQ(TipOf(*combo), "");
}

TEST_F(ElidedTip, OfAnEntryThatJustFitsThereIsNone) {
  auto* combo = window.Add<ComboBox>();
  combo->addRow("Phase contrast");
  combo->setIndex(0);
  ShowAt(600);
  combo->setFixedWidth(combo->sizeHint().width());
  QApplication::processEvents();
  EXPECT_EQ(TipOf(*combo), "");
  combo->setFixedWidth(combo->width() - 12);
  QApplication::processEvents();
  EXPECT_EQ(TipOf(*combo), "Phase contrast");
}

TEST_F(ElidedTip, AnElidedEntryIsPaintedWithAnEllipsis) {
  ComboBox elided;
  elided.addRow("Phase contrast of the second order");
  elided.setIndex(0);
  elided.resize(120, 30);
  ComboBox asText;
  asText.resize(120, 30);
  const int room = 120 - 36;  // beside the arrow
  asText.addRow(elided.fontMetrics().elidedText(elided.currentText(), Qt::ElideRight, room));
  asText.setIndex(0);
  EXPECT_TRUE(asText.currentText().endsWith(QChar(0x2026)));
  EXPECT_EQ(elided.grab().toImage(), asText.grab().toImage());
}

TEST_F(ElidedTip, OfASection) {
  auto* bar = window.Add<SectionBar>();
  bar->AddOption("Nosepiece");
  bar->AddOption("Optional Objectives");
  ShowAt(600);
  EXPECT_EQ(bar->option(1)->width(), bar->option(1)->sizeHint().width());
  EXPECT_EQ(TipOf(*bar->option(1)), "");
  bar->option(1)->resize(bar->option(1)->minimumSizeHint());
  EXPECT_EQ(TipOf(*bar->option(1)), "");
  bar->option(1)->resize(60, 30);
  EXPECT_EQ(TipOf(*bar->option(1)), "Optional Objectives");
}

TEST_F(ElidedTip, TheReasonWhyASectionIsDisabledStandsBelowItsText) {
  auto* bar = window.Add<SectionBar>();
  bar->AddOption("Nosepiece");
  bar->AddOption("Optional Objectives");
  bar->SetOptionEnabled(1, false, "Not fitted");
  ShowAt(600);
  EXPECT_EQ(TipOf(*bar->option(1)), "Not fitted");
  bar->option(1)->resize(60, 30);
  EXPECT_EQ(TipOf(*bar->option(1)), "Optional Objectives\nNot fitted");
}

TEST_F(ElidedTip, ATextIsNotElidedForLessThanAPixel) {
  const QFontMetrics metrics = window.widget().fontMetrics();
  for (const char* text : {"Received 16:12", "Plan A", "iiiiiii", "WWWWW"}) {
    const int width = metrics.horizontalAdvance(text);
    EXPECT_EQ(ShownIn(width, text, metrics), text);
    EXPECT_NE(ShownIn(width - 1, text, metrics), text);
  }
}

TEST_F(ElidedTip, OfALabelOfTheDrawing) {
  auto* drawing = window.Add<MicroscopeDrawing>();
  drawing->SetAccessories({{5, kLong, 2}, {14, "Stage", 2}});
  ShowAt(520);
  std::set<std::string> tips;
  for (int y = 0; y < drawing->height(); y += 8) tips.insert(TipAt(*drawing, {20, y}));
  EXPECT_EQ(tips, (std::set<std::string>{"", kLong}));
  EXPECT_EQ(TipOf(*drawing), "");
}

TEST_F(ElidedTip, ATipGoesWhereTheNextTextIsWhole) {
  auto* list = window.Add<ListBox>();
  list->addRow(kLong);
  list->addRow("Plan A");
  ShowAt(150);
  const auto centre = [list](int row) {
    return list->visualItemRect(list->topLevelItem(row)).center();
  };
  EXPECT_EQ(TipAt(*list->viewport(), centre(0)), kLong);
  QHelpEvent help(QEvent::ToolTip, centre(1), list->viewport()->mapToGlobal(centre(1)));
  QApplication::sendEvent(list->viewport(), &help);
  EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
}

}  // namespace
}  // namespace mortane
