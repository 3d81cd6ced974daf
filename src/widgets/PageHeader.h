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

  // The bar begins at the same place on all pages of the program. `arrayName` is that of its
  // options.
  SectionBar* AddSectionBar(const char* arrayName);
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
