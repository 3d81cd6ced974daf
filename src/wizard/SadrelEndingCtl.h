// The last step: what a Send would change, and the Send.
#pragma once

#include <QElapsedTimer>
#include <cstdint>
#include <functional>
#include <string>

#include "widgets/Control.h"
#include "widgets/Page.h"

class QPlainTextEdit;
class QPushButton;

namespace mortane {

class Card;
class PageHeader;
class clsK70;

class SadrelEndingCtl : public Page {
  Q_OBJECT

 public:
  explicit SadrelEndingCtl(clsK70& k70, QWidget* parent = nullptr);

  // Shows what differs from the controller. May raise what asking the controller raises; the old
  // report stays then.
  void LoadData() override;
  // Whether the last loading is less than the time of a double click ago. The second click of one
  // that led here must not send.
  [[nodiscard]] bool IsJustLoaded() const;
  // Sends all. This page may be gone when it returns.
  void Send();

  // Runs before each Send.
  std::function<void()> beforeSend = [] {};

  // -1 when the changes of the report have been sent.
  std::int16_t sent = 0;

  Control<PageHeader> Header{"Header"};
  Control<Card> FrameBase{"FrameBase"};
  Control<QPlainTextEdit> TextResult{"TextResult"};
  Control<QPushButton> ButtonSend{"ButtonSend"};

 Q_SIGNALS:
  // The sending is done.
  void Sent();

 private:
  void Arrange();
  void OnButtonSend();

  clsK70& k70_;
  std::string report_;  // as TextResult was given it
  QElapsedTimer sinceLoad_;
};

}  // namespace mortane
