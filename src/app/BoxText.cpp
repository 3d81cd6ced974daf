#include "app/BoxText.h"

#include <QClipboard>
#include <QGridLayout>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QStyle>
#include <QTextDocumentFragment>

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

// Of a title bar, beside its text.
constexpr int kKeysInTitleBar = 4;

// The field that stands in the place of the label of a long text; nullptr without one.
QPlainTextEdit* FieldOf(const QMessageBox& box) {
  return box.findChild<QPlainTextEdit*>();
}

}  // namespace

BoxLabel FindBoxLabel(const QMessageBox& box) {
  BoxLabel found{box.findChild<QLabel*>(u"qt_msgbox_label"_s),
                 static_cast<QGridLayout*>(box.layout())};
  found.grid->getItemPosition(found.grid->indexOf(found.label), &found.row, &found.column,
                              &found.rowSpan, &found.columnSpan);
  return found;
}

CopiedBox::CopiedBox(Icon icon, const QString& title, const QString& text, QWidget* parent)
    : QMessageBox(icon, title, text, NoButton, parent) {
  setTextFormat(Qt::PlainText);
  setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  LeaveRoomForTitle();
}

// A box of a few words is as wide as its title all the same. The room is the column's: a minimum of
// the label itself would stand in place of the width of its text, and cut a text that is longer.
void CopiedBox::LeaveRoomForTitle() {
  const int bar = style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, this);
  const BoxLabel text = FindBoxLabel(*this);
  text.grid->setColumnMinimumWidth(
      text.column, fontMetrics().horizontalAdvance(windowTitle()) + kKeysInTitleBar * bar);
}

void CopiedBox::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::SelectAll)) return SelectText();
  if (event->matches(QKeySequence::Copy)) return CopyText();
  QMessageBox::keyPressEvent(event);
}

void CopiedBox::SelectText() {
  if (QPlainTextEdit* field = FieldOf(*this)) return field->selectAll();
  QLabel* label = FindBoxLabel(*this).label;
  label->setSelection(0, static_cast<int>(label->text().size()));
}

void CopiedBox::CopyText() const {
  QString selected;
  if (const QPlainTextEdit* field = FieldOf(*this)) {
    selected = field->textCursor().selection().toPlainText();
  } else {
    selected = FindBoxLabel(*this).label->selectedText().replace(QChar::ParagraphSeparator, u'\n');
  }
  const QString all = windowTitle() + u"\n\n"_s + text();
  QGuiApplication::clipboard()->setText(selected.isEmpty() ? all : selected);
}

}  // namespace mortane
