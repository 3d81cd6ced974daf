#include "app/SessionNote.h"

#include <QEvent>
#include <QPainter>
#include <QToolBar>
#include <QToolButton>
#include <algorithm>

#include "app/KeptButton.h"
#include "widgets/Paint.h"
#include "widgets/Theme.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

// In the order of Outcome.
struct Wording {
  std::array<const char*, 3> texts;
};

// In the order of Act.
constexpr std::array<Wording, 4> kWordings{{
    {{"Received %1", "Received %1, with failures", "Receive failed %1"}},
    {{"Sent %1", "Sent %1, with failures", "Send failed %1"}},
    {{"Opened %1", "Opened %1, with failures", "Open failed: %1"}},
    {{"Saved %1", "Saved %1, with failures", "Save failed: %1"}},
}};

constexpr char kBetweenParts[] = " \u00B7 ";

// The dot of a pending change, beside the words.
QIcon DotIcon(const QWidget& widget) {
  constexpr int kSide = 16;
  QPixmap pixmap(QSize(kSide, kSide) * widget.devicePixelRatioF());
  pixmap.setDevicePixelRatio(widget.devicePixelRatioF());
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  const QPalette& palette = widget.palette();
  DrawPendingDot(painter, {kSide / 2.0, kSide / 2.0}, palette.color(QPalette::Link),
                 palette.color(QPalette::Window));
  return pixmap;
}

}  // namespace

QString MicroscopeInWords(const QString& name, bool isSimulation) {
  const QString shown = name.trimmed().isEmpty() ? u"NoName"_s : name;
  return isSimulation ? shown + u", Simulation"_s : shown;
}

QString ChangesNotSent(int count) {
  if (count == 0) return {};
  return count == 1 ? u"1 change not sent"_s : u"%1 changes not sent"_s.arg(count);
}

SessionNote::SessionNote(QToolBar& bar) : ValueLabel(&bar), bar_(bar) {
  ButtonPending = new QToolButton(&bar);
  ButtonKept = new KeptButton(&bar);
  ButtonManual = new QToolButton(&bar);
  for (QToolButton* button : Buttons()) {
    button->setFont(CaptionFont());
    button->setAutoRaise(true);
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setFocusPolicy(Qt::TabFocus);
    button->hide();
  }
  ButtonManual->setText(u"?"_s);
  ButtonManual->setAccessibleName(u"Manual"_s);
  ButtonManual->setToolTip(u"Manual (F1)"_s);
  // F1 does the same, and the Tab key begins with the page buttons.
  ButtonManual->setFocusPolicy(Qt::NoFocus);
  ButtonManual->show();
  setFont(CaptionFont());
  setForegroundRole(QPalette::PlaceholderText);
  bar_.installEventFilter(this);
}

std::array<QToolButton*, 3> SessionNote::Buttons() const {
  return {ButtonManual, ButtonPending, ButtonKept};
}

void SessionNote::ShowMicroscope(const QString& name, bool isSimulation) {
  microscope_ = MicroscopeInWords(name, isSimulation);
  ShowText();
}

void SessionNote::ShowNoMicroscope() {
  microscope_ = u"Not connected"_s;
  done_.clear();
  ShowText();
}

void SessionNote::ShowRunning(const QString& act) {
  done_ = act;
  ShowText();
  repaint();
}

void SessionNote::ShowPending(int changes) {
  const QString text = ChangesNotSent(changes);
  if (text == ButtonPending->text()) return;
  ButtonPending->setText(text);
  ButtonPending->setIcon(DotIcon(*this));
  ButtonPending->setVisible(changes > 0);
  Place();
}

void SessionNote::ShowDone(Act act, Outcome outcome, const QString& subject) {
  const Wording& wording = kWordings[static_cast<std::size_t>(act)];
  done_ = QString::fromLatin1(wording.texts[static_cast<std::size_t>(outcome)]).arg(subject);
  ShowText();
}

void SessionNote::ShowText() {
  QStringList parts{microscope_, done_};
  parts.removeAll(QString());
  setText(parts.join(QString::fromUtf8(kBetweenParts)));
  setAccessibleName(text());  // a screen reader says the name of a label
  Place();
}

bool SessionNote::eventFilter(QObject* watched, QEvent* event) {
  const bool moved = event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest;
  const bool handled = ValueLabel::eventFilter(watched, event);
  if (moved) Place();
  return handled;
}

void SessionNote::Place() {
  const QWidget* last = bar_.widgetForAction(bar_.actions().constLast());
  const int left = last->geometry().right() + grid::kBetweenColumns;
  int right = bar_.width() - grid::kPageMargin;
  for (QToolButton* button : Buttons()) {
    if (button->isHidden()) continue;
    const QSize size = button->sizeHint();
    button->setGeometry(right - size.width(), (bar_.height() - size.height()) / 2, size.width(),
                        size.height());
    right = button->x() - grid::kBetweenControls;
  }
  const int needed = fontMetrics().horizontalAdvance(text());
  const int width = std::clamp(needed, 0, std::max(right - left, 0));
  setGeometry(right - width, 0, width, bar_.height());
}

}  // namespace mortane
