// What the right end of the tool bar says: which microscope is connected, what was done last, and
// how much is not sent.
#pragma once

#include <array>

#include "app/Outcome.h"
#include "widgets/Control.h"
#include "widgets/ValueLabel.h"

class QToolBar;
class QToolButton;

namespace mortane {

class KeptButton;

// A child of the tool bar and none of its buttons. It takes the room that these leave; a text that
// needs more is elided.
class SessionNote : public ValueLabel {
 public:
  explicit SessionNote(QToolBar& bar);

  void ShowMicroscope(const QString& name, bool isSimulation);
  void ShowNoMicroscope();

  enum class Act { Received, Sent, Opened, Saved };
  // While the act runs; painted at once.
  void ShowRunning(const QString& act);
  // `subject` is the time of a transfer or the name of a file.
  void ShowDone(Act act, Outcome outcome, const QString& subject);
  void ShowPending(int changes);

  // "3 changes not sent"; hidden while there are none.
  Control<QToolButton> ButtonPending{"ButtonPending"};

  // "?"
  Control<QToolButton> ButtonManual{"ButtonManual"};

  Control<KeptButton> ButtonKept{"ButtonKept"};

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  [[nodiscard]] std::array<QToolButton*, 3> Buttons() const;  // from right to left
  void ShowText();
  void Place();

  QToolBar& bar_;
  QString microscope_;
  QString done_;
};

// "Harbour, Simulation", "NoName".
QString MicroscopeInWords(const QString& name, bool isSimulation);

// "1 change not sent", "3 changes not sent"; empty for none.
QString ChangesNotSent(int count);

}  // namespace mortane
