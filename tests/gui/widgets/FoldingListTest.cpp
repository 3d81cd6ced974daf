#include <QHeaderView>
#include <QScrollBar>
#include <utility>

#include "gui/support/TestWindow.h"
#include "widgets/ListBox.h"

namespace mortane {
namespace {

// A list of two columns, the second of which may fold.
class FoldingList : public ::testing::Test {
 protected:
  FoldingList() {
    list->SetColumns({{"Switch"}, {"Function"}});
    list->SetFoldingColumn(1);
    list->addCells({"Dial 1", "Condenser Aperture Stop UP/DOWN"});
    list->addCells({"Dial 2", "Shutter OPEN/CLOSE"});
    list->resize(800, 300);
    window.Show();
    list->setFixedWidth(800);
    QApplication::processEvents();
    const QFontMetrics metrics = list->fontMetrics();
    wide = 2 * list->frameWidth() + metrics.horizontalAdvance("Dial 1") +
           metrics.horizontalAdvance("Condenser Aperture Stop UP/DOWN") + 40;
  }
  void ShowIn(int width) {
    list->setFixedWidth(width);
    QApplication::processEvents();
  }
  int RowHeight() const { return list->visualItemRect(list->topLevelItem(0)).height(); }

  TestWindow window;
  ListBox* list = window.Add<ListBox>();
  int wide = 0;
};

TEST_F(FoldingList, ShowsATextInTwoLinesWhereTheRoomIsShort) {
  ShowIn(wide);
  const int oneLine = RowHeight();
  const int folded = oneLine + list->fontMetrics().lineSpacing();
  ShowIn(wide - 60);
  EXPECT_EQ(RowHeight(), folded);
  EXPECT_EQ(list->horizontalScrollBar()->maximum(), 0);
  ShowIn(wide);
  EXPECT_EQ(RowHeight(), oneLine);
}

TEST_F(FoldingList, IsScrolledWhereTwoLinesAreTooWideAsWell) {
  ShowIn(wide / 2);
  EXPECT_GT(list->horizontalScrollBar()->maximum(), 0);
}

// As high as its rows.
class HighList : public ListBox {
 public:
  using ListBox::ListBox;
  [[nodiscard]] QSize sizeHint() const override {
    return {ListBox::sizeHint().width(), 300 + rowCount() * sizeHintForRow(0)};
  }
};

TEST(FoldingInALayout, GetsTheRoomForItsSecondLines) {
  TestWindow window;
  auto* list = window.Add<HighList>();
  list->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  list->SetColumns({{"Switch"}, {"Function"}});
  list->SetFoldingColumn(1);
  list->addCells({"Dial 1", "Condenser Aperture Stop UP/DOWN"});
  window.widget().resize(800, 600);
  window.Show();
  QApplication::processEvents();
  const int oneLine = list->height();
  window.widget().resize(220, 600);
  QApplication::processEvents();
  EXPECT_EQ(list->height(), oneLine + list->fontMetrics().lineSpacing());
}

struct Break {
  const char* text;
  const char* longerLine;
};

TEST_F(FoldingList, BreaksATextWhereTheLongerOfTwoLinesIsShortest) {
  for (const Break& row : {
           Break{"Condenser Aperture Stop UP/DOWN", "Condenser Aperture"},
           Break{"A wordlongerthanallothers", "wordlongerthanallothers"},
           Break{"Two  wordlongerthanallothers", "wordlongerthanallothers"},
           Break{" wordlongerthanallothers", "wordlongerthanallothers"},
           Break{"onewordthatcannotbebroken", "onewordthatcannotbebroken"},
       }) {
    list->clearRows();
    list->addCells({"Dial", row.text});
    ShowIn(120);
    const QModelIndex cell = list->model()->index(0, 1);
    const QFontMetrics metrics = list->fontMetrics();
    const int around =
        list->sizeHintForIndex(cell).width() - metrics.horizontalAdvance(cell.data().toString());
    EXPECT_EQ(list->header()->sectionSize(1), around + metrics.horizontalAdvance(row.longerLine))
        << row.text;
  }
}

TEST_F(FoldingList, TheFirstColumnMayBeTheOneThatFolds) {
  list->SetFoldingColumn(0);
  list->clearRows();
  list->addCells({"Condenser Aperture Stop UP/DOWN", "Dial 1"});
  ShowIn(2 * wide);
  const int oneLine = RowHeight();
  ShowIn(wide - 60);
  EXPECT_EQ(RowHeight(), oneLine + list->fontMetrics().lineSpacing());
}

TEST_F(FoldingList, AShorterTextIsShownInOneLineAgain) {
  ShowIn(wide - 60);
  const int folded = RowHeight();
  list->topLevelItem(0)->setText(1, "None");
  list->setFixedWidth(wide - 59);
  QApplication::processEvents();
  EXPECT_LT(RowHeight(), folded);
}

// How many lines of text the second column of the first row shows.
int LinesOfText(const ListBox& list) {
  const QRect row = list.visualItemRect(list.topLevelItem(0));
  const int left = list.header()->sectionViewportPosition(1) + 4;
  const QImage picture = list.viewport()->grab().toImage();
  const QRgb ground = picture.pixel(left - 2, row.top() + 1);
  int lines = 0;
  bool inked = false;
  for (int y = row.top(); y <= row.bottom(); ++y) {
    const bool before = std::exchange(inked, false);
    for (int x = left; x < picture.width(); ++x) inked = inked || picture.pixel(x, y) != ground;
    if (inked && !before) ++lines;
  }
  return lines;
}

// In capitals, which have no dots above and nothing below.
TEST_F(FoldingList, PaintsBothLines) {
  list->topLevelItem(0)->setText(1, "CONDENSER APERTURE STOP");
  ShowIn(1000);
  EXPECT_EQ(LinesOfText(*list), 1);
  ShowIn(2 * list->frameWidth() + list->fontMetrics().horizontalAdvance("Dial 1") +
         list->fontMetrics().horizontalAdvance("CONDENSER APERTURE") + 40);
  EXPECT_EQ(LinesOfText(*list), 2);
}

TEST_F(FoldingList, IsElidedInOneLineWhereNothingFolds) {
  list->SetFoldingColumn(-1);
  list->topLevelItem(0)->setText(1, "CONDENSER APERTURE STOP");
  ShowIn(1000);
  list->header()->resizeSection(1, 100);
  EXPECT_EQ(LinesOfText(*list), 1);
}

}  // namespace
}  // namespace mortane
