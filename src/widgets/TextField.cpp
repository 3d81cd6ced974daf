#include "widgets/TextField.h"

#include <QApplication>
#include <QDropEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <QPointer>
#include <algorithm>
#include <utility>

#include "widgets/ElidedTip.h"
#include "widgets/FocusVeto.h"
#include "widgets/NotSent.h"
#include "widgets/Paint.h"
#include "widgets/StyleProperties.h"
#include "widgets/TextValidator.h"
#include "widgets/Theme.h"

namespace mortane {
namespace {

constexpr int kTextMargin = 6;

// Sets a flag of the field while it lives. A box that stands within may end the field.
class FieldFlag {
 public:
  FieldFlag(const TextField* field, bool& flag, bool value)
      : field_(field), flag_(flag), before_(std::exchange(flag, value)) {}
  ~FieldFlag() {
    if (field_ != nullptr) flag_ = before_;
  }
  FieldFlag(const FieldFlag&) = delete;
  FieldFlag& operator=(const FieldFlag&) = delete;

  bool IsLost() const { return field_ == nullptr; }

 private:
  const QPointer<const TextField> field_;
  bool& flag_;
  const bool before_;
};

bool IsBlank(const QString& text) {
  return std::all_of(text.begin(), text.end(), [](QChar c) { return c == u' '; });
}

}  // namespace

TextField::TextField(QWidget* parent) : QLineEdit(parent) {
  setTextMargins(kTextMargin, 0, kTextMargin, 0);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  connect(this, &QLineEdit::textChanged, this, &TextField::ColourText);
  connect(this, &QLineEdit::selectionChanged, this, &TextField::SelectPlaceholder);
  connect(this, &QLineEdit::cursorPositionChanged, this, &TextField::SelectPlaceholder);
}

void TextField::SetLimit(int characters) {
  setValidator(new TextValidator(characters, this));
}

void TextField::SetPlaceholder(const QString& dashes, LeftBlank leftBlank) {
  placeholder_ = dashes;
  leftBlank_ = leftBlank;
  ColourText();
}

void TextField::setText(const QString& text) {
  SetRefused(false);
  const auto* limit = qobject_cast<const TextValidator*>(validator());
  QLineEdit::setText(limit != nullptr ? FirstCharacters(text, limit->limit()) : text);
}

void TextField::SetCheck(std::function<bool(const QString& text)> accepts,
                         std::function<void()> complain) {
  accepts_ = std::move(accepts);
  complain_ = std::move(complain);
}

bool TextField::Commit() {
  // A message box about the text moves the focus, too.
  if (checking_) return false;
  const FieldFlag checking(this, checking_, true);
  if (accepts_ && !accepts_(text())) {
    SetRefused(true);
    selectAll();
    const std::function<void()> complain = complain_;  // outlives the field
    if (complain) complain();
    return false;
  }
  Q_EMIT committed(text());
  return !checking.IsLost();
}

bool TextField::Leave() {
  if (FocusVeto::IsRunning() || !Commit()) return false;
  const bool returns = leftBlank_ == LeftBlank::GetsPlaceholder && !placeholder_.isEmpty();
  if (returns && IsBlank(text())) setText(placeholder_);
  return true;
}

bool TextField::isRefused() const {
  return property(kRefusedProperty).toBool();
}

void TextField::SetWidthFor(int characters, int least) {
  const auto widthFor = [this](int count, int beside) {
    return fontMetrics().horizontalAdvance(QString(count, u'0')) + 2 * kTextMargin + 2 * beside;
  };
  const int most = widthFor(characters, grid::kBetweenControls);
  setMaximumWidth(most);
  setMinimumWidth(least < characters ? widthFor(least, grid::kUnit) : most);
}

// As wide as it may become, whatever the toolkit takes for a usual line.
QSize TextField::sizeHint() const {
  const QSize usual = QLineEdit::sizeHint();
  return maximumWidth() < QWIDGETSIZE_MAX ? QSize(maximumWidth(), usual.height()) : usual;
}

void TextField::SetPending(const std::optional<QString>& was) {
  if (was_ == was) return;
  if (!was_) ownDescription_ = accessibleDescription();
  was_ = was;
  setAccessibleDescription(was ? NotSent(was) : ownDescription_);
  update();
}

bool TextField::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip && isPending()) {
    ShowWholeText(*static_cast<QHelpEvent*>(event), *this, NotSent(was_), Fits::No);
    return true;
  }
  if (event->type() != QEvent::KeyPress) return QLineEdit::event(event);
  const int key = static_cast<QKeyEvent*>(event)->key();
  const FieldFlag pressed(this, tabKeyPressed_, key == Qt::Key_Tab || key == Qt::Key_Backtab);
  return QLineEdit::event(event);
}

void TextField::keyPressEvent(QKeyEvent* event) {
  SetRefused(false);
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if ((enter || event->key() == Qt::Key_Escape) && ShowsPlaceholder() && !isReadOnly()) clear();
  if (!enter) {
    QLineEdit::keyPressEvent(event);
    return;
  }
  event->accept();
  if (!event->isAutoRepeat()) Commit();
}

void TextField::focusInEvent(QFocusEvent* event) {
  QLineEdit::focusInEvent(event);
  SelectPlaceholder();
}

void TextField::focusOutEvent(QFocusEvent* event) {
  QLineEdit::focusOutEvent(event);
  if (!IsMovedByPerson(event->reason()) || checking_ || FocusVeto::IsRunning()) return;
  const QPointer<TextField> field(this);
  if (!Leave() && field != nullptr) FocusVeto::Start(field);
}

// A file is for the window to take; the toolkit would insert its path.
void TextField::dragEnterEvent(QDragEnterEvent* event) {
  if (event->mimeData()->hasUrls()) return event->ignore();
  QLineEdit::dragEnterEvent(event);
}

// A text that is dropped belongs to the field as one that is typed: the field is left afterwards.
void TextField::dropEvent(QDropEvent* event) {
  setFocus(Qt::MouseFocusReason);
  if (event->mimeData()->hasText() && ShowsPlaceholder()) clear();
  QLineEdit::dropEvent(event);
}

void TextField::paintEvent(QPaintEvent* event) {
  QLineEdit::paintEvent(event);
  if (!isPending()) return;
  QPainter painter(this);
  DrawPendingDot(painter, {width() - kPendingRoom / 2.0 - 1, height() / 2.0},
                 palette().color(QPalette::Link), palette().color(QPalette::Base));
}

// The toolkit names the Tab key as the reason also when the focused control is hidden or disabled.
bool TextField::IsMovedByPerson(Qt::FocusReason reason) const {
  switch (reason) {
    case Qt::MouseFocusReason:
    case Qt::ShortcutFocusReason:
      return true;
    case Qt::TabFocusReason:
    case Qt::BacktabFocusReason:
      return tabKeyPressed_;
    default:
      return false;
  }
}

void TextField::SetRefused(bool refused) {
  if (isRefused() == refused) return;
  setProperty(kRefusedProperty, refused);
  update();
}

// Selected as a whole the placeholder is replaced as a whole, by whatever kind of edit.
void TextField::SelectPlaceholder() {
  if (hasFocus() && ShowsPlaceholder() && selectedText() != placeholder_) selectAll();
}

void TextField::ColourText() {
  QPalette own;
  if (ShowsPlaceholder()) {
    const QColor dim = QApplication::palette().color(QPalette::PlaceholderText);
    own.setColor(QPalette::Active, QPalette::Text, dim);
    own.setColor(QPalette::Inactive, QPalette::Text, dim);
  }
  setPalette(own);
}

}  // namespace mortane
