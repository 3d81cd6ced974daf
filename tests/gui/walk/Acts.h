// What the acts of a person may do to the model, and which calls they may make.
#pragma once

#include <QObject>
#include <set>
#include <string>
#include <vector>

#include "controller/Journal.h"
#include "gui/walk/ModelWatch.h"

class QWidget;

namespace mortane::test {

// What the calls of an act may be.
enum class MayCall { Nothing, Reads, Everything };

struct Allowed {
  MayChange change = MayChange::ControlsOnly;
  MayCall calls = MayCall::Nothing;
};

// Notes by their names which buttons, keys and menu items of a window were set off.
class ActsGiven : public QObject {
 public:
  // With the window's buttons and menu items as they are now.
  explicit ActsGiven(QWidget& window);

  void Clear() { names_.clear(); }
  // The most that the acts since Clear allow.
  [[nodiscard]] Allowed Allows() const;
  [[nodiscard]] QString Text() const;

 private:
  void Note(const QString& name) { names_.insert(name); }

  std::set<QString> names_;
};

// Whether one of the controls, by their names and classes, loads a page.
bool LoadsPage(const std::set<QString>& worked);

// The first call that is not allowed; empty when there is none. `worked` are the names of the
// controls, for those of a page that work a drive.
std::string UnexpectedCall(const controller::Journal& journal, MayCall allowed,
                           const std::set<QString>& worked);

}  // namespace mortane::test
