#include "widgets/ContainerPage.h"

#include <QScrollArea>
#include <QVBoxLayout>

#include "widgets/PageHeader.h"
#include "widgets/SectionBar.h"

namespace mortane {

ContainerPage::ContainerPage(IconName icon, const QString& title, int sectionStart, QWidget* parent)
    : Page(parent), header_(new PageHeader(icon, title, this)) {
  header_->AddSectionBar(sectionStart);
  connect(sections(), &SectionBar::selectionChanged, this, &ContainerPage::ShowSubPage);
  QVBoxLayout* column = MakePageLayout(this, header_);
  auto* scroll = new QScrollArea(this);
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setWidgetResizable(true);
  scroll->setFocusPolicy(Qt::NoFocus);
  auto* panel = new QWidget;
  stack_ = new QVBoxLayout(panel);
  stack_->setContentsMargins(0, 0, 0, 0);
  scroll->setWidget(panel);
  column->addWidget(scroll, 1);
}

int ContainerPage::AddSubPage(const QString& caption, Page* page) {
  // The option comes first, so that the Tab key reaches it before the sub-page.
  const int index = sections()->AddOption(caption);
  page->hide();
  stack_->addWidget(page);
  subPages_.append(page);
  return index;
}

SectionBar* ContainerPage::sections() const {
  return header_->sectionBar();
}

int ContainerPage::CurrentItem() const {
  return sections()->selected();
}

void ContainerPage::ShowSubPage(int index) {
  if (shown_ != nullptr) shown_->hide();
  shown_ = subPages_[index];
  shown_->LoadData();
  shown_->show();
}

}  // namespace mortane
