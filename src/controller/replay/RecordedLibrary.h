// A controller library around another one, which writes a session's journal.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "controller/ControllerObject.h"
#include "controller/replay/NumberedObject.h"
#include "controller/replay/SessionLine.h"

namespace mortane::controller {

// Every call, also a creation, one that gives an object, a step of an enumerator and the reading of
// a state value's number, is a line as soon as it has ended. The objects that it hands out must not
// outlive it, nor it the inner library.
class RecordedLibrary : public ControllerLibrary {
 public:
  using Lines = std::function<void(const std::string&)>;
  using Clock = std::function<std::chrono::nanoseconds()>;

  RecordedLibrary(ControllerLibrary& inner, Lines lines, Clock clock = SteadyTime);

  ObjectRef Create(std::string_view className) override;

  static std::chrono::nanoseconds SteadyTime();

 private:
  friend class RecordedObject;

  // Makes the call and writes it.
  template <typename MakeCall>
  Value Record(std::string text, NumberedObject::Place place, MakeCall&& makeCall);
  void Write(std::chrono::nanoseconds began, const SessionLine& line);

  ControllerLibrary& inner_;
  Lines lines_;
  Clock clock_;
  std::chrono::nanoseconds beginning_;
  std::uint64_t lastNumber_ = 0;
};

}  // namespace mortane::controller
