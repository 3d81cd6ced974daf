// A sub-page that is made when its controls are first needed.
#pragma once

#include <QLatin1String>
#include <QObject>
#include <QPointer>
#include <functional>
#include <type_traits>
#include <utility>

#include "widgets/Page.h"

namespace mortane {

// What happens in place of a page before it is made. Where a function is empty, the page is made
// for it.
struct LatePlan {
  std::function<Page*()> make = {};
  // Does to the controller and the units what LoadData of the page would; false where the page
  // alone can do that, so that it has to be made and filled at once.
  std::function<bool()> load = {};
  // Fills the new page by what those calls brought; LoadData, when empty.
  std::function<void(Page&)> fill = {};
  // False where SaveData of the page would change a unit.
  std::function<bool()> save = {};
};

// For LatePlan::load and LatePlan::save: no unit changes, and no call is made.
inline bool ChangesNothing() {
  return true;
}

// Stands for the page in the page that shows it, its host and parent.
class LatePage : public QObject {
  Q_OBJECT

 public:
  explicit LatePage(const char* name) : name_(name) {}

  // The host puts the new page in its place; it is not filled then.
  void SetPlace(QObject& host, std::function<void(Page&)> place);

  [[nodiscard]] QLatin1String name() const { return name_; }
  [[nodiscard]] Page* made() const { return page_; }  // nullptr before
  // Makes the page and fills it if it was loaded.
  Page& get() const;
  // Whether the page was loaded, and its controls are still to be made.
  [[nodiscard]] bool isLoadedUnmade() const { return page_ == nullptr && loaded_; }

  // As long as the page is not made, the plan acts.
  void LoadData();
  void SaveData();
  void ShowStored();
  // Makes the page and loads it.
  void LoadMade();

 protected:
  void SetPlan(LatePlan plan) { plan_ = std::move(plan); }
  void SetMade(Page* page) const;

 private:
  void Make() const;
  void Fill() const;

  QLatin1String name_;
  LatePlan plan_;
  std::function<void(Page&)> place_;
  mutable QPointer<Page> page_;
  bool loaded_ = false;
};

// Makes the pages below the object that were loaded: before the model changes other than by a
// person who works on a page.
void MakeLoadedPages(const QObject& object);

// The member of a host that is named like the page. Whoever asks for the page makes it.
template <typename Widget>
class LateControl : public LatePage {
 public:
  using LatePage::LatePage;

  // A page that stores nothing when it is saved need not be made for that.
  void Plan(LatePlan plan) {
    if constexpr (std::is_same_v<decltype(&Widget::SaveData), void (Page::*)()> &&
                  !std::is_same_v<Widget, Page>) {
      if (!plan.save) plan.save = ChangesNothing;
    }
    SetPlan(std::move(plan));
  }
  LateControl& operator=(Widget* made) {
    SetMade(made);
    return *this;
  }

  operator Widget*() const { return static_cast<Widget*>(&get()); }
  Widget* operator->() const { return static_cast<Widget*>(&get()); }
  Widget& operator*() const { return static_cast<Widget&>(get()); }
};

}  // namespace mortane
