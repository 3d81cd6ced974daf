#include "app/DialogLayout.h"

#include <QDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/GetAppIcon.h"

namespace mortane {
namespace {

constexpr int kWidth = 430;
constexpr int kMargin = 20;
constexpr int kRelatedGap = 8;
constexpr int kGroupGap = 12;
constexpr int kButtonWidth = 96;

}  // namespace

void ArrangeDialog(QDialog& dialog, QLabel* text, QWidget& list, QPushButton& ok,
                   QPushButton& cancel) {
  dialog.setWindowIcon(GetAppIcon());
  dialog.setModal(true);
  dialog.setMinimumWidth(kWidth);

  auto* rows = new QVBoxLayout(&dialog);
  rows->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  rows->setSpacing(kGroupGap);
  if (text != nullptr) rows->addWidget(text);
  rows->addWidget(&list, 1);

  auto* buttons = new QHBoxLayout;
  buttons->setSpacing(kRelatedGap);
  buttons->addStretch();
  for (QPushButton* button : {&ok, &cancel}) {
    button->setMinimumWidth(kButtonWidth);
    buttons->addWidget(button);
  }
  rows->addLayout(buttons);

  ok.setDefault(true);
  cancel.setAutoDefault(false);
  QObject::connect(&cancel, &QPushButton::clicked, &dialog, &QDialog::reject);
  dialog.resize(kWidth, dialog.sizeHint().height());
}

}  // namespace mortane
