#include "widgets/TextField.h"

#include <QApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QPointer>
#include <QStyle>
#include <QTimer>
#include <algorithm>

#include "widgets/Style.h"
#include "widgets/TextValidator.h"
#include "widgets/Theme.h"

namespace mortane {
namespace {

constexpr int kTextMargin = 6;

// Undoes a move of the focus that a refused text forbids. The press that moved it is delivered
// after the focus, so it is swallowed until the focus is back.
class FocusVeto : public QObject {
 public:
  static bool IsRunning() { return running != nullptr; }

  static void Start(TextField* field) {
    if (running == nullptr) running = new FocusVeto(field);
  }

  FocusVeto(const FocusVeto&) = delete;
  FocusVeto& operator=(const FocusVeto&) = delete;
  FocusVeto(FocusVeto&&) = delete;
  FocusVeto& operator=(FocusVeto&&) = delete;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    switch (event->type()) {
      case QEvent::MouseButtonPress:
      case QEvent::MouseButtonRelease:
      case QEvent::MouseButtonDblClick:
      case QEvent::Wheel:
      case QEvent::KeyPress:
        return watched->isWidgetType();
      default:
        return false;
    }
  }

 private:
  explicit FocusVeto(TextField* field) : QObject(qApp), field_(field) {
    qApp->installEventFilter(this);
    QTimer::singleShot(0, this, [this] { Finish(); });
  }

  ~FocusVeto() override { running = nullptr; }

  void Finish() {
    qApp->removeEventFilter(this);
    if (field_ != nullptr) {
      field_->setFocus(Qt::OtherFocusReason);
      field_->selectAll();
    }
    delete this;
  }

  inline static FocusVeto* running = nullptr;
  QPointer<TextField> field_;
};

// Shift, arrows, Tab and Delete make no character, and neither does a command key combination.
bool MakesCharacter(const QKeyEvent& event) {
  switch (event.key()) {
    case Qt::Key_Backspace:
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Escape:
      return true;
    default:
      break;
  }
  const Qt::KeyboardModifiers held = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier);
  if (held == Qt::ControlModifier || held == Qt::AltModifier) return false;
  return !event.text().isEmpty() && event.text().at(0).isPrint();
}

bool IsBlank(const QString& text) {
  return std::all_of(text.begin(), text.end(), [](QChar c) { return c == QLatin1Char(' '); });
}

}  // namespace

TextField::TextField(QWidget* parent) : QLineEdit(parent) {
  setTextMargins(kTextMargin, 0, kTextMargin, 0);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  connect(this, &QLineEdit::textChanged, this, [this] { ColourText(); });
}

void TextField::SetLimit(int characters) {
  setValidator(new TextValidator(characters, this));
}

void TextField::SetMark(const QString& dashes, LeftBlank leftBlank) {
  mark_ = dashes;
  leftBlank_ = leftBlank;
  ColourText();
}

void TextField::setText(const QString& text) {
  SetRefused(false);
  const auto* limit = qobject_cast<const TextValidator*>(validator());
  QLineEdit::setText(limit != nullptr ? FirstCharacters(text, limit->limit()) : text);
}

void TextField::setValidation(std::function<bool()> accepts, std::function<void()> complain) {
  accepts_ = std::move(accepts);
  complain_ = std::move(complain);
}

bool TextField::validate() {
  if (!accepts_) return true;
  if (validating_) return false;
  validating_ = true;
  const bool accepted = accepts_();
  if (!accepted) {
    SetRefused(true);
    selectAll();
    if (complain_) complain_();
  }
  validating_ = false;
  return accepted;
}

bool TextField::isRefused() const {
  return property(kRefusedProperty).toBool();
}

void TextField::SetWidthFor(int characters) {
  const int text = fontMetrics().horizontalAdvance(QString(characters, QLatin1Char('0')));
  setFixedWidth(text + 2 * kTextMargin + 2 * grid::kBetweenControls);
}

void TextField::keyPressEvent(QKeyEvent* event) {
  SetRefused(false);
  if (!isReadOnly() && MakesCharacter(*event)) WipeMark();
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    event->accept();
    if (!event->isAutoRepeat()) emit entered();
    return;
  }
  QLineEdit::keyPressEvent(event);
}

void TextField::inputMethodEvent(QInputMethodEvent* event) {
  if (!isReadOnly() && !event->commitString().isEmpty()) WipeMark();
  QLineEdit::inputMethodEvent(event);
}

void TextField::focusOutEvent(QFocusEvent* event) {
  QLineEdit::focusOutEvent(event);
  if (!IsLeaving(event->reason())) return;
  if (!validate()) {
    FocusVeto::Start(this);
    return;
  }
  const bool marked = leftBlank_ == LeftBlank::GetsMark && !mark_.isEmpty();
  if (marked && IsBlank(text())) setText(mark_);
  emit left();
}

bool TextField::IsLeaving(Qt::FocusReason reason) const {
  if (reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason ||
      reason == Qt::MenuBarFocusReason)
    return false;
  if (!isEnabled() || validating_ || FocusVeto::IsRunning()) return false;
  return QApplication::focusWidget() != nullptr;
}

void TextField::SetRefused(bool refused) {
  if (isRefused() == refused) return;
  setProperty(kRefusedProperty, refused);
  update();
}

void TextField::WipeMark() {
  if (ShowsMark()) clear();
}

void TextField::ColourText() {
  QPalette own;
  if (ShowsMark()) {
    const QColor dim = QApplication::palette().color(QPalette::PlaceholderText);
    own.setColor(QPalette::Active, QPalette::Text, dim);
    own.setColor(QPalette::Inactive, QPalette::Text, dim);
  }
  setPalette(own);
}

}  // namespace mortane
