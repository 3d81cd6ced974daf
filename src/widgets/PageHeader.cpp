#include "widgets/PageHeader.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

#include "widgets/SectionBar.h"
#include "widgets/Theme.h"

namespace mortane {
namespace {

constexpr int kIconSize = 28;
constexpr int kTitleLeft = 38;
constexpr int kAboveLine = 12;

// The longest one of all pages.
constexpr char kLongestTitle[] = "Filter Cubes";

// What a title takes before a section bar: the room of the design, or more in a wider font.
int TitleRoom() {
  constexpr int kDesigned =
      grid::kSectionStart - grid::kPageMargin - kTitleLeft - grid::kBetweenColumns;
  QLabel longest(QLatin1String(kLongestTitle), nullptr);
  longest.setFont(TitleFont());
  return qMax(kDesigned, longest.sizeHint().width());
}

}  // namespace

PageHeader::PageHeader(IconName icon, const QString& title, QWidget* parent)
    : QWidget(parent), icon_(icon), title_(new QLabel(title, this)) {
  title_->setFont(TitleFont());
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(kTitleLeft, kAboveLine, 0, 0);
  row->setSpacing(grid::kBetweenColumns);
  row->addWidget(title_);
  row->addStretch();
  setFixedHeight(qMax(grid::kHeaderHeight, title_->sizeHint().height() + 2 * kAboveLine));
}

SectionBar* PageHeader::AddSectionBar(const char* arrayName) {
  sectionBar_ = new SectionBar(arrayName, this);
  sectionBar_->setAccessibleName(title());
  title_->setMinimumWidth(qMax(TitleRoom(), title_->sizeHint().width()));
  auto* row = static_cast<QHBoxLayout*>(layout());
  row->insertWidget(1, sectionBar_);
  return sectionBar_;
}

QString PageHeader::title() const {
  return title_->text();
}

void PageHeader::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const double top = kAboveLine + (height() - kAboveLine - kIconSize) / 2.0;
  DrawIcon(painter, icon_, QRectF(0, top, kIconSize, kIconSize),
           {palette().color(QPalette::WindowText),
            isEnabled() ? ToneColor(Tone::IconAccent) : QColor()});
}

QVBoxLayout* MakePageLayout(QWidget* page, PageHeader* header) {
  auto* column = new QVBoxLayout(page);
  column->setContentsMargins(grid::kPageMargin, 0, grid::kPageMargin, grid::kCardPadding);
  column->setSpacing(grid::kBetweenGroups);
  column->addWidget(header);
  return column;
}

}  // namespace mortane
