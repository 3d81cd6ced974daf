#include "controller/Decorator.h"

#include <vector>

#include "common/Numbers.h"
#include "controller/Proxy.h"

namespace mortane::controller {

class DecoratedObject : public ControllerObject {
 public:
  enum class Role { Plain, Enumerator };

  DecoratedObject(DecoratedLibrary& library, ObjectRef inner, std::string path, Role role)
      : library_(library), inner_(std::move(inner)), path_(std::move(path)), role_(role) {}

  Value Get(std::string_view member, Args args) override;
  void Put(std::string_view member, const Value& value, Args args) override;
  Value Call(std::string_view member, Args args) override;

  const std::string& Path() const { return path_; }

 private:
  std::string PathOf(std::string_view member, Args args, bool brackets) const;
  Value Wrap(const Value& value, std::string path, Role role) const;
  // The caller's objects are ours; the inner library must see its own.
  Value Unwrap(const Value& value) const;
  std::vector<Value> Unwrap(Args args) const;
  Value Next();

  DecoratedLibrary& library_;
  ObjectRef inner_;
  std::string path_;
  Role role_;
  int turns_ = 0;
};

namespace {

constexpr std::string_view kEnumeratorMember = "_NewEnum";
constexpr std::string_view kNextMember = "Next";

std::string DescribeArguments(Args args) {
  std::string text;
  for (const Value& value : args) {
    if (!text.empty()) text += ", ";
    text += DescribeValue(value);
  }
  return "(" + text + ")";
}

}  // namespace

std::string DescribeValue(const Value& value) {
  if (std::holds_alternative<std::monostate>(value)) return "nothing";
  if (const auto* flag = std::get_if<bool>(&value)) return *flag ? "true" : "false";
  if (const auto* integer = std::get_if<std::int16_t>(&value)) {
    return "int16(" + std::to_string(*integer) + ")";
  }
  if (const auto* number = std::get_if<std::int32_t>(&value)) return std::to_string(*number);
  if (const auto* real = std::get_if<double>(&value)) {
    return ShortestGeneral(*real, PointFormat());
  }
  if (const auto* text = std::get_if<std::string>(&value)) return '"' + *text + '"';
  const auto* object = dynamic_cast<const DecoratedObject*>(std::get<ObjectRef>(value).get());
  return object == nullptr ? "object" : object->Path();
}

std::string DecoratedObject::PathOf(std::string_view member, Args args, bool brackets) const {
  std::string path = path_.empty() ? std::string(member) : path_ + "." + std::string(member);
  if (brackets || !args.empty()) path += DescribeArguments(args);
  return path;
}

Value DecoratedObject::Wrap(const Value& value, std::string path, Role role) const {
  const auto* object = std::get_if<ObjectRef>(&value);
  if (object == nullptr || *object == nullptr) return value;
  return std::make_shared<DecoratedObject>(library_, *object, std::move(path), role);
}

Value DecoratedObject::Unwrap(const Value& value) const {
  const auto* object = std::get_if<ObjectRef>(&value);
  if (object == nullptr) return value;
  const auto* ours = dynamic_cast<const DecoratedObject*>(object->get());
  return ours != nullptr && &ours->library_ == &library_ ? ours->inner_ : value;
}

std::vector<Value> DecoratedObject::Unwrap(Args args) const {
  std::vector<Value> values;
  values.reserve(args.size());
  for (const Value& value : args) values.push_back(Unwrap(value));
  return values;
}

Value DecoratedObject::Next() {
  const std::string path = path_ + "(" + std::to_string(turns_ + 1) + ")";
  const Value item = library_.Around({CallKind::EnumeratorNext, path, kNextMember},
                                     [&] { return inner_->Call(kNextMember, {}); });
  ++turns_;
  return Wrap(item, path, Role::Plain);
}

Value DecoratedObject::Get(std::string_view member, Args args) {
  if (member.empty()) {
    Value number = inner_->Get(member, args);
    library_.TookNumber(path_, number);
    return number;
  }
  const std::vector<Value> values = Unwrap(args);
  const std::string path = PathOf(member, args, false);
  const Value result = library_.Around({CallKind::Get, path, member},
                                       [&] { return inner_->Get(member, Args(values)); });
  if (member == kEnumeratorMember) return Wrap(result, path_, Role::Enumerator);
  return Wrap(result, path, Role::Plain);
}

void DecoratedObject::Put(std::string_view member, const Value& value, Args args) {
  const std::vector<Value> values = Unwrap(args);
  library_.Around({CallKind::Put, PathOf(member, args, false), member, &value}, [&]() -> Value {
    inner_->Put(member, Unwrap(value), Args(values));
    return {};
  });
}

Value DecoratedObject::Call(std::string_view member, Args args) {
  if (role_ == Role::Enumerator && member == kNextMember && args.empty()) return Next();
  const std::vector<Value> values = Unwrap(args);
  const std::string path = PathOf(member, args, true);
  const Value result = library_.Around({CallKind::Call, path, member},
                                       [&] { return inner_->Call(member, Args(values)); });
  return Wrap(result, path, Role::Plain);
}

ObjectRef DecoratedLibrary::Create(std::string_view className) {
  const std::string path = "Create(" + std::string(className) + ")";
  const Value root = Around({CallKind::Create, path, className},
                            [&]() -> Value { return inner_.Create(className); });
  return std::make_shared<DecoratedObject>(*this, ToObject(root), "", DecoratedObject::Role::Plain);
}

}  // namespace mortane::controller
