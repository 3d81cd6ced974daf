// The columns of a list, and the dot of a row in the first of them.
#include <QHeaderView>
#include <QHelpEvent>
#include <QToolTip>
#include <QtMath>

#include "gui/support/Face.h"
#include "gui/support/FontScope.h"
#include "gui/support/TestWindow.h"
#include "widgets/ListBox.h"
#include "widgets/NotSent.h"
#include "widgets/RowDelegate.h"
#include "widgets/Theme.h"

namespace mortane {
namespace {

class ColumnsOfAList : public ::testing::Test {
 protected:
  ColumnsOfAList() {
    list = window.Add<ListBox>();
    list->SetColumns({{"Name"}, {"Exciter"}, {"Barrier"}});
    for (const char* name : {"UV", "Violet"}) list->addCells({name, "365/10", "460/20"});
    window.widget().resize(900, 300);
    window.Show();
    QApplication::processEvents();
  }
  // Of a cell, in the colour of the dots.
  int DotPixels(int row, int column) {
    const QRect cell = list->visualRect(list->model()->index(row, column));
    const QImage image = list->viewport()->grab(cell).toImage();
    const QRgb dot = list->palette().color(QPalette::Link).rgb();
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) count += image.pixel(x, y) == dot ? 1 : 0;
    }
    return count;
  }

  TestWindow window;
  ListBox* list = nullptr;
};

TEST_F(ColumnsOfAList, ARowThatIsNotSentHasItsDotInTheFirstOne) {
  list->SetRowPending(1, "Plan A");
  EXPECT_EQ(list->RowNote(1), NotSent("Plan A"));
  EXPECT_EQ(list->RowNote(0), QString());
  EXPECT_GT(DotPixels(1, 0), 0);
  EXPECT_EQ(DotPixels(1, 1), 0);
  EXPECT_EQ(DotPixels(0, 0), 0);
  list->SetRowPending(1, std::nullopt);
  EXPECT_EQ(list->RowNote(1), QString());
  EXPECT_EQ(DotPixels(1, 0), 0);
}

TEST_F(ColumnsOfAList, BeginAtTheirTabStops) {
  list->SetTabStops({100, 200});
  QApplication::processEvents();
  EXPECT_GT(list->header()->sectionSize(0), 100);
  EXPECT_EQ(list->header()->sectionSize(0), list->header()->sectionSize(1));
}

// Asked cell by cell.
TEST_F(ColumnsOfAList, HaveRoomForTheirWidestCell) {
  const auto narrowest = [this](int column) {
    int widest = 0;
    for (int row = 0; row < list->rowCount(); ++row) {
      const QModelIndex cell = list->model()->index(row, column);
      QStyleOptionViewItem option;
      option.initFrom(list);
      option.decorationSize = list->iconSize();
      widest = qMax(widest, list->itemDelegate()->sizeHint(option, cell).width());
    }
    return widest;
  };
  const auto expectRoom = [&](const char* what) {
    QApplication::processEvents();
    for (int column = 0; column < 3; ++column)
      EXPECT_GE(list->header()->sectionSize(column), narrowest(column)) << what << column;
  };
  window.widget().resize(300, 300);
  expectRoom("repeated texts");
  for (const char* text : {"WWWWWWWWWW", "iiiiiiiiiiiiiiii", "a longer name of a cube", "UV"})
    list->addCells({text, text, "460/20"});
  expectRoom("a wide one among others");
  // The text of a row before it, which needs less room; no other is as wide.
  const int row = list->addCells({"a longer name of a cube", "", ""});
  list->SetRowPending(row, "UV");
  expectRoom("a dot");
  list->SetRowPending(row, std::nullopt);
  list->SetRowChecked(row, true);
  expectRoom("a check");
  const int last = list->addCells({"a longer name of a cube", "", ""});
  QPixmap icon(40, 22);
  icon.fill(Qt::red);
  list->setIconSize(icon.size());
  list->SetRowIcon(last, QIcon(icon));
  expectRoom("an icon");
}

TEST_F(ColumnsOfAList, AreAsWideAsTheirNewHeads) {
  list->SetColumns({{"Name of the filter cube"}, {"Name of the exciter"}, {"Barrier"}, {"Type"}});
  window.widget().resize(300, 300);
  QApplication::processEvents();
  for (const int column : {0, 1, 2, 3}) {
    EXPECT_GE(list->header()->sectionSize(column), list->header()->sectionSizeHint(column))
        << column;
  }
}

TEST_F(ColumnsOfAList, KeepTheirWidthsWhereTheEdgeOfOneIsDragged) {
  const int last = list->header()->sectionSize(2);
  list->header()->resizeSection(0, list->header()->sectionSize(0) - 40);
  EXPECT_EQ(list->header()->sectionSize(2), last);
  list->SetColumns({{"Name"}});
  QApplication::processEvents();
  EXPECT_EQ(list->header()->sectionSize(0), list->viewport()->width()) << "one alone has it all";
}

TEST_F(ColumnsOfAList, OneAloneIsNeverScrolledSideways) {
  EXPECT_EQ(list->horizontalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
  list->SetColumns({{"Name"}});
  EXPECT_EQ(list->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
}

TEST_F(ColumnsOfAList, TellNothingButTheirToolTips) {
  const QModelIndex cell = list->model()->index(0, 0);
  QStyleOptionViewItem option;
  option.rect = list->visualRect(cell);
  QHelpEvent event(QEvent::WhatsThis, {}, {});
  auto* delegate = static_cast<RowDelegate*>(list->itemDelegate());
  EXPECT_FALSE(delegate->helpEvent(&event, list, option, cell));
}

TEST_F(ColumnsOfAList, AnIconStandsInTheFirstOne) {
  list->SetIconRows(true);
  QPixmap red(22, 22);
  red.fill(Qt::red);
  list->SetRowIcon(0, QIcon(red));
  QApplication::processEvents();
  const auto widthOfRed = [this](int column) {
    const QRect cell = list->visualRect(list->model()->index(0, column));
    const QImage image = list->viewport()->grab(cell).toImage();
    int width = 0;
    for (int x = 0; x < image.width(); ++x)
      width += image.pixel(x, image.height() / 2) == QColor(Qt::red).rgb() ? 1 : 0;
    return width;
  };
  EXPECT_EQ(widthOfRed(0), 22);
  EXPECT_EQ(widthOfRed(1), 0);
}

// Rows of pixels in which a column head shows ink.
int InkedRows(const QString& head) {
  ListBox list;
  list.SetColumns({{head}, {}});
  list.resize(300, 200);
  list.show();
  const QImage picture = list.header()->grab().toImage();
  int inked = 0;
  for (int y = 0; y < picture.height(); ++y) {
    const QRgb ground = picture.pixel(1, y);
    bool found = false;
    for (int x = 2; x < list.header()->sectionSize(0); ++x) {
      found = found || std::abs(qGray(picture.pixel(x, y)) - qGray(ground)) > 32;
    }
    inked += found ? 1 : 0;
  }
  return inked;
}

TEST(ListBoxHead, ShowsItsTextDownToTheFeetInEveryFont) {
  for (const double points : {9.0, 10.0, 12.0, 14.0, 16.0, 18.0}) {
    const FontScope scope(FontOf(points));
    const QRectF whole = QFontMetricsF(CaptionFont()).tightBoundingRect("Typg");
    EXPECT_GE(InkedRows("Typg"), qFloor(whole.height())) << points;
  }
}

struct DotRow {
  const char* what;
  bool pending;
  bool selected;
  const char* row;
};

// The first 40 pixels of a row whose text is blank.
TEST(RowFace, HasItsDotBeforeItsTextOnItsGround) {
  for (const DotRow& row : {
           DotRow{"at rest", false, false, "Base 40"},
           DotRow{"selected", false, true, "Highlight 40"},
           DotRow{"not sent", true, false, "Base 7, ~ 1, Link 8, ~ 1, Base 23"},
           DotRow{"selected and not sent", true, true,
                  "Highlight 7, ~ 1, HighlightedText 8, ~ 1, Highlight 23"},
       }) {
    ListBox list;
    list.addRow(" ");
    list.addRow("other");
    if (row.pending) list.SetRowPending(0, "was");
    list.setIndex(row.selected ? 0 : 1);
    test::PictureOf(list, {200, 120}, test::Use::Rest);
    list.setPalette(test::TellablePalette());
    const QRect cell = list.visualRect(list.model()->index(0, 0));
    const QImage picture =
        list.viewport()->grab({cell.topLeft(), QSize(40, cell.height())}).toImage();
    EXPECT_EQ(test::RowOf(picture), row.row) << row.what;
  }
}

TEST(RowFace, ARowIsAsHighAsTheGridAndHigherWithIcons) {
  ListBox list;
  list.addRow("one");
  EXPECT_EQ(list.visualItemRect(list.topLevelItem(0)).height(), 26);
  list.SetIconRows(true);
  QApplication::processEvents();
  EXPECT_EQ(list.visualItemRect(list.topLevelItem(0)).height(), 38);
}

TEST(RowFace, AListShowsRowsAndNoTree) {
  const ListBox list;
  EXPECT_FALSE(list.rootIsDecorated());
  EXPECT_EQ(list.indentation(), 0);
  EXPECT_EQ(list.selectionMode(), QAbstractItemView::SingleSelection);
  EXPECT_EQ(list.selectionBehavior(), QAbstractItemView::SelectRows);
  EXPECT_EQ(list.editTriggers(), QAbstractItemView::NoEditTriggers);
  EXPECT_EQ(list.verticalScrollMode(), QAbstractItemView::ScrollPerItem);
  EXPECT_EQ(list.horizontalScrollMode(), QAbstractItemView::ScrollPerPixel);
  EXPECT_EQ(list.textElideMode(), Qt::ElideRight);
  EXPECT_EQ(list.focusPolicy(), Qt::TabFocus);
  EXPECT_FALSE(list.header()->sectionsClickable());
  EXPECT_FALSE(list.header()->sectionsMovable());
  EXPECT_EQ(list.header()->minimumSectionSize(), 16);
}

TEST_F(ColumnsOfAList, TheDotTakesItsRoomInTheFirstOneAlone) {
  const auto wishes = [this] {
    std::vector<int> widths;
    for (int column = 0; column < 3; ++column) {
      const QModelIndex cell = list->model()->index(1, column);
      widths.push_back(list->itemDelegate()->sizeHint(QStyleOptionViewItem(), cell).width());
    }
    return widths;
  };
  std::vector<int> before = wishes();
  list->SetRowPending(1, "Plan A");
  before[0] += 12;
  EXPECT_EQ(wishes(), before);
}

// Of the text in the first cell, at two heights of rows.
TEST(RowFace, ATextStandsAsHighBehindADotAsWithoutOne) {
  for (const bool icons : {false, true}) {
    ListBox list;
    list.addRow("HHHH");
    list.SetIconRows(icons);
    const auto rowsOfText = [&list] {
      test::PictureOf(list, {200, 120}, test::Use::Rest);
      const QRect cell = list.visualRect(list.model()->index(0, 0));
      const QImage picture = list.viewport()->grab(cell.adjusted(20, 0, 0, 0)).toImage();
      std::vector<int> rows;
      for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < 40; ++x) {
          if (picture.pixel(x, y) == picture.pixel(150, y)) continue;
          rows.push_back(y);
          break;
        }
      }
      return rows;
    };
    const std::vector<int> plain = rowsOfText();
    EXPECT_GT(plain.size(), 5U);
    list.SetRowPending(0, "was");
    EXPECT_EQ(rowsOfText(), plain);
  }
}

TEST_F(ColumnsOfAList, ACellThatJustFitsHasNoToolTip) {
  const QModelIndex cell = list->model()->index(1, 0);
  auto* delegate = qobject_cast<RowDelegate*>(list->itemDelegate());
  ASSERT_NE(delegate, nullptr);
  QStyleOptionViewItem option;
  option.fontMetrics = list->fontMetrics();
  option.font = list->font();
  const int needed = delegate->sizeHint(option, cell).width();
  for (const auto& [width, tip] : {std::pair{needed, ""}, {needed - 1, "Violet"}}) {
    option.rect = {0, 0, width, 26};
    QHelpEvent help(QEvent::ToolTip, QPoint(3, 3), list->mapToGlobal(QPoint(3, 3)));
    QToolTip::hideText();
    delegate->helpEvent(&help, list, option, cell);
    EXPECT_EQ(QToolTip::isVisible() ? QToolTip::text() : QString(), tip) << width;
  }
}

}  // namespace
}  // namespace mortane
