#include "controller/replay/NumberedObject.h"

#include <utility>

#include "controller/EnumeratorMembers.h"

namespace mortane::controller {
namespace {

// The uses that have a name of their own: a step of an enumerator, and the reading of a state
// value's number.
constexpr std::string_view kNext = "next";
constexpr std::string_view kNumber = "number";

struct Converter {
  SessionValue operator()(const ObjectRef& object) const {
    const auto* ours = dynamic_cast<const NumberedObject*>(object.get());
    return ObjectNumber{ours == nullptr ? 0 : ours->Number()};
  }
  template <typename Plain>
  SessionValue operator()(const Plain& plain) const {
    return plain;
  }
};

void AppendArguments(std::string& text, Args args) {
  text += '(';
  for (std::size_t i = 0; i < args.size(); ++i) {
    if (i > 0) text += ", ";
    AppendValue(text, NumberedObject::ToSessionValue(args[i]));
  }
  text += ')';
}

}  // namespace

SessionValue NumberedObject::ToSessionValue(const Value& value) {
  return std::visit(Converter(), value);
}

std::string NumberedObject::CreateCall(std::string_view className) {
  return std::string("#0 create Create(").append(className) += ')';
}

std::string_view NumberedObject::NameOf(const Use& use) const {
  const bool isNext = place_.role == Role::Enumerator && use.kind == Kind::Call &&
                      use.member == kNextMember && use.args.empty();
  if (isNext) return kNext;
  if (use.kind == Kind::Get && use.member.empty() && use.args.empty()) return kNumber;
  constexpr std::string_view kNames[]{"get", "put", "call"};
  return kNames[static_cast<std::size_t>(use.kind)];
}

std::string NumberedObject::PathOf(const Use& use, std::string_view name) const {
  std::string path = place_.path;
  if (name == kNumber) return path;
  if (name == kNext) return path.append("(").append(std::to_string(turns_ + 1)) += ')';
  if (!path.empty()) path += '.';
  path += use.member;
  if (use.kind == Kind::Call || !use.args.empty()) AppendArguments(path, use.args);
  return path;
}

Value NumberedObject::Pass(Use use) {
  const std::string_view name = NameOf(use);
  std::string path = PathOf(use, name);
  std::string text = "#" + std::to_string(place_.number);
  ((text += ' ').append(name) += ' ') += path;
  if (use.written != nullptr) AppendValue(text += " = ", ToSessionValue(*use.written));
  const bool givesEnumerator = use.kind == Kind::Get && use.member == kEnumeratorMember;
  use.result = givesEnumerator ? Place{0, place_.path, Role::Enumerator}
                               : Place{0, std::move(path), Role::Plain};
  Value result = Make(use, std::move(text));
  if (name == kNext) ++turns_;
  return result;
}

Value NumberedObject::Get(std::string_view member, Args args) {
  return Pass({Kind::Get, member, args, nullptr, {}});
}

void NumberedObject::Put(std::string_view member, const Value& value, Args args) {
  Pass({Kind::Put, member, args, &value, {}});
}

Value NumberedObject::Call(std::string_view member, Args args) {
  return Pass({Kind::Call, member, args, nullptr, {}});
}

}  // namespace mortane::controller
