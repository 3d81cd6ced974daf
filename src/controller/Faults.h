// Makes calls of any controller library fail on demand.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "controller/Decorator.h"

namespace mortane::controller {

// `call` is the path of a call as the journal writes it. A pair of brackets may be left out; any
// arguments match then: "DeviceList.Item(1).Connect", "DeviceList.Item.Connect". With "get ", "put
// " or "call " in front only calls of that kind match. "Create(Microscope)" is a creation,
// "NosepieceDevice.Positions(3)" one step of an enumerator, "NosepieceDevice.Positions.Next" all
// its steps.
struct FaultRule {
  std::string call;
  int occurrence = 0;  // 0: every call that matches; n: the n-th only
  std::string source = "LIB";
  std::int32_t number = -2147467259;
  std::string description = "Simulated failure.";
};

class FaultPlan {
 public:
  void Add(FaultRule rule);
  // Fails the k-th call from now on, whatever it is; `rule.call` is ignored.
  void FailCall(std::size_t k, FaultRule rule = {});
  // Forgets all rules and hits.
  void Clear();
  // Failures raised so far.
  std::size_t Hits() const { return hits_; }

 private:
  friend class FaultyLibrary;
  struct Entry {
    FaultRule rule;
    int seen = 0;
  };
  // Raises the failure that is due for this call, if any.
  void Check(const CallSite& site);
  [[noreturn]] void Fail(const FaultRule& rule);

  std::vector<Entry> entries_;
  std::optional<FaultRule> countedRule_;
  std::size_t callsLeft_ = 0;
  std::size_t hits_ = 0;
};

// A call that is made to fail does not reach the inner library.
class FaultyLibrary : public DecoratedLibrary {
 public:
  FaultyLibrary(ControllerLibrary& inner, FaultPlan& plan) : DecoratedLibrary(inner), plan_(plan) {}

 protected:
  Value Around(const CallSite& site, const Proceed& proceed) override;

 private:
  FaultPlan& plan_;
};

}  // namespace mortane::controller
