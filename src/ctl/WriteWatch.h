// Which writes of a Send reached the controller.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "controller/Decorator.h"
#include "record/ConfigurationItems.h"

namespace mortane::ctl {

enum class Fate { Written, NotWritten, NotKnown };

// Remembers the writing calls while a Scope lives. A call that failed may have reached the
// controller or not; one that was not made did not.
class WriteWatch : public controller::DecoratedLibrary {
 public:
  // `step` tells which step of the transfer has begun: 0 is the system name, then the rows of the
  // table of transfers.
  WriteWatch(controller::ControllerLibrary& inner, std::function<int()> step)
      : DecoratedLibrary(inner), step_(std::move(step)) {}

  class Scope {
   public:
    explicit Scope(WriteWatch& watch);
    ~Scope();
    Scope(const Scope&) = delete;
    Scope& operator=(const Scope&) = delete;

   private:
    WriteWatch& watch_;
  };

  // For an item that the Send was to change.
  Fate FateOf(const ConfigurationItem& item) const;

 protected:
  controller::Value Around(const controller::CallSite& site,
                           const controller::Proceed& proceed) override;

 private:
  struct Write {
    int step;
    std::string path;
    std::string value;
    bool failed;
  };

  std::function<int()> step_;
  bool watching_ = false;
  std::vector<Write> writes_;
};

}  // namespace mortane::ctl
