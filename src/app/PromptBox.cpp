#include "app/PromptBox.h"

#include <QApplication>
#include <QPushButton>
#include <array>

#include "app/BoxText.h"
#include "app/LongText.h"
#include "app/ShownText.h"

namespace mortane {
namespace {

constexpr int kButtonSetBits = 0x0F;
constexpr int kIconBits = 0xF0;

struct IconRow {
  int style;
  QMessageBox::Icon icon;
};

constexpr std::array<IconRow, 4> kIcons{{
    {box::kCritical, QMessageBox::Critical},
    {box::kQuestion, QMessageBox::Question},
    {box::kExclamation, QMessageBox::Warning},
    {box::kInformation, QMessageBox::Information},
}};

// The toolkit knows a standard button for each but the last two, which bear their own text.
struct ButtonRow {
  int buttonSet;
  Answer answer;
  QMessageBox::StandardButton standard;
  QMessageBox::ButtonRole role;
  const char* text;
};

constexpr std::array<ButtonRow, 8> kButtons{{
    {box::kOk, Answer::Ok, QMessageBox::Ok, QMessageBox::AcceptRole, nullptr},
    {box::kOkCancel, Answer::Ok, QMessageBox::Ok, QMessageBox::AcceptRole, nullptr},
    {box::kOkCancel, Answer::Cancel, QMessageBox::Cancel, QMessageBox::RejectRole, nullptr},
    {box::kYesNo, Answer::Yes, QMessageBox::Yes, QMessageBox::YesRole, nullptr},
    {box::kYesNo, Answer::No, QMessageBox::No, QMessageBox::NoRole, nullptr},
    {box::kCancelTryContinue, Answer::Cancel, QMessageBox::Cancel, QMessageBox::RejectRole,
     nullptr},
    {box::kCancelTryContinue, Answer::TryAgain, QMessageBox::NoButton, QMessageBox::AcceptRole,
     "&Try Again"},
    {box::kCancelTryContinue, Answer::Continue, QMessageBox::NoButton, QMessageBox::AcceptRole,
     "&Continue"},
}};

constexpr char kAnswerProperty[] = "answer";

QMessageBox::Icon IconOf(int style) {
  for (const IconRow& row : kIcons) {
    if ((style & kIconBits) == row.style) return row.icon;
  }
  return QMessageBox::NoIcon;
}

// The first button of a set is the one that Enter presses.
void AddButtons(QMessageBox& box, int style) {
  for (const ButtonRow& row : kButtons) {
    if (row.buttonSet != (style & kButtonSetBits)) continue;
    QPushButton* button = row.text == nullptr
                              ? box.addButton(row.standard)
                              : box.addButton(QString::fromLatin1(row.text), row.role);
    button->setProperty(kAnswerProperty, static_cast<int>(row.answer));
    if (box.defaultButton() == nullptr) box.setDefaultButton(button);
  }
}

}  // namespace

// Without a window manager no window is ever active.
QWidget* ParentOfBoxes() {
  if (QWidget* active = QApplication::activeWindow()) return active;
  if (QWidget* modal = QApplication::activeModalWidget()) return modal;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible() && window->windowType() == Qt::Window) return window;
  }
  return nullptr;
}

PromptBox::PromptBox(const std::string& text, int style, const std::string& caption)
    : box_(new CopiedBox(
          IconOf(style),
          caption.empty() ? QApplication::applicationName() : QString::fromStdString(caption),
          FirstLines(ShownText(text)), ParentOfBoxes())) {
  AddButtons(*box_, style);
  box_->defaultButton()->setFocus();  // and not the text, which takes the focus, too
  ScrollLongText(*box_);
}

PromptBox::~PromptBox() {
  delete box_;
}

Answer PromptBox::Ask() {
  box_->exec();
  if (box_ == nullptr) return Answer::Cancel;
  const QAbstractButton* clicked = box_->clickedButton();
  return clicked == nullptr ? Answer::Cancel
                            : static_cast<Answer>(clicked->property(kAnswerProperty).toInt());
}

void PromptBox::Close() {
  if (box_ != nullptr && box_->isVisible()) box_->reject();
}

}  // namespace mortane
