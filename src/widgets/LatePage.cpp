#include "widgets/LatePage.h"

namespace mortane {

void LatePage::SetPlace(QObject& host, std::function<void(Page&)> place) {
  setParent(&host);
  place_ = std::move(place);
  if (page_ != nullptr) place_(*page_);
}

void LatePage::SetMade(Page* page) const {
  page_ = page;
  page_->setObjectName(name_);
  if (place_) place_(*page_);
}

void LatePage::Make() const {
  if (page_ == nullptr) SetMade(plan_.make());
}

void LatePage::Fill() const {
  if (plan_.fill) {
    plan_.fill(*page_);
  } else {
    page_->LoadData();
  }
}

Page& LatePage::get() const {
  if (page_ != nullptr) return *page_;
  Make();
  if (loaded_) Fill();
  return *page_;
}

void LatePage::LoadData() {
  if (page_ != nullptr || !plan_.load) return LoadMade();
  loaded_ = true;
  const auto load = plan_.load;  // a box may see the end of this object
  const QPointer<LatePage> self(this);
  if (!load() && self) get();
}

void LatePage::SaveData() {
  if (page_ == nullptr && plan_.save && plan_.save()) return;
  get().SaveData();
}

// A page that is made later shows what is stored then.
void LatePage::ShowStored() {
  if (page_ != nullptr) page_->ShowStored();
}

void LatePage::LoadMade() {
  Make();
  page_->LoadData();
}

void MakeLoadedPages(const QObject& object) {
  for (const LatePage* page : object.findChildren<LatePage*>()) {
    if (page->isLoadedUnmade()) page->get();
  }
}

}  // namespace mortane
