#include "app/LongText.h"

#include <QGridLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QScreen>
#include <algorithm>

#include "app/BoxText.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

constexpr qsizetype kMostLines = 1000;
// Of the screen, for the text; the rest is for the title, the buttons and the system's own bars.
constexpr double kShareOfHeight = 0.7;
constexpr double kShareOfWidth = 0.6;
// Where the toolkit's box breaks lines.
constexpr int kWidthOfLines = 500;

void PutInPlaceOfLabel(QMessageBox& box, QPlainTextEdit* field) {
  const BoxLabel text = FindBoxLabel(box);
  text.label->hide();
  text.grid->addWidget(field, text.row, text.column, text.rowSpan, text.columnSpan);
}

}  // namespace

QString FirstLines(const QString& text) {
  const qsizetype lines = text.count(u'\n') + 1;
  if (lines <= kMostLines) return text;
  const qsizetype more = lines - kMostLines;
  const QString remark = more == 1 ? u"(1 more line)"_s : u"(%1 more lines)"_s.arg(more);
  return text.section(u'\n', 0, kMostLines - 1) + u'\n' + remark;
}

void ScrollLongText(QMessageBox& box) {
  const QSize screen = box.screen()->availableSize();
  const QFontMetrics metrics = box.fontMetrics();
  const QRect broken = metrics.boundingRect(QRect(0, 0, kWidthOfLines, QWIDGETSIZE_MAX),
                                            Qt::TextWordWrap | Qt::TextExpandTabs, box.text());
  const int mostHeight = static_cast<int>(screen.height() * kShareOfHeight);
  if (broken.height() <= mostHeight) return;

  auto* field = new QPlainTextEdit(box.text(), &box);
  field->setReadOnly(true);
  field->setTabChangesFocus(true);
  field->setAccessibleName(box.windowTitle());
  const int mostWidth = static_cast<int>(screen.width() * kShareOfWidth);
  field->setFixedSize(std::min(mostWidth, kWidthOfLines), mostHeight);
  PutInPlaceOfLabel(box, field);
}

}  // namespace mortane
