// The thin line along the top of the status bar that moves on with each unit of a transfer.
#pragma once

#include <QWidget>

namespace mortane {

class ProgressLine : public QWidget {
  Q_OBJECT

 public:
  explicit ProgressLine(QWidget* parent = nullptr);

  // Repainted before it returns: the thread that paints is the one that transfers.
  void setProgress(int done, int total);
  void clear();
  [[nodiscard]] double fraction() const { return fraction_; }
  [[nodiscard]] QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  double fraction_ = 0;
};

}  // namespace mortane
