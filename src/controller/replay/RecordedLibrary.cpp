#include "controller/replay/RecordedLibrary.h"

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

#include "common/Failure.h"
#include "controller/Proxy.h"

namespace mortane::controller {

class RecordedObject : public NumberedObject {
 public:
  RecordedObject(RecordedLibrary& library, ObjectRef inner, Place place)
      : NumberedObject(std::move(place)), library_(library), inner_(std::move(inner)) {}

 protected:
  Value Make(const Use& use, std::string text) override {
    return library_.Record(std::move(text), use.result, [&] {
      const std::vector<Value> values = Unwrapped(use.args);
      return MakeOn(use, Args(values));
    });
  }

 private:
  Value MakeOn(const Use& use, Args args) {
    if (use.kind == Kind::Get) return inner_->Get(use.member, args);
    if (use.kind == Kind::Call) return inner_->Call(use.member, args);
    inner_->Put(use.member, Unwrap(*use.written), args);
    return {};
  }

  // The caller holds recorded objects; the inner library must get its own.
  Value Unwrap(const Value& value) const {
    const auto* object = std::get_if<ObjectRef>(&value);
    if (object == nullptr) return value;
    const auto* ours = dynamic_cast<const RecordedObject*>(object->get());
    return ours != nullptr && &ours->library_ == &library_ ? Value(ours->inner_) : value;
  }

  std::vector<Value> Unwrapped(Args args) const {
    std::vector<Value> values;
    values.reserve(args.size());
    for (const Value& value : args) values.push_back(Unwrap(value));
    return values;
  }

  RecordedLibrary& library_;
  ObjectRef inner_;
};

RecordedLibrary::RecordedLibrary(ControllerLibrary& inner, Lines lines, Clock clock)
    : inner_(inner), lines_(std::move(lines)), clock_(std::move(clock)), beginning_(clock_()) {}

std::chrono::nanoseconds RecordedLibrary::SteadyTime() {
  return std::chrono::steady_clock::now().time_since_epoch();
}

void RecordedLibrary::Write(std::chrono::nanoseconds began, const SessionLine& line) {
  lines_(FormatSessionLine({began - beginning_, clock_() - began}, line));
}

template <typename MakeCall>
Value RecordedLibrary::Record(std::string text, NumberedObject::Place place, MakeCall&& makeCall) {
  const std::chrono::nanoseconds began = clock_();
  SessionLine line{std::move(text), {}, {}};
  try {
    Value result = makeCall();
    if (const auto* object = std::get_if<ObjectRef>(&result); object != nullptr && *object) {
      place.number = ++lastNumber_;
      result = std::make_shared<RecordedObject>(*this, *object, std::move(place));
    }
    line.result = NumberedObject::ToSessionValue(result);
    Write(began, line);
    return result;
  } catch (const Failure& failure) {
    line.failure = SessionFailure{failure.Source(), failure.Number(), failure.Description()};
    Write(began, line);
    throw;
  }
}

ObjectRef RecordedLibrary::Create(std::string_view className) {
  return ToObject(Record(NumberedObject::CreateCall(className), {},
                         [&]() -> Value { return inner_.Create(className); }));
}

}  // namespace mortane::controller
