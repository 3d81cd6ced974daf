#include "app/DifferencesDlg.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "app/GetAppIcon.h"
#include "app/PendingChanges.h"
#include "record/ItemWords.h"
#include "widgets/Theme.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

constexpr QSize kSize{680, 420};
constexpr int kButtonWidth = 96;
constexpr int kColumns = 3;
constexpr int kChangeRole = Qt::UserRole;

QStringList Cells(const ItemChange& change, const DifferencesDlg::Content& content) {
  return {QString::fromStdString(NameInWords(change.to.key, change.to.kind)),
          QString::fromStdString(ValueInWords(change.from, content.before)),
          QString::fromStdString(ValueInWords(change.to, content.now))};
}

}  // namespace

DifferencesDlg::DifferencesDlg(const Content& content, QWidget* parent) : QDialog(parent) {
  List1 = new QTreeWidget(this);
  ButtonCopy = new QPushButton(u"Copy"_s, this);
  ButtonSaveRecord = new QPushButton(u"Save Record..."_s, this);
  ButtonClose = new QPushButton(u"Close"_s, this);
  setWindowTitle(u"Changes not sent"_s);
  setWindowIcon(GetAppIcon());
  List1->setAccessibleName(windowTitle());
  List1->setHeaderLabels({u"Item"_s, u"Microscope"_s, u"Here"_s});
  List1->setRootIsDecorated(false);
  List1->setIndentation(0);
  List1->setItemsExpandable(false);
  List1->setAllColumnsShowFocus(true);
  List1->setUniformRowHeights(true);
  Fill(content);
  Arrange();
  for (QPushButton* button : Buttons()) {
    button->setAutoDefault(false);  // Enter goes to the row
  }
  connect(List1, &QTreeWidget::itemActivated, this, [this](QTreeWidgetItem* row) { GoTo(*row); });
  connect(ButtonCopy, &QPushButton::clicked, this, [this] { Copy(); });
  connect(ButtonSaveRecord, &QPushButton::clicked, this, content.saveRecord);
  connect(ButtonClose, &QPushButton::clicked, this, &QDialog::reject);
}

std::array<QPushButton*, 3> DifferencesDlg::Buttons() const {
  return {ButtonCopy, ButtonSaveRecord, ButtonClose};
}

void DifferencesDlg::Fill(const Content& content) {
  const QSize room(0, GridHeight(grid::kRowHeight, *List1));
  QTreeWidgetItem* page = nullptr;
  std::size_t pageBefore = 0;
  for (std::size_t i = 0; i < content.changes.size(); ++i) {
    const ItemChange& change = content.changes[i];
    const std::size_t index = PageOf(change.to.key);
    const auto number = QVariant::fromValue(static_cast<uint>(i));
    if (page == nullptr || pageBefore != index) {
      pageBefore = index;
      page = new QTreeWidgetItem(List1, {content.pageTitles.at(index)});
      page->setData(0, kChangeRole, number);
      page->setFont(0, BoldFont());
      page->setSizeHint(0, room);
      page->setFirstColumnSpanned(true);
      page->setExpanded(true);
    }
    const QStringList cells = Cells(change, content);
    auto* row = new QTreeWidgetItem(page, cells);
    row->setData(0, kChangeRole, number);
    row->setSizeHint(0, room);
    for (int column = 0; column < kColumns; ++column) row->setToolTip(column, cells[column]);
  }
  if (QTreeWidgetItem* first = List1->topLevelItem(0)) List1->setCurrentItem(first->child(0));
}

void DifferencesDlg::Arrange() {
  List1->header()->setSectionResizeMode(QHeaderView::Interactive);
  List1->header()->resizeSection(0, kSize.width() * 2 / 5);
  List1->header()->resizeSection(1, kSize.width() / 4);
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(grid::kPageMargin, grid::kPageMargin, grid::kPageMargin,
                           grid::kPageMargin);
  rows->setSpacing(grid::kBetweenGroups);
  rows->addWidget(List1, 1);
  auto* buttons = new QHBoxLayout;
  buttons->setSpacing(grid::kBetweenControls);
  buttons->addStretch();
  for (QPushButton* button : Buttons()) {
    button->setMinimumWidth(kButtonWidth);
    buttons->addWidget(button);
  }
  rows->addLayout(buttons);
  resize(kSize);
}

// One line for each change, its cells parted by tabs; captions as lines of their own.
void DifferencesDlg::Copy() {
  QString text;
  for (int i = 0; i < List1->topLevelItemCount(); ++i) {
    const QTreeWidgetItem& page = *List1->topLevelItem(i);
    text += page.text(0) + u'\n';
    for (int j = 0; j < page.childCount(); ++j) {
      const QTreeWidgetItem& row = *page.child(j);
      text += row.text(0) + u'\t' + row.text(1) + u'\t' + row.text(2) + u'\n';
    }
  }
  QGuiApplication::clipboard()->setText(text);
}

void DifferencesDlg::GoTo(const QTreeWidgetItem& row) {
  chosen_ = row.data(0, kChangeRole).toUInt();
  accept();
}

}  // namespace mortane
