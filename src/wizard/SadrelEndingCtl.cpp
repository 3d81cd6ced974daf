#include "wizard/SadrelEndingCtl.h"

#include <QApplication>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/CommandBoundary.h"
#include "app/ShownText.h"
#include "hub/clsK70.h"
#include "widgets/Card.h"
#include "widgets/ClickFocus.h"
#include "widgets/PageHeader.h"
#include "widgets/Theme.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

constexpr int kWaitAfterSendMs = 3000;
constexpr std::int16_t kSent = -1;

}  // namespace

SadrelEndingCtl::SadrelEndingCtl(clsK70& k70, QWidget* parent) : Page(parent), k70_(k70) {
  Header = new PageHeader(IconName::Flag, u"Ending"_s, this);
  FrameBase = new Card(u"Ending"_s, this);
  TextResult = new QPlainTextEdit(FrameBase);
  ButtonSend = new QPushButton(u"Send to Microscope"_s, FrameBase);
  TextResult->setAccessibleName(u"Changes"_s);
  TextResult->setReadOnly(true);
  TextResult->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  TextResult->setTabChangesFocus(true);
  TextResult->setLineWrapMode(QPlainTextEdit::NoWrap);
  TextResult->document()->setDocumentMargin(grid::kBetweenControls);
  ButtonSend->setAutoDefault(true);  // acts on the Enter key, too
  TakeFocusByClicks(*ButtonSend);
  connect(ButtonSend, &QPushButton::clicked, this, &SadrelEndingCtl::OnButtonSend);
  Arrange();
}

void SadrelEndingCtl::Arrange() {
  FrameBase->body()->addWidget(TextResult, 1);
  FrameBase->body()->addWidget(ButtonSend, 0, Qt::AlignRight);
  MakePageLayout(this, Header)->addWidget(FrameBase, 1);
}

void SadrelEndingCtl::LoadData() {
  TextResult->setFont(FixedFont());
  const std::string report = k70_.Modify();
  sinceLoad_.start();
  if (report == report_) return;
  sent = 0;
  report_ = report;
  TextResult->setPlainText(ShownText(report));
}

bool SadrelEndingCtl::IsJustLoaded() const {
  return sinceLoad_.isValid() && sinceLoad_.elapsed() < QApplication::doubleClickInterval();
}

void SadrelEndingCtl::Send() {
  beforeSend();
  RunStep(k70_.prompts(), [this] { k70_.Send(); });
  sent = kSent;
  Q_EMIT Sent();
}

// The window closes on the event of the sending, so nothing of this page is used after it.
void SadrelEndingCtl::OnButtonSend() {
  if (IsJustLoaded()) return;
  Prompts& prompts = k70_.prompts();
  {
    const HourglassScope hourglass(prompts);
    Send();
    prompts.Wait(kWaitAfterSendMs);
  }
  prompts.FlushInput();
}

}  // namespace mortane
