#include "Monkey.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QTabBar>
#include <QTest>
#include <QToolButton>
#include <QWheelEvent>
#include <array>

#include "widgets/CommandKey.h"

namespace mortane::test {

using namespace Qt::StringLiterals;
namespace {

// A start takes as long as a hundred events.
constexpr std::uint32_t kEndsEvery = 10;

// A command takes as long as ten edits.
constexpr int kCommandOnceIn = 3;

constexpr std::array kKeys{Qt::Key_Tab,    Qt::Key_Backtab,  Qt::Key_Space, Qt::Key_Return,
                           Qt::Key_Enter,  Qt::Key_Up,       Qt::Key_Down,  Qt::Key_Left,
                           Qt::Key_Right,  Qt::Key_Home,     Qt::Key_End,   Qt::Key_PageUp,
                           Qt::Key_F10,    Qt::Key_Delete,   Qt::Key_F4,    Qt::Key_Escape,
                           Qt::Key_Insert, Qt::Key_Backspace};

// Numbers at and beyond the bounds of fields, marks, and what is no number.
constexpr std::array kTexts{"0",      "-1",         "200",      "200.1",
                            "1e300",  "nan",        "2,5",      "0.125",
                            "999999", "-100000.01", "A",        "Clinic 25x plus more",
                            " ",      "----",       "\xC3\xA4", "\xF0\x9F\x94\xAC"};

bool IsWorkedAlone(const QWidget& widget) {
  return qobject_cast<const QAbstractButton*>(&widget) != nullptr ||
         qobject_cast<const QLineEdit*>(&widget) != nullptr ||
         qobject_cast<const QComboBox*>(&widget) != nullptr ||
         qobject_cast<const QTabBar*>(&widget) != nullptr ||
         qobject_cast<const QAbstractItemView*>(widget.parentWidget()) != nullptr;
}

// Of the tool bar and the command bar.
bool IsCommand(const QWidget& widget) {
  return qobject_cast<const QToolButton*>(&widget) != nullptr ||
         qobject_cast<const CommandKey*>(&widget) != nullptr;
}

// What is scrolled away has no region; asking for it takes the longest.
bool IsWorkable(const QWidget& widget) {
  return widget.isVisible() && widget.isEnabled() && IsWorkedAlone(widget) &&
         !widget.visibleRegion().isEmpty();
}

std::string NameOf(const QWidget& widget) {
  return std::string(widget.metaObject()->className()) + " " + widget.objectName().toStdString();
}

}  // namespace

Answer MonkeyPrompts::MsgBox(const std::string& text, int style, const std::string&) {
  boxes.push_back(text);
  if (text.starts_with("Exit Setup?")) {
    const bool agrees = mayEnd && random_() % kEndsEvery == 0;
    agreedToEnd = agreedToEnd || agrees;
    return agrees ? Answer::Ok : Answer::Cancel;
  }
  if ((style & 0xF) == 0) return Answer::Ok;
  if ((style & 0xF) == box::kCancelTryContinue) return Answer::Cancel;
  return Agrees() ? Answer::Ok : Answer::Cancel;
}

Answer MonkeyPrompts::TimedMsgBox(int, const std::string& prompt, int, const std::string&,
                                  const std::string&, int) {
  boxes.push_back(prompt);
  return Agrees() ? Answer::Ok : Answer::TimedOut;
}

std::string MonkeyPrompts::AskFileToOpen(const FileQuestion&) {
  askedToOpen = true;
  const std::size_t index = random_() % (files_.size() + foreign_.size() + 1);
  if (index < files_.size()) return files_[index];
  if (index == files_.size() + foreign_.size()) return {};
  openedForeign = true;
  return foreign_[index - files_.size()];
}

std::string MonkeyPrompts::AskFileToSave(const FileQuestion&) {
  const std::size_t index = random_() % (files_.size() + 1);
  return index == files_.size() ? std::string() : files_[index];
}

Monkey::Monkey(QWidget& window, std::mt19937& random) : window_(window), random_(random) {
  QObject::connect(&dialogs_, &QTimer::timeout, &dialogs_, [this] { WorkDialog(); });
  dialogs_.setSingleShot(true);
  dialogs_.start(0);
}

void Monkey::Act() {
  posted_ = false;
  worked_.clear();
  workedNames_.clear();
  // Not every platform hands the activity back when a dialog ends; keys go to active windows alone.
  if (QApplication::activeWindow() == nullptr) {
    window_.activateWindow();
    QCoreApplication::processEvents();
  }
  NoteWorked(window_.focusWidget());
  ActIn(window_);
  QCoreApplication::processEvents();
  ClosePopup();
  QCoreApplication::processEvents();  // clicks that came while the last of it was at work
}

// Posted like the input of a person who does not wait. What drops input drops it.
void Monkey::PostClick() {
  const std::vector<QWidget*> controls = Controls(window_);
  if (controls.empty()) return;
  QWidget* control = controls[Any(controls)];
  posted_ = true;
  NoteWorked(control);
  const QPointF at = control->rect().center();
  const QPointF global = control->mapToGlobal(at);
  for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
    const bool pressed = type == QEvent::MouseButtonPress;
    QCoreApplication::postEvent(
        control, new QMouseEvent(type, at, global, Qt::LeftButton,
                                 pressed ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier));
  }
}

void Monkey::NoteWorked(const QWidget* control) {
  for (; control != nullptr; control = control->parentWidget()) {
    worked_.insert(control);
    workedNames_.insert(control->objectName());
    workedNames_.insert(QLatin1String(control->metaObject()->className()));
  }
}

std::vector<QWidget*> Monkey::Controls(QWidget& top) const {
  std::vector<QWidget*> controls;
  for (QWidget* widget : top.findChildren<QWidget*>()) {
    if (IsWorkable(*widget)) controls.push_back(widget);
  }
  return controls;
}

void Monkey::ActIn(QWidget& top) {
  const std::vector<QWidget*> controls = Controls(top);
  if (controls.empty()) return;
  std::size_t chosen = Any(controls);
  if (IsCommand(*controls[chosen]) && Below(kCommandOnceIn) != 0) chosen = Any(controls);
  QWidget& control = *controls[chosen];
  NoteWorked(QApplication::focusWidget());
  NoteWorked(&control);
  switch (Below(10)) {
    case 0:
      return Turn(control);
    case 1:
    case 2:
      return Press();
    case 3:
      return Fill(controls);
    default:
      return Click(control);
  }
}

void Monkey::Click(QWidget& control) {
  const QRect area = control.visibleRegion().boundingRect();
  const QPoint at = area.topLeft() + QPoint(Below(area.width()), Below(area.height()));
  last_ = "click on " + NameOf(control);
  const QPointer<QWidget> target(&control);
  QTest::mousePress(&control, Qt::LeftButton, {}, at);
  if (target != nullptr) QTest::mouseRelease(target, Qt::LeftButton, {}, at);
}

void Monkey::Turn(QWidget& control) {
  const QPoint at = control.rect().center();
  last_ = "wheel on " + NameOf(control);
  QWheelEvent turn(at, control.mapToGlobal(at), {}, {0, Below(2) == 0 ? 120 : -120}, Qt::NoButton,
                   Qt::NoModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(&control, &turn);
}

void Monkey::Press() {
  QWidget* focus = QApplication::focusWidget();
  const QWidget* modal = QApplication::activeModalWidget();
  if (focus == nullptr || (modal != nullptr && focus->window() != modal)) return;
  const Qt::Key key = kKeys[Any(kKeys)];
  last_ = "key " + std::to_string(key) + " on " + NameOf(*focus);
  QTest::keyClick(focus, key);
}

// Some of the time in a field, which is then left by a click on a tab.
void Monkey::Fill(const std::vector<QWidget*>& controls) {
  std::vector<QPointer<QWidget>> fields;
  std::vector<QPointer<QWidget>> tabs;
  for (QWidget* control : controls) {
    if (qobject_cast<QLineEdit*>(control) != nullptr) fields.emplace_back(control);
    if (qobject_cast<QTabBar*>(control) != nullptr) tabs.emplace_back(control);
  }
  if (!fields.empty() && Below(2) == 0) ClickIfWorkable(fields[Any(fields)]);
  Type();
  if (!tabs.empty() && Below(2) == 0) ClickIfWorkable(tabs[Any(tabs)]);
}

void Monkey::ClickIfWorkable(QWidget* control) {
  if (control == nullptr || !IsWorkable(*control)) return;
  NoteWorked(control);
  Click(*control);
}

void Monkey::Type() {
  QWidget* focus = QApplication::focusWidget();
  const QWidget* modal = QApplication::activeModalWidget();
  if (focus == nullptr || (modal != nullptr && focus->window() != modal)) return;
  const QString text = QString::fromUtf8(kTexts[Any(kTexts)]);
  last_ = "text " + text.toStdString() + " on " + NameOf(*focus);
  if (Below(2) == 0) QTest::keyClick(focus, Qt::Key_A, Qt::ControlModifier);
  const QPointer<QWidget> target(focus);
  for (const QChar c : text) {
    if (target != nullptr) QTest::sendKeyEvent(QTest::Click, target, Qt::Key_unknown, c, {});
  }
}

// A few acts in the dialog, then one of its buttons.
void Monkey::WorkDialog() {
  dialogs_.start(0);  // also while an act here opens another dialog
  // The menu of a tool button runs an event loop of its own.
  if (QApplication::activePopupWidget() != nullptr) return PressInPopup();
  auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
  if (dialog == nullptr) return;
  if (Below(3) == 0) {
    dialog->reject();
  } else {
    ActIn(*dialog);
  }
}

void Monkey::ClosePopup() {
  for (int i = 0; QApplication::activePopupWidget() != nullptr; ++i) {
    if (i > 4) {
      QApplication::activePopupWidget()->close();
    } else {
      PressInPopup();
    }
    QCoreApplication::processEvents();
  }
}

void Monkey::PressInPopup() {
  QTest::keyClick(QApplication::activePopupWidget(), Below(2) == 0   ? Qt::Key_Down
                                                     : Below(2) == 0 ? Qt::Key_Return
                                                                     : Qt::Key_Escape);
}

}  // namespace mortane::test
