// A list in report view: named columns, a mark in front of each row, one row in bold.
#pragma once

#include "widgets/ListBox.h"

namespace mortane {

class ReportList : public ListBox {
  Q_OBJECT

 public:
  explicit ReportList(const QStringList& headers, QWidget* parent = nullptr);

  [[nodiscard]] QString cell(int row, int column) const;
  void SetCell(int row, int column, const QString& text);
  // Bold for that row and no other; -1 for none.
  void SetBoldRow(int row);
  [[nodiscard]] int boldRow() const { return boldRow_; }
  // High enough for all rows.
  [[nodiscard]] QSize sizeHint() const override;

 protected:
  // In bold, so that no column moves for the row that becomes bold.
  [[nodiscard]] int WidthOf(const QModelIndex& cell) const override;
  [[nodiscard]] QFont MeasuringFont() const override;

 private:
  int boldRow_ = -1;
};

}  // namespace mortane
