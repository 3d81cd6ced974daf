// What the right end of the tool bar says: which microscope is connected and what was done last.
#pragma once

#include "widgets/ValueLabel.h"

class QToolBar;

namespace mortane {

// A child of the tool bar and none of its buttons. It takes the room that these leave; a text that
// needs more is elided.
class SessionNote : public ValueLabel {
 public:
  explicit SessionNote(QToolBar& bar);

  void ShowMicroscope(const QString& name, bool isSimulation);
  void ShowNoMicroscope();

  enum class Act { Received, Sent, Opened, Saved };
  // `subject` is the time of a transfer, the name of a file.
  void ShowDone(Act act, bool whole, const QString& subject);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void ShowText();
  void Place();

  QToolBar& bar_;
  QString microscope_;
  QString done_;
};

}  // namespace mortane
