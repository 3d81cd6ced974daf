// Draws the rows of a list: grid height, no focus rectangle, dimmed, checked and pending rows.
#pragma once

#include <QStyledItemDelegate>

namespace mortane {

inline constexpr int kDimmedRole = Qt::UserRole + 1;
inline constexpr int kCheckedRole = Qt::UserRole + 2;  // the check last told
inline constexpr int kNotSentRole = Qt::UserRole + 3;  // words beside the dot of a pending row

class RowDelegate : public QStyledItemDelegate {
  Q_OBJECT

 public:
  explicit RowDelegate(QObject* parent);

  void SetLeastHeight(int pixels) { leastHeight_ = pixels; }
  // Texts that are wider than their column go on in as many lines.
  void SetLines(int lines) { lines_ = lines; }
  [[nodiscard]] int lines() const { return lines_; }
  [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                               const QModelIndex& index) const override;
  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
  // A cell that is elided shows its whole text, a row with a dot what the dot means.
  bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

 private:
  [[nodiscard]] bool IsShownWhole(const QStyleOptionViewItem& option,
                                  const QModelIndex& index) const;

  int leastHeight_;
  int lines_ = 1;
};

}  // namespace mortane
