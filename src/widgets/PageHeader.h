// The strip at the top of a page: icon, title and, where the page has sections, their bar.
#pragma once

#include <QWidget>

#include "widgets/Icons.h"

class QLabel;
class QVBoxLayout;

namespace mortane {

class SectionBar;

class PageHeader : public QWidget {
  Q_OBJECT

 public:
  PageHeader(IconName icon, const QString& title, QWidget* parent = nullptr);

  // The bar begins at the same place on every section of a page: start, measured from the left
  // edge of the page, or behind a title that is wider.
  SectionBar* AddSectionBar(int start);
  [[nodiscard]] SectionBar* sectionBar() const { return sectionBar_; }
  [[nodiscard]] QString title() const;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  IconName icon_;
  QLabel* title_ = nullptr;
  SectionBar* sectionBar_ = nullptr;
};

// The layout of a page: margins and distances of the grid, the header first.
QVBoxLayout* MakePageLayout(QWidget* page, PageHeader* header);

}  // namespace mortane
