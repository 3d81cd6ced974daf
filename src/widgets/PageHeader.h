// The strip at the top of a page: icon, title and, where the page has sections, their bar.
#pragma once

#include <QLabel>
#include <QWidget>

#include "widgets/Icons.h"

class QVBoxLayout;

namespace mortane {

class SectionBar;

// A heading to screen readers.
class PageTitle : public QLabel {
  Q_OBJECT

 public:
  using QLabel::QLabel;
};

class PageHeader : public QWidget {
  Q_OBJECT

 public:
  PageHeader(IconName icon, const QString& title, QWidget* parent = nullptr);

  // The bar begins at the same place on all pages of the program; in a narrow window it stands
  // below the title.
  SectionBar* AddSectionBar();
  [[nodiscard]] SectionBar* sectionBar() const { return sectionBar_; }
  [[nodiscard]] QString title() const;
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  bool event(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  [[nodiscard]] int TitleHeight() const;
  void Arrange();

  IconName icon_;
  PageTitle* title_ = nullptr;
  SectionBar* sectionBar_ = nullptr;
};

// The layout of a page: margins and distances of the grid, the header first.
QVBoxLayout* MakePageLayout(QWidget* page, PageHeader* header);

}  // namespace mortane
