#include "widgets/ListBox.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOption>

#include "widgets/ClickFocus.h"
#include "widgets/NotSent.h"
#include "widgets/RowDelegate.h"
#include "widgets/StylePrimitives.h"
#include "widgets/Theme.h"

namespace mortane {

namespace {

constexpr int kIconSide = 22;
constexpr int kRowsAskedFor = 6;

// Carries the header on above the scroll bar.
class HeaderCorner : public QWidget {
 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    QStyleOption option;
    option.initFrom(this);
    DrawHeaderSection(option, painter);
  }
};

}  // namespace

ListBox::ListBox(QWidget* parent) : RowView(parent), headerCorner_(new HeaderCorner) {
  setItemDelegate(new RowDelegate(this));
  setRootIsDecorated(false);
  setUniformRowHeights(true);
  setFocusPolicy(Qt::TabFocus);
  setSelectionMode(SingleSelection);
  setSelectionBehavior(SelectRows);
  setEditTriggers(NoEditTriggers);
  setVerticalScrollMode(ScrollPerItem);
  setHorizontalScrollMode(ScrollPerPixel);
  setTextElideMode(Qt::ElideRight);
  setIndentation(0);
  header()->setSectionsClickable(false);
  header()->setSectionsMovable(false);
  header()->setMinimumSectionSize(16);
  addScrollBarWidget(headerCorner_, Qt::AlignTop);
  SetColumns({{}});
  connect(this, &QTreeWidget::itemChanged, this, [this](QTreeWidgetItem* item, int column) {
    const int row = indexOfTopLevelItem(item);
    if (column != 0 || row < 0) return;
    const bool checked = item->checkState(0) == Qt::Checked;
    if (item->data(0, kCheckedRole).toBool() == checked) return;
    item->setData(0, kCheckedRole, checked);
    Q_EMIT rowChecked(row, checked);
  });
}

void ListBox::SetColumns(const QVector<ListColumn>& columns) {
  columns_ = columns;
  const int count = static_cast<int>(columns.size());
  setColumnCount(count);
  QStringList headers;
  bool named = false;
  for (int i = 0; i < count; ++i) {
    headers.append(columns[i].header);
    named = named || !columns[i].header.isEmpty();
    headerItem()->setTextAlignment(i, columns[i].alignment | Qt::AlignVCenter);
  }
  setHeaderLabels(headers);
  setHeaderHidden(!named);
  header()->setFont(CaptionFont());
  header()->setStretchLastSection(count == 1);
  setHorizontalScrollBarPolicy(count == 1 ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
  ForgetContents();
}

void ListBox::SetTabStops(const QVector<int>& dialogUnits) {
  tabStops_ = dialogUnits;
  ForgetContents();
  FitColumns();
}

void ListBox::ForgetContents() {
  wishes_.clear();
  foldedWishes_.clear();
}

void ListBox::doItemsLayout() {
  ForgetContents();
  RowView::doItemsLayout();
}

void ListBox::dataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight,
                          const QList<int>& roles) {
  ForgetContents();
  RowView::dataChanged(topLeft, bottomRight, roles);
}

void ListBox::changeEvent(QEvent* event) {
  if (event->type() == QEvent::FontChange) ForgetContents();
  RowView::changeEvent(event);
}

void ListBox::SetIconRows(bool iconRows) {
  setIconSize({kIconSide, kIconSide});
  static_cast<RowDelegate*>(itemDelegate())
      ->SetLeastHeight(iconRows ? grid::kIconRowHeight : grid::kRowHeight);
}

int ListBox::addRow(const QString& text, const QVariant& data) {
  return addCells({text}, data);
}

int ListBox::addCells(const QStringList& cells, const QVariant& data) {
  // Complete before the view sees it, which would otherwise look at it at every step.
  auto* item = new QTreeWidgetItem;
  const int count = qMin(static_cast<int>(cells.size()), columnCount());
  for (int i = 0; i < count; ++i) {
    item->setText(i, cells[i]);
    item->setTextAlignment(i, columns_[i].alignment | Qt::AlignVCenter);
  }
  item->setData(0, Qt::UserRole, data);
  addTopLevelItem(item);
  return rowCount() - 1;
}

void ListBox::SetRowIcon(int row, const QIcon& icon) {
  topLevelItem(row)->setIcon(0, icon);
}

void ListBox::SetRowDimmed(int row, bool dimmed) {
  for (int i = 0; i < columnCount(); ++i) topLevelItem(row)->setData(i, kDimmedRole, dimmed);
}

void ListBox::SetRowPending(int row, const std::optional<QString>& was) {
  const QString note = NotSent(was);
  if (note == RowNote(row)) return;
  topLevelItem(row)->setData(0, kNotSentRole, note);
  // The column takes the room of the dot.
  scheduleDelayedItemsLayout();
}

QString ListBox::RowNote(int row) const {
  return topLevelItem(row)->data(0, kNotSentRole).toString();
}

void ListBox::SetRowChecked(int row, bool checked) {
  topLevelItem(row)->setCheckState(0, checked ? Qt::Checked : Qt::Unchecked);
}

bool ListBox::isRowChecked(int row) const {
  return topLevelItem(row)->checkState(0) == Qt::Checked;
}

void ListBox::clearRows() {
  clear();
}

QString ListBox::text(int row) const {
  return cells(row).join(u'\t');
}

QStringList ListBox::cells(int row) const {
  const QTreeWidgetItem* item = topLevelItem(row);
  QStringList cells;
  for (int i = 0; item != nullptr && i < columnCount(); ++i) cells.append(item->text(i));
  return cells;
}

QVariant ListBox::data(int row) const {
  const QTreeWidgetItem* item = topLevelItem(row);
  return item != nullptr ? item->data(0, Qt::UserRole) : QVariant();
}

void ListBox::setData(int row, const QVariant& data) {
  if (QTreeWidgetItem* item = topLevelItem(row)) item->setData(0, Qt::UserRole, data);
}

int ListBox::index() const {
  const QList<QTreeWidgetItem*> selected = selectedItems();
  return selected.isEmpty() ? -1 : indexOfTopLevelItem(selected.first());
}

void ListBox::setIndex(int row) {
  const int before = index();
  SelectQuietly(row);
  if (index() >= 0 && index() != before) Q_EMIT selectionChanged(index());
}

void ListBox::SelectQuietly(int row) {
  QTreeWidgetItem* item = topLevelItem(row);
  if (item == nullptr) {
    setCurrentItem(nullptr);
    clearSelection();
    return;
  }
  setCurrentItem(item);
  scrollToItem(item);
}

int ListBox::RowAt(const QMouseEvent& event) const {
  QTreeWidgetItem* item = itemAt(event.position().toPoint());
  if (item == nullptr || !IsShownWhole(visualItemRect(item))) return -1;
  return indexOfTopLevelItem(item);
}

// The first row on show counts as whole in a list that is lower than a row.
bool ListBox::IsShownWhole(const QRect& row) const {
  return row.top() <= 0 || row.bottom() <= viewport()->rect().bottom();
}

void ListBox::updateGeometries() {
  FitColumns();
  RowView::updateGeometries();
  headerCorner_->setFixedHeight(isHeaderHidden() ? 0 : header()->height());
}

void ListBox::drawRow(QPainter* painter, const QStyleOptionViewItem& option,
                      const QModelIndex& index) const {
  if (IsShownWhole(option.rect)) RowView::drawRow(painter, option, index);
}

// Letters in quick succession are one search; one letter repeated goes from row to row.
void ListBox::keyboardSearch(const QString& typed) {
  if (typed.isEmpty()) return;
  const bool goesOn =
      sinceKey_.isValid() && sinceKey_.elapsed() <= QApplication::keyboardInputInterval();
  sinceKey_.start();
  typed_ = goesOn ? typed_ + typed : typed;
  const bool repeated = typed_ == QString(typed_.size(), typed_.front());
  const QString wanted = repeated ? typed_.left(1) : typed_;
  const int from = repeated ? index() + 1 : qMax(index(), 0);
  for (int i = 0; i < rowCount(); ++i) {
    const int row = (from + i) % rowCount();
    if (!topLevelItem(row)->text(nameColumn_).startsWith(wanted, Qt::CaseInsensitive)) continue;
    SelectQuietly(row);
    return;
  }
}

QFont ListBox::MeasuringFont() const {
  return font();
}

// The click is raised after the view has done with the event, so that a handler may rebuild the
// list or ask a question.
void ListBox::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !TakeFocus(*this)) return;
  const int row = RowAt(*event);
  if (row < 0) return;
  RowView::mousePressEvent(event);
  SelectQuietly(row);
  Q_EMIT selectionChanged(row);
}

void ListBox::mouseMoveEvent(QMouseEvent* event) {
  const int before = index();
  RowView::mouseMoveEvent(event);
  if (index() >= 0 && index() != before) Q_EMIT selectionChanged(index());
}

void ListBox::mouseDoubleClickEvent(QMouseEvent* event) {
  const int row = RowAt(*event);
  if (row != index())
    mousePressEvent(event);
  else
    RowView::mouseDoubleClickEvent(event);
}

void ListBox::keyPressEvent(QKeyEvent* event) {
  const int before = index();
  RowView::keyPressEvent(event);
  if (index() >= 0 && index() != before) Q_EMIT selectionChanged(index());
}

// A view that gets the focus with no current row would make the first one current.
void ListBox::focusInEvent(QFocusEvent* event) {
  if (index() >= 0) RowView::focusInEvent(event);
  update();
  viewport()->update();
}

void ListBox::focusOutEvent(QFocusEvent* event) {
  RowView::focusOutEvent(event);
  update();
}

// A click with the control key would take the selection back.
QItemSelectionModel::SelectionFlags ListBox::selectionCommand(const QModelIndex& index,
                                                              const QEvent* event) const {
  QItemSelectionModel::SelectionFlags flags = RowView::selectionCommand(index, event);
  if (index.isValid() && flags.testFlag(QItemSelectionModel::Deselect)) {
    flags = QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows;
  }
  return flags;
}

QSize ListBox::sizeHint() const {
  const int header = isHeaderHidden() ? 0 : this->header()->sizeHint().height();
  const int row = GridHeight(grid::kRowHeight, *this);
  return {RowView::sizeHint().width(), 2 * frameWidth() + header + row * kRowsAskedFor};
}

}  // namespace mortane
