// The dark strip of page buttons.
#pragma once

#include <QVector>
#include <QWidget>

#include "widgets/Icons.h"

namespace mortane {

class PageButton;
class RovingTabStop;

// One Tab stop. Up, Down, Home and End only move the focus, Space selects.
class Rail : public QWidget {
  Q_OBJECT

 public:
  explicit Rail(QWidget* parent = nullptr);

  // The index of the new button, which has no name.
  int AddPage(IconName icon, const QString& text);
  [[nodiscard]] PageButton* button(int index) const { return buttons_[index]; }
  [[nodiscard]] int count() const { return static_cast<int>(buttons_.size()); }
  [[nodiscard]] int selected() const { return selected_; }  // -1 before the first selection
  // Raises selectionChanged for a new page only, whoever selects it.
  void select(int index);
  void SetPageEnabled(int index, bool enabled);

 Q_SIGNALS:
  void selectionChanged(int index);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QVector<PageButton*> buttons_;
  RovingTabStop* stop_;
  int selected_ = -1;
};

}  // namespace mortane
