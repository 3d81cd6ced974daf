// The section bars of all pages begin at one place.
#include <gtest/gtest.h>

#include <QApplication>
#include <set>

#include "app/MainPages.h"
#include "widgets/PageHeader.h"
#include "widgets/SectionBar.h"
#include "widgets/Theme.h"

namespace mortane::test {
namespace {

// Where the bar begins on a page with that title, from the left edge of the page.
int SectionStart(const QString& title) {
  QWidget page;
  auto* header = new PageHeader(IconName::System, title, &page);
  SectionBar* bar = header->AddSectionBar();
  bar->AddOption("Option");
  MakePageLayout(&page, header);
  page.resize(1000, 400);
  page.show();
  return bar->mapTo(&page, QPoint(0, 0)).x();
}

std::set<int> SectionStarts() {
  std::set<int> starts;
  for (const PageRow& row : MainPages()) starts.insert(SectionStart(row.title));
  return starts;
}

TEST(PageTitles, LeaveOnePlaceForTheSectionBarsOfAllPages) {
  const QFont usual = QApplication::font();
  QFont small = usual;
  small.setPointSize(7);
  QFont large = usual;
  large.setPointSize(16);
  EXPECT_EQ(SectionStarts().size(), 1U);
  QApplication::setFont(small);
  EXPECT_EQ(SectionStarts(), std::set<int>{grid::kSectionStart});
  QApplication::setFont(large);
  const std::set<int> starts = SectionStarts();
  EXPECT_EQ(starts.size(), 1U);
  EXPECT_GT(*starts.begin(), grid::kSectionStart);
  QApplication::setFont(usual);
}

TEST(PageTitles, AreNeverCutByTheSectionBar) {
  const QString title = "A title that is a good deal wider than all others";
  EXPECT_GT(SectionStart(title), QFontMetrics(TitleFont()).horizontalAdvance(title));
}

}  // namespace
}  // namespace mortane::test
