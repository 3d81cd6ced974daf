#include "widgets/ContainerPage.h"

#include <QAbstractButton>
#include <QScrollArea>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "widgets/HidePage.h"
#include "widgets/PageHeader.h"
#include "widgets/SectionBar.h"
#include "widgets/TabOrder.h"

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
  for (std::size_t i = 0; i < sections_.size(); ++i) {
    const auto index = static_cast<int>(i);
    this->sections()->AddOption(sections_[i].caption);
    const SectionPage& page = sections_[i].page;
    if (LatePage* late = page.late()) {
      late->SetPlace(*this, [this, index](Page& made) { TakeIn(index, made); });
    } else {
      TakeIn(index, page.get());
    }
  }
}

// The Tab key reaches a sub-page from its option, whenever it is made.
void ContainerPage::TakeIn(int index, Page& page) {
  page.hide();
  stack_->addWidget(&page);
  PutInTabOrder(page, *sections()->option(index));
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
    if (IsOffered(index)) Load(index);
  }
  sections()->select(FirstSection());
}

void ContainerPage::Load(int index) {
  const SectionPage& page = section(index).page;
  if (LatePage* late = page.late()) {
    late->LoadData();
  } else {
    page.get().LoadData();
  }
}

void ContainerPage::SaveData() {
  for (const int index : loaded_) {
    if (!AskOffered(index)) continue;
    const SectionPage& page = section(index).page;
    if (LatePage* late = page.late()) {
      late->SaveData();
    } else {
      page.get().SaveData();
    }
  }
}

void ContainerPage::ShowStored() {
  for (std::size_t i = 0; i < sections_.size(); ++i) {
    Page* page = sections_[i].page.made();
    if (offered_[i] && page != nullptr) page->ShowStored();
  }
}

int ContainerPage::CurrentItem() const {
  return sections()->selected();
}

int ContainerPage::SectionOf(const QObject& subPage) const {
  const auto found =
      std::find_if(sections_.begin(), sections_.end(), [&subPage](const Section& section) {
        return section.page.late() == &subPage || section.page.made() == &subPage;
      });
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
  if (shown_ != nullptr) HidePage(*shown_);
  shown_ = nullptr;
  const Section& opened = section(index);
  LatePage* late = opened.page.late();
  if (opened.open) {
    opened.open();
  } else if (late != nullptr && isVisible()) {
    late->LoadMade();
  } else {
    Load(index);
  }
  waiting_ = index;
  if (opened.page.made() != nullptr || isVisible()) ShowWaiting();
  Q_EMIT Change(index);
}

void ContainerPage::ShowWaiting() {
  if (waiting_ < 0) return;
  shown_ = &section(std::exchange(waiting_, -1)).page.get();
  shown_->show();
}

Page* ContainerPage::shownSubPage() const {
  return waiting_ < 0 ? shown_ : &section(waiting_).page.get();
}

void ContainerPage::showEvent(QShowEvent* event) {
  ShowWaiting();
  Page::showEvent(event);
}

const Section& ContainerPage::section(int index) const {
  return sections_[static_cast<std::size_t>(index)];
}

bool ContainerPage::AskOffered(int index) const {
  const Section& asked = section(index);
  return !asked.isOffered || asked.isOffered();
}

}  // namespace mortane
