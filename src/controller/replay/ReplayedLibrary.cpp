#include "controller/replay/ReplayedLibrary.h"

#include <utility>

#include "controller/ControllerError.h"
#include "controller/Proxy.h"

namespace mortane::controller {
namespace {

constexpr char kSource[] = "Replay";
constexpr std::int32_t kUnspecifiedError = -2147467259;

}  // namespace

// Shared by the objects, which may outlive the library.
class ReplayedLibrary::State : public std::enable_shared_from_this<State> {
 public:
  State(const std::string& path, Notice notice) : reader_(path), notice_(std::move(notice)) {}

  Value Answer(const std::string& call, NumberedObject::Place place);
  const std::string& Difference() const { return difference_; }
  std::string Rest();

 private:
  [[noreturn]] void Differ(const std::string& problem, const std::string& call);
  SessionLine Next(const std::string& call);

  JournalReader reader_;
  Notice notice_;
  std::string difference_;
};

namespace {

class ReplayedObject : public NumberedObject {
 public:
  using Answers = std::function<Value(const std::string& call, Place place)>;

  ReplayedObject(Answers answers, Place place)
      : NumberedObject(std::move(place)), answers_(std::move(answers)) {}

 protected:
  Value Make(const Use& use, std::string text) override { return answers_(text, use.result); }

 private:
  Answers answers_;
};

struct ToValue {
  // An object has been made of its number before.
  Value operator()(ObjectNumber /*object*/) const { return ObjectRef(); }
  template <typename Plain>
  Value operator()(const Plain& plain) const {
    return plain;
  }
};

}  // namespace

void ReplayedLibrary::State::Differ(const std::string& problem, const std::string& call) {
  difference_ = reader_.Where() + ": " + problem + "; the program called " + call;
  if (notice_) notice_(difference_);
  throw ControllerError(kSource, kUnspecifiedError, difference_);
}

SessionLine ReplayedLibrary::State::Next(const std::string& call) {
  try {
    if (auto line = reader_.Next()) return std::move(*line);
  } catch (const Failure& failure) {
    Differ(failure.Description(), call);
  }
  Differ(reader_.IsCut() ? "the journal is cut off here" : "the session ends here", call);
}

Value ReplayedLibrary::State::Answer(const std::string& call, NumberedObject::Place place) {
  if (!difference_.empty()) throw ControllerError(kSource, kUnspecifiedError, difference_);
  const SessionLine line = Next(call);
  if (line.call != call) Differ("the session has " + line.call, call);
  if (line.failure) {
    throw ControllerError(line.failure->source, line.failure->number, line.failure->description);
  }
  const auto* object = std::get_if<ObjectNumber>(&line.result);
  if (object == nullptr || object->number == 0) return std::visit(ToValue(), line.result);
  place.number = object->number;
  return std::make_shared<ReplayedObject>(
      [state = shared_from_this()](const std::string& text, NumberedObject::Place next) {
        return state->Answer(text, std::move(next));
      },
      std::move(place));
}

std::string ReplayedLibrary::State::Rest() {
  if (!difference_.empty()) return difference_;
  const auto line = reader_.Next();
  if (line) difference_ = reader_.Where() + ": the session goes on with " + line->call;
  return difference_;
}

ReplayedLibrary::ReplayedLibrary(const std::string& path, Notice notice)
    : state_(std::make_shared<State>(path, std::move(notice))) {}

ReplayedLibrary::~ReplayedLibrary() = default;

ObjectRef ReplayedLibrary::Create(std::string_view className) {
  return ToObject(state_->Answer(NumberedObject::CreateCall(className), {}));
}

const std::string& ReplayedLibrary::Difference() const {
  return state_->Difference();
}

std::string ReplayedLibrary::Rest() {
  return state_->Rest();
}

}  // namespace mortane::controller
