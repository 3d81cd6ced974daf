#include "widgets/ContainerPage.h"

#include <QAbstractButton>
#include <QScrollArea>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "widgets/PageHeader.h"
#include "widgets/SectionBar.h"

namespace mortane {

ContainerPage::ContainerPage(IconName icon, const QString& title, QWidget* parent,
                             NotOffered notOffered)
    : Page(parent), notOffered_(notOffered) {
  Header = new PageHeader(icon, title, this);
  Header->AddSectionBar();
  connect(sections(), &SectionBar::selectionChanged, this, &ContainerPage::Open);
  QVBoxLayout* column = MakePageLayout(this, Header);
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

void ContainerPage::SetSections(std::vector<Section> sections, std::vector<int> loaded) {
  sections_ = std::move(sections);
  loaded_ = std::move(loaded);
  offered_.assign(sections_.size(), true);
  for (const Section& section : sections_) {
    // The option comes first, so that the Tab key reaches it before the sub-page.
    this->sections()->AddOption(section.caption);
    section.page->hide();
    stack_->addWidget(section.page);
  }
}

// All sections are asked before a sub-page is loaded, since loading may change the model.
void ContainerPage::LoadData() {
  for (int i = 0; i < sections()->count(); ++i) {
    const bool offered = AskOffered(i);
    offered_[static_cast<std::size_t>(i)] = offered;
    if (notOffered_ == NotOffered::Hidden) {
      sections()->SetOptionVisible(i, offered);
    } else {
      sections()->SetOptionEnabled(i, offered, section(i).whyNotOffered);
    }
  }
  for (const int index : loaded_) {
    if (IsOffered(index)) section(index).page->LoadData();
  }
  sections()->select(FirstSection());
}

void ContainerPage::SaveData() {
  for (const int index : loaded_) {
    if (AskOffered(index)) section(index).page->SaveData();
  }
}

void ContainerPage::ShowStored() {
  for (std::size_t i = 0; i < sections_.size(); ++i) {
    if (offered_[i]) sections_[i].page->ShowStored();
  }
}

int ContainerPage::CurrentItem() const {
  return sections()->selected();
}

int ContainerPage::SectionOf(const QWidget& subPage) const {
  const auto found =
      std::find_if(sections_.begin(), sections_.end(),
                   [&subPage](const Section& section) { return section.page == &subPage; });
  return found == sections_.end() ? -1 : static_cast<int>(found - sections_.begin());
}

bool ContainerPage::OpenSection(int index) {
  const QAbstractButton* option = sections()->option(index);
  if (option == nullptr || !option->isEnabled() || option->isHidden()) return false;
  sections()->select(index);
  return true;
}

SectionBar* ContainerPage::sections() const {
  return Header->sectionBar();
}

int ContainerPage::FirstSection() const {
  const auto first = std::find(offered_.begin(), offered_.end(), true);
  return first == offered_.end() ? 0 : static_cast<int>(first - offered_.begin());
}

bool ContainerPage::IsOffered(int index) const {
  return offered_[static_cast<std::size_t>(index)];
}

void ContainerPage::Open(int index) {
  if (shown_ != nullptr) shown_->hide();
  const Section& opened = section(index);
  shown_ = opened.page;
  if (opened.open) {
    opened.open();
  } else {
    shown_->LoadData();
  }
  shown_->show();
  Q_EMIT Change(index);
}

const Section& ContainerPage::section(int index) const {
  return sections_[static_cast<std::size_t>(index)];
}

bool ContainerPage::AskOffered(int index) const {
  const Section& asked = section(index);
  return !asked.isOffered || asked.isOffered();
}

}  // namespace mortane
