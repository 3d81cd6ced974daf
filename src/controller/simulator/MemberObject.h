// An object of the simulated library: members by name, each answered by a function.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "controller/ControllerError.h"
#include "controller/ControllerObject.h"

namespace mortane::controller {

// Every failure of the simulated library.
[[noreturn]] void RaiseSimulated(const std::string& description);

// Conversions of what a caller handed in; a value of another kind raises a failure.
std::int32_t LongArgument(const Value& value);
std::int16_t IntegerArgument(const Value& value);
double DoubleArgument(const Value& value);
std::string TextArgument(const Value& value);
bool BooleanArgument(const Value& value);

// Names are told apart by case. A call of an unknown member fails, and so does one with another
// number of arguments than the member takes.
class MemberObject : public ControllerObject {
 public:
  using Reader = std::function<Value(Args)>;
  using Writer = std::function<void(const Value&, Args)>;

  MemberObject& OnGet(std::string_view member, std::size_t arguments, Reader reader);
  MemberObject& OnPut(std::string_view member, std::size_t arguments, Writer writer);
  MemberObject& OnCall(std::string_view member, std::size_t arguments, Reader caller);

  Value Get(std::string_view member, Args args) override;
  void Put(std::string_view member, const Value& value, Args args) override;
  Value Call(std::string_view member, Args args) override;

 private:
  template <typename Function>
  struct Member {
    std::string_view name;  // a literal
    std::size_t arguments;
    Function function;
  };
  template <typename Function>
  using Members = std::vector<Member<Function>>;

  template <typename Function>
  static const Function& Find(const Members<Function>& members, std::string_view name, Args args);

  Members<Reader> getters_;
  Members<Writer> putters_;
  Members<Reader> calls_;
};

}  // namespace mortane::controller
