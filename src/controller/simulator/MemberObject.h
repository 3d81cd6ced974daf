// An object of the simulated library: a table of members by name, and the data they work on.
#pragma once

#include <algorithm>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "controller/ControllerError.h"
#include "controller/ControllerObject.h"

namespace mortane::controller {

// Raises a failure; all failures of the simulated library come from here.
[[noreturn]] void RaiseSimulated(const std::string& description);

// Conversions of what a caller handed in; a value of another kind raises a failure.
std::int32_t LongArgument(const Value& value);
std::int16_t IntegerArgument(const Value& value);
double DoubleArgument(const Value& value);
std::string TextArgument(const Value& value);
bool BooleanArgument(const Value& value);

// Functions by the names of members; case matters. Find raises a failure for an unknown member and
// for a wrong number of arguments.
template <typename Function>
class NamedFunctions {
 public:
  // `name` is a literal.
  void Add(std::string_view name, std::size_t arguments, Function function) {
    entries_.push_back({name, arguments, std::move(function)});
  }
  const Function& Find(std::string_view name, Args args) const;

 private:
  struct Entry {
    std::string_view name;
    std::size_t arguments;
    Function function;
  };
  std::vector<Entry> entries_;
};

[[noreturn]] void RaiseUnknownMember(std::string_view name);
[[noreturn]] void RaiseArgumentCount(std::string_view name, std::size_t wanted, std::size_t given);

template <typename Function>
const Function& NamedFunctions<Function>::Find(std::string_view name, Args args) const {
  const auto entry = std::find_if(entries_.begin(), entries_.end(),
                                  [&](const Entry& each) { return each.name == name; });
  if (entry == entries_.end()) RaiseUnknownMember(name);
  if (entry->arguments != args.size()) RaiseArgumentCount(name, entry->arguments, args.size());
  return entry->function;
}

enum class MemberUse { Get, Put, Call };

// One use of a member. A property that can be read and written has two entries.
struct MemberEntry {
  std::string_view name;
  MemberUse use;
  std::size_t arguments;
};

// An object that can say what it offers. All objects of one kind share one list.
class SimulatedObject : public ControllerObject {
 public:
  virtual const std::vector<MemberEntry>& Members() const = 0;
};

// The members of one kind of object. Each function gets the `Self` of the object it is called on.
template <typename Self>
struct MemberTable {
  using Reader = std::function<Value(Self&, Args)>;
  using Writer = std::function<void(Self&, const Value&, Args)>;

  MemberTable& OnGet(std::string_view member, std::size_t arguments, Reader reader) {
    getters.Add(member, arguments, std::move(reader));
    entries.push_back({member, MemberUse::Get, arguments});
    return *this;
  }
  MemberTable& OnPut(std::string_view member, std::size_t arguments, Writer writer) {
    putters.Add(member, arguments, std::move(writer));
    entries.push_back({member, MemberUse::Put, arguments});
    return *this;
  }
  MemberTable& OnCall(std::string_view member, std::size_t arguments, Reader caller) {
    calls.Add(member, arguments, std::move(caller));
    entries.push_back({member, MemberUse::Call, arguments});
    return *this;
  }

  NamedFunctions<Reader> getters;
  NamedFunctions<Writer> putters;
  NamedFunctions<Reader> calls;
  std::vector<MemberEntry> entries;  // in the order in which they were added
};

// The table must outlive the object.
template <typename Self>
class MemberObject : public SimulatedObject {
 public:
  template <typename... Parts>
  explicit MemberObject(const MemberTable<Self>& members, Parts&&... parts)
      : members_(members), self_(std::forward<Parts>(parts)...) {}

  Value Get(std::string_view member, Args args) override {
    return members_.getters.Find(member, args)(self_, args);
  }
  void Put(std::string_view member, const Value& value, Args args) override {
    members_.putters.Find(member, args)(self_, value, args);
  }
  Value Call(std::string_view member, Args args) override {
    return members_.calls.Find(member, args)(self_, args);
  }

  const std::vector<MemberEntry>& Members() const override { return members_.entries; }

  const Self& self() const { return self_; }

 private:
  const MemberTable<Self>& members_;
  Self self_;
};

template <typename Self, typename... Parts>
ObjectRef MakeObject(const MemberTable<Self>& members, Parts&&... parts) {
  return std::make_shared<MemberObject<Self>>(members, std::forward<Parts>(parts)...);
}

}  // namespace mortane::controller
