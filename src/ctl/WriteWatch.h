// Which writes of a Send reached the controller, and which items they were about.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "controller/Decorator.h"
#include "record/ConfigurationItems.h"

namespace mortane::ctl {

enum class Fate { Written, NotWritten, NotKnown };

// A commanding call. A record of the accessory database is called by the code that it has, since
// its index is another one on every microscope: "AccessoryDatabase.Condensers[141].Name".
struct WriteCall {
  std::string path;
  bool failed;
};

// What became of an item that a Send was to change. A call that failed may have reached the
// controller or not; one that was not made did not.
Fate FateOf(const ConfigurationItem& item, const std::vector<WriteCall>& calls);

// Remembers the commanding calls while a Scope lives.
class WriteWatch : public controller::DecoratedLibrary {
 public:
  using DecoratedLibrary::DecoratedLibrary;

  class Scope {
   public:
    explicit Scope(WriteWatch& watch);
    ~Scope();
    Scope(const Scope&) = delete;
    Scope& operator=(const Scope&) = delete;

   private:
    WriteWatch& watch_;
  };

  // Those of the last Scope.
  const std::vector<WriteCall>& Calls() const { return calls_; }

 protected:
  controller::Value Around(const controller::CallSite& site,
                           const controller::Proceed& proceed) override;

 private:
  controller::Value ReadCode(const controller::CallSite& site, const controller::Proceed& proceed);
  std::string PathOf(const controller::CallSite& site) const;

  bool watching_ = false;
  std::vector<WriteCall> calls_;
  std::map<std::string, std::string, std::less<>> records_;  // by path, by list and code
};

}  // namespace mortane::ctl
