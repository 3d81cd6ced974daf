#include "controller/Decorator.h"

#include <algorithm>
#include <array>
#include <vector>

#include "common/Numbers.h"
#include "controller/EnumeratorMembers.h"
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
  // Makes a call with the arguments unwrapped, and wraps its result.
  template <typename Make>
  Value Pass(const CallSite& site, Make&& make);
  // The caller holds decorated objects; the inner library must get its own.
  Value Unwrap(const Value& value) const;
  Value Wrap(Value result, const CallSite& site) const;
  Value Next();

  DecoratedLibrary& library_;
  ObjectRef inner_;
  std::string path_;
  Role role_;
  std::int32_t turns_ = 0;
};

namespace {

bool IsObject(const Value& value) {
  return std::holds_alternative<ObjectRef>(value);
}

void AppendArguments(std::string& text, Args args) {
  text += '(';
  for (std::size_t i = 0; i < args.size(); ++i) {
    if (i > 0) text += ", ";
    text += DescribeValue(args[i]);
  }
  text += ')';
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

std::string CallSite::Path() const {
  // Enough for nearly every path, so that the text is allocated once.
  constexpr std::size_t kUsualLength = 64;
  std::string path;
  path.reserve(std::max(object.size() + member.size() + 2, kUsualLength));
  if (kind == CallKind::Create) return path.append("Create(").append(member) += ')';
  path.append(object);
  if (kind != CallKind::EnumeratorNext) {
    if (!path.empty()) path += '.';
    path.append(member);
  }
  if (kind == CallKind::Call || !args.empty()) AppendArguments(path, args);
  return path;
}

Value DecoratedObject::Unwrap(const Value& value) const {
  const auto* object = std::get_if<ObjectRef>(&value);
  if (object == nullptr) return value;
  const auto* ours = dynamic_cast<const DecoratedObject*>(object->get());
  return ours != nullptr && &ours->library_ == &library_ ? ours->inner_ : value;
}

Value DecoratedObject::Wrap(Value result, const CallSite& site) const {
  const auto* object = std::get_if<ObjectRef>(&result);
  if (object == nullptr || *object == nullptr) return result;
  const bool enumerator = site.kind == CallKind::Get && site.member == kEnumeratorMember;
  return std::make_shared<DecoratedObject>(library_, *object, enumerator ? path_ : site.Path(),
                                           enumerator ? Role::Enumerator : Role::Plain);
}

template <typename Make>
Value DecoratedObject::Pass(const CallSite& site, Make&& make) {
  // Few calls have an object among their arguments; the others pass them on without a copy.
  if (std::none_of(site.args.begin(), site.args.end(), IsObject)) {
    return Wrap(library_.Around(site, Proceed([&] { return make(site.args); })), site);
  }
  std::vector<Value> values;
  for (const Value& value : site.args) values.push_back(Unwrap(value));
  return Wrap(library_.Around(site, Proceed([&] { return make(Args(values)); })), site);
}

Value DecoratedObject::Next() {
  const std::array<Value, 1> turn{turns_ + 1};
  const CallSite site{CallKind::EnumeratorNext, path_, kNextMember, Args(turn)};
  Value item = library_.Around(site, Proceed([&] { return inner_->Call(kNextMember, {}); }));
  ++turns_;
  return Wrap(std::move(item), site);
}

Value DecoratedObject::Get(std::string_view member, Args args) {
  if (member.empty()) {
    return library_.AroundNumber(path_, Proceed([&] { return inner_->Get(member, args); }));
  }
  return Pass({CallKind::Get, path_, member, args},
              [&](Args unwrapped) { return inner_->Get(member, unwrapped); });
}

void DecoratedObject::Put(std::string_view member, const Value& value, Args args) {
  Pass({CallKind::Put, path_, member, args, &value}, [&](Args unwrapped) -> Value {
    inner_->Put(member, IsObject(value) ? Unwrap(value) : value, unwrapped);
    return {};
  });
}

Value DecoratedObject::Call(std::string_view member, Args args) {
  if (role_ == Role::Enumerator && member == kNextMember && args.empty()) return Next();
  return Pass({CallKind::Call, path_, member, args},
              [&](Args unwrapped) { return inner_->Call(member, unwrapped); });
}

ObjectRef DecoratedLibrary::Create(std::string_view className) {
  const CallSite site{CallKind::Create, "", className, {}};
  const Value root = Around(site, Proceed([&]() -> Value { return inner_.Create(className); }));
  return std::make_shared<DecoratedObject>(*this, ToObject(root), "", DecoratedObject::Role::Plain);
}

}  // namespace mortane::controller
