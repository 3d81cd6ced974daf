// What the model of a window holds, and which control an edit of it came from.
#pragma once

#include <QPointer>
#include <QWidget>
#include <set>
#include <string>
#include <vector>

#include "app/ItemPlaces.h"
#include "hub/clsK70.h"

namespace mortane::test {

// What an act may change without a control of its own for each item.
enum class MayChange { ControlsOnly, ShownPage, Everything };

// Compares the model with what it held before an act. An objective's values are compared as the
// settings file has them, which is rounded.
class ModelWatch {
 public:
  // Both must outlive it.
  ModelWatch(const QWidget& window, const clsK70& k70);

  // Before the act: what is chosen in tabs, lists and turrets.
  void NoteChoices();
  // After it: the items that changed since the last time and whose controls are not among those
  // that were worked.
  [[nodiscard]] std::vector<std::string> TakeUnexplained(const std::set<const QObject*>& worked,
                                                         const std::set<QString>& names,
                                                         MayChange allowed);
  // Whether anything changed since the last time.
  [[nodiscard]] bool HasChanged() const;

 private:
  // What the model holds besides the items of a settings file.
  struct Rest {
    std::int32_t device;
    std::int32_t fiberSwitch;
    std::int32_t fiberLed;
    bool operator==(const Rest&) const = default;
  };
  // A place of the table, with its sub-page once that is made.
  struct Target {
    const ItemPlace* place;
    const char* name;
    QPointer<QWidget> page;
    std::vector<QPointer<QObject>> controls;  // the elements of an array, or one
    QPointer<QObject> chooser;
    bool isArray;
    int chosenBefore;
    int selectedBefore;
    bool noted;  // the last two; not of a page that the act itself has made
  };

  void FindPages(const std::set<QString>& names, MayChange allowed);
  static void FindControls(Target& target);
  [[nodiscard]] std::vector<std::string> ChangesOfRest(const Rest& now,
                                                       const std::set<QString>& names) const;
  [[nodiscard]] std::string Document() const;
  [[nodiscard]] Rest RestNow() const;
  [[nodiscard]] bool IsExplained(const ConfigurationItem& item,
                                 const std::set<const QObject*>& worked,
                                 const std::set<QString>& names, MayChange allowed) const;
  [[nodiscard]] bool IsOf(const Target& target, const ConfigurationItem& item,
                          const std::set<const QObject*>& worked) const;

  const QWidget& window_;
  const clsK70& k70_;
  std::vector<Target> targets_;
  std::string document_;
  Rest rest_{};
};

}  // namespace mortane::test
