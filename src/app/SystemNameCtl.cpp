#include "app/SystemNameCtl.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QVBoxLayout>

#include "app/ShownText.h"
#include "common/Text.h"
#include "drawings/MicroscopeDrawing.h"
#include "hub/AccessoryTable.h"
#include "hub/clsK70.h"
#include "widgets/Card.h"
#include "widgets/QtText.h"
#include "widgets/TextField.h"
#include "widgets/Theme.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

constexpr int kNameLength = static_cast<int>(kSystemNameLength);
// Wide letters are half as wide again as figures.
constexpr int kNameWidthCharacters = 24;
constexpr int kCardGap = 12;
constexpr int kColumnGap = 16;
constexpr int kLabelGap = 12;
constexpr int kReportMargin = 8;
// The report's lines are indented by one tab.
constexpr int kTabWidthCharacters = 3;
// The report keeps its lines whole beside the drawing.
constexpr int kReportWidthCharacters = 32;
// A narrower window shows the report alone, as one where labels would have to be elided.
constexpr int kNarrowestWindowWithDrawing = 1100;

QFont ReportFont() {
  QFont font(u"Courier New"_s);
  font.setStyleHint(QFont::Monospace);
  return font;
}

}  // namespace

SystemNameCtl::SystemNameCtl(clsK70& k70, QWidget* parent)
    : Page(parent), k70_(k70), drawing_(nullptr), drawingFrame_(nullptr) {
  FrameBase = new QFrame(this);
  auto* panel = new QVBoxLayout(this);
  panel->setContentsMargins({});
  panel->addWidget(FrameBase);
  auto* rows = new QVBoxLayout(FrameBase);
  rows->setContentsMargins({});
  rows->setSpacing(kCardGap);
  rows->addWidget(BuildNameCard());
  rows->addWidget(BuildReportCard(), 1);

  connect(TextSystemName, &TextField::committed, this, &SystemNameCtl::SaveData);
}

QWidget* SystemNameCtl::BuildNameCard() {
  auto* card = new Card({}, FrameBase);
  Frame1 = card;
  Label1 = new QLabel(u"System Name:"_s, Frame1);
  TextSystemName = new TextField(Frame1);
  TextSystemName->SetLimit(kNameLength);
  TextSystemName->SetWidthFor(kNameWidthCharacters, kNameLength);
  Label1->setBuddy(TextSystemName);

  auto* row = new QHBoxLayout;
  row->setSpacing(kLabelGap);
  row->addWidget(Label1);
  row->addWidget(TextSystemName);
  row->addStretch();
  card->body()->addLayout(row);
  return card;
}

QWidget* SystemNameCtl::BuildReportCard() {
  auto* card = new Card({}, FrameBase);
  TextAccessories = new QPlainTextEdit(card);
  TextAccessories->setAccessibleName(u"Accessories"_s);
  TextAccessories->setReadOnly(true);
  TextAccessories->setTabChangesFocus(true);
  TextAccessories->setLineWrapMode(QPlainTextEdit::NoWrap);
  TextAccessories->setFont(ReportFont());
  TextAccessories->document()->setDocumentMargin(kReportMargin);
  const int character = TextAccessories->fontMetrics().horizontalAdvance(u'0');
  TextAccessories->setTabStopDistance(kTabWidthCharacters * character);
  TextAccessories->setMinimumWidth(kReportWidthCharacters * character);

  drawingFrame_ = new InnerFrame({}, card);
  // Not so wide as it asks for where the page has less room: it goes away then.
  drawingFrame_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  drawing_ = new MicroscopeDrawing(drawingFrame_);
  drawingFrame_->body()->addWidget(drawing_);
  auto* columns = new QHBoxLayout;
  columns->setSpacing(kColumnGap);
  columns->addWidget(TextAccessories, 1);
  columns->addWidget(drawingFrame_, 2);
  card->body()->addLayout(columns);
  return card;
}

void SystemNameCtl::LoadData() {
  const bool nameless = Trim(k70_.SystemName).empty();
  TextSystemName->setText(nameless ? u"NoName"_s : QString::fromStdString(k70_.SystemName));
  untouched_.reset();
  if (!nameless) untouched_ = TextSystemName->text();
  TextAccessories->setPlainText(ShownText(k70_.GetAccessories()));
  QVector<DrawnAccessory> drawn;
  for (const AccessoryRow& row : kAccessoryTable) {
    const std::int32_t mounted = k70_.IsMounted(row.number);
    const std::string_view label = ReportLabel(row, mounted);
    drawn.append({row.number, ToQString(label), mounted});
  }
  drawing_->SetAccessories(drawn);
  ShowDrawingWhereItFits();
}

// A controller may hold a longer name than the field, or characters that a field of one line has
// not. Kept: the text that stands in for a missing name becomes the name.
void SystemNameCtl::SaveData() {
  if (TextSystemName->text() == untouched_) return;
  untouched_.reset();
  k70_.SystemName = TextSystemName->text().toStdString();
}

void SystemNameCtl::resizeEvent(QResizeEvent* event) {
  Page::resizeEvent(event);
  ShowDrawingWhereItFits();
}

void SystemNameCtl::ShowDrawingWhereItFits() {
  const int besideDrawing = 2 * grid::kCardPadding + TextAccessories->minimumWidth() + kColumnGap +
                            2 * grid::kCardPadding;
  const bool isWide = window()->width() >= kNarrowestWindowWithDrawing;
  drawingFrame_->setVisible(isWide && width() >= besideDrawing + drawing_->widthOfLabels());
}

}  // namespace mortane
