#include "app/SelFileItemDlg.h"

#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>

#include "app/DialogLayout.h"
#include "hub/clsK70.h"
#include "widgets/ListBox.h"
#include "widgets/QtText.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

constexpr std::int16_t kWanted = -1;
constexpr std::int16_t kNotWanted = 0;

}  // namespace

SelFileItemDlg::SelFileItemDlg(clsK70& k70, QWidget* parent, const std::string& whyEmpty)
    : QDialog(parent), k70_(k70) {
  List1 = new ListBox(this);
  Datalist = new ListBox(this);
  OkButton = new QPushButton(u"&OK"_s, this);
  CancelButton = new QPushButton(u"&Cancel"_s, this);
  setWindowTitle(u"Select File Items"_s);
  List1->setAccessibleName(windowTitle());
  Datalist->hide();
  for (const FileSection& section : kFileSections) {
    Datalist->addRow(ToQString(section.label));
  }

  ArrangeDialog(*this, nullptr, *List1, *OkButton, *CancelButton);
  connect(OkButton, &QPushButton::clicked, this, &QDialog::accept);
  connect(List1, &ListBox::rowChecked, this, [this](int position, bool checked) {
    k70_.FileItem(static_cast<std::int16_t>(position), checked ? kWanted : kNotWanted);
  });
  LoadList();
  if (List1->rowCount() == 0) ShowWhyEmpty(whyEmpty);
  ShowAllRows();
}

// In the place of the rows, and for screen readers.
void SelFileItemDlg::ShowWhyEmpty(const std::string& why) {
  auto* label = new QLabel(QString::fromStdString(why), List1->viewport());
  label->setObjectName("WhyEmpty");
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  label->setForegroundRole(QPalette::PlaceholderText);
  label->setAlignment(Qt::AlignCenter);
  (new QVBoxLayout(List1->viewport()))->addWidget(label);
  List1->setAccessibleDescription(label->text());
}

// Wherever the screen has the room, the list of all sections is not scrolled.
void SelFileItemDlg::ShowAllRows() {
  ListBox all(nullptr);
  for (int i = 0; i < Datalist->rowCount(); ++i) all.addRow(Datalist->text(i));
  all.SetRowChecked(0, true);
  const int rows = Datalist->rowCount() * all.visualItemRect(all.topLevelItem(0)).height() +
                   2 * List1->frameWidth();
  const int more = rows - List1->sizeHint().height();
  if (more > 0) resize(width(), std::min(height() + more, screen()->availableSize().height()));
}

// The items are asked one by one as the list grows: checking a new line writes the item of its
// position, which is never ahead of the one that is asked.
void SelFileItemDlg::LoadList() {
  for (int i = 0; i < Datalist->rowCount(); ++i) {
    if (k70_.FileItem(static_cast<std::int16_t>(i)) == kNotWanted) continue;
    List1->SetRowChecked(List1->addRow(Datalist->text(i)), true);
  }
}

void SelFileItemDlg::reject() {
  for (int i = 0; i < Datalist->rowCount(); ++i) {
    k70_.FileItem(static_cast<std::int16_t>(i), kNotWanted);
  }
  QDialog::reject();
}

}  // namespace mortane
