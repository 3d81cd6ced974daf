#include "widgets/PageHeader.h"

#include <QEvent>
#include <QPainter>
#include <QVBoxLayout>

#include "widgets/SectionBar.h"
#include "widgets/Theme.h"

namespace mortane {
namespace {

constexpr int kIconSize = 28;
constexpr int kTitleLeft = 38;
constexpr int kAboveLine = 12;
constexpr int kBelowBar = 4;  // of a bar below the title

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
    : QWidget(parent), icon_(icon), title_(new PageTitle(title, this)) {
  title_->setFont(TitleFont());
  Arrange();
}

SectionBar* PageHeader::AddSectionBar() {
  sectionBar_ = new SectionBar(this);
  sectionBar_->setAccessibleName(title());
  return sectionBar_;
}

int PageHeader::TitleHeight() const {
  return qMax(grid::kHeaderHeight, title_->sizeHint().height() + 2 * kAboveLine);
}

// The bar stands beside the title, or below it where the header is lower so.
void PageHeader::Arrange() {
  const int titleHeight = TitleHeight();
  const int room = sectionBar_ == nullptr ? 0 : TitleRoom();
  const int titleWidth = qMax(room, title_->sizeHint().width());
  title_->setGeometry(kTitleLeft, kAboveLine, titleWidth, titleHeight - kAboveLine);
  int height = titleHeight;
  if (sectionBar_ != nullptr) {
    const int left = kTitleLeft + titleWidth + grid::kBetweenColumns;
    const int wanted = sectionBar_->sizeHint().width();
    const int beside = qMin(wanted, width() - left);
    const int below = qMin(wanted, width());
    const int besideHeight = sectionBar_->heightForWidth(beside);
    const int belowHeight = sectionBar_->heightForWidth(below);
    const int withBeside = qMax(titleHeight, kAboveLine + besideHeight);
    const int withBelow = titleHeight + belowHeight + kBelowBar;
    const bool fits = beside >= sectionBar_->minimumSizeHint().width();
    if (fits && withBeside <= withBelow) {
      const int top = kAboveLine + (withBeside - kAboveLine - besideHeight) / 2;
      sectionBar_->setGeometry(left, top, beside, besideHeight);
      height = withBeside;
    } else {
      sectionBar_->setGeometry(0, titleHeight, below, belowHeight);
      height = withBelow;
    }
  }
  if (height != this->height()) setFixedHeight(height);
}

QSize PageHeader::sizeHint() const {
  return {minimumSizeHint().width(), height()};
}

QSize PageHeader::minimumSizeHint() const {
  const int bar = sectionBar_ == nullptr ? 0 : sectionBar_->minimumSizeHint().width();
  return {qMax(kTitleLeft + title_->sizeHint().width(), bar), height()};
}

bool PageHeader::event(QEvent* event) {
  const bool done = QWidget::event(event);
  if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::FontChange) Arrange();
  return done;
}

void PageHeader::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  Arrange();
}

QString PageHeader::title() const {
  return title_->text();
}

void PageHeader::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const double top = kAboveLine + (TitleHeight() - kAboveLine - kIconSize) / 2.0;
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
