#include "app/SessionNote.h"

#include <QEvent>
#include <QToolBar>
#include <algorithm>
#include <array>

#include "widgets/Theme.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

struct Wording {
  const char* done;
  const char* failed;
};

// In the order of Act.
constexpr std::array<Wording, 4> kWordings{{
    {"Received %1", "Receive failed %1"},
    {"Sent %1", "Send failed %1"},
    {"Opened %1", "Open failed: %1"},
    {"Saved %1", "Save failed: %1"},
}};

constexpr char kBetweenParts[] = " \u00B7 ";

}  // namespace

SessionNote::SessionNote(QToolBar& bar) : ValueLabel(&bar), bar_(bar) {
  setAccessibleName(u"Session"_s);
  setFont(CaptionFont());
  setForegroundRole(QPalette::PlaceholderText);
  bar_.installEventFilter(this);
}

void SessionNote::ShowMicroscope(const QString& name, bool isSimulation) {
  microscope_ = name.trimmed().isEmpty() ? u"NoName"_s : name;
  if (isSimulation) microscope_ += QString::fromUtf8(kBetweenParts) + u"Simulation"_s;
  ShowText();
}

void SessionNote::ShowNoMicroscope() {
  microscope_ = u"Not connected"_s;
  ShowText();
}

void SessionNote::ShowDone(Act act, bool whole, const QString& subject) {
  const Wording& wording = kWordings[static_cast<std::size_t>(act)];
  done_ = QString::fromLatin1(whole ? wording.done : wording.failed).arg(subject);
  ShowText();
}

void SessionNote::ShowText() {
  QStringList parts{microscope_, done_};
  parts.removeAll(QString());
  setText(parts.join(QString::fromUtf8(kBetweenParts)));
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
  const int right = bar_.width() - grid::kPageMargin;
  const int needed = fontMetrics().horizontalAdvance(text());
  const int width = std::clamp(needed, 0, std::max(right - left, 0));
  setGeometry(right - width, 0, width, bar_.height());
}

}  // namespace mortane
