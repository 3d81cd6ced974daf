// The dots of what is not sent, at the sections and controls of the pages.
#pragma once

#include <QPointer>
#include <QWidget>
#include <map>
#include <vector>

#include "app/ItemPlaces.h"
#include "record/Comparison.h"

namespace mortane {

// Finds the controls of the table of places in a window by their names, those of a page that is
// made late when it is there. Sets nothing but dots: no page is made, loaded, stores or is asked.
class PendingMarks {
 public:
  // The window must have its pages when something is shown, and may lose them later.
  explicit PendingMarks(const QWidget& window) : window_(window) {}

  // All of them: other dots go. `before` are the names that belong to `from`. To be called again
  // once a page has shown other items.
  void Show(const std::vector<ItemChange>& changes, const ItemNames& before);

  // Whether something of the page was shown last.
  [[nodiscard]] bool IsOnPage(const QWidget& page) const;

  // On the page of the item, which is on show: chooses section and tab as a click does, as far as
  // they are offered, and then the row, or gives the control the focus.
  void GoTo(const ItemChange& change, const ItemNames& before);

 private:
  // Where one of the places is shown; a control may be gone.
  struct Target {
    const ItemPlace* place;
    QPointer<QObject> subPage;  // the page, or what stands for it until it is made
    bool isSearched = false;
    std::vector<QPointer<QObject>> controls;  // the elements of an array, or one
    QPointer<QObject> chooser;
    bool isArray = false;
  };
  // By the place in a control; -1 for the control itself, or for what is chosen in it.
  using Marks = std::map<int, QString>;
  using MarksOfControls = std::map<QObject*, Marks>;

  void FindTargets();
  static void FindControls(Target& target);
  void Add(const Target& target, const ItemChange& change, const ItemNames& before,
           MarksOfControls& marks) const;
  void ShowSections();

  const QWidget& window_;
  std::vector<Target> targets_;
  std::vector<QPointer<QObject>> marked_;  // sub-pages
};

}  // namespace mortane
