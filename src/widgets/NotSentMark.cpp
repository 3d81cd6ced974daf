#include "widgets/NotSentMark.h"

#include <QAbstractButton>
#include <QHelpEvent>
#include <QVariant>

#include "widgets/ElidedTip.h"
#include "widgets/NotSent.h"
#include "widgets/StyleProperties.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

// Lives with the dot of its parent, keeps the parent's own description and tells the note in a tool
// tip. A drop-down list shows its tip itself.
class NotSentTip : public QObject {
 public:
  explicit NotSentTip(QWidget& control)
      : QObject(&control), ownDescription_(control.accessibleDescription()) {
    setObjectName(kName);
    if (qobject_cast<QAbstractButton*>(&control) != nullptr) control.installEventFilter(this);
  }

  static constexpr QLatin1StringView kName{"NotSentTip"};
  static NotSentTip* Of(const QWidget& control) {
    return static_cast<NotSentTip*>(control.findChild<QObject*>(kName, Qt::FindDirectChildrenOnly));
  }

  [[nodiscard]] const QString& ownDescription() const { return ownDescription_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::ToolTip) return false;
    ShowWholeText(*static_cast<QHelpEvent*>(event), *static_cast<QWidget*>(watched), {}, Fits::Yes);
    return true;
  }

 private:
  QString ownDescription_;
};

}  // namespace

QString NoteOfNotSent(const QWidget& control) {
  return control.property(kNotSentProperty).toString();
}

void MarkNotSent(QWidget& control, const std::optional<QString>& was) {
  const QString note = NotSent(was);
  if (note == NoteOfNotSent(control)) return;
  control.setProperty(kNotSentProperty, note);
  NotSentTip* tip = NotSentTip::Of(control);
  if (tip == nullptr) tip = new NotSentTip(control);
  QStringList description{tip->ownDescription(), note};
  description.removeAll(QString());
  control.setAccessibleDescription(description.join(u", "_s));
  if (note.isEmpty()) delete tip;
  control.update();
}

}  // namespace mortane
