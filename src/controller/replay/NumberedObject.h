// An object of a recorded or replayed session, which describes each of its calls as a text.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "controller/ControllerObject.h"
#include "controller/replay/SessionValue.h"

namespace mortane::controller {

// The same text for record and replay: "#34 put NosepieceDevice.Positions(3).Code = 14". The path
// leads from the root, whose own members have no prefix. The item of an enumerator's third step is
// called "NosepieceDevice.Positions(3)".
class NumberedObject : public ControllerObject {
 public:
  enum class Role { Plain, Enumerator };

  // The number, the path and the role of an object that a call gave.
  struct Place {
    std::uint64_t number = 0;
    std::string path;
    Role role = Role::Plain;
  };

  explicit NumberedObject(Place place) : place_(std::move(place)) {}

  Value Get(std::string_view member, Args args) final;
  void Put(std::string_view member, const Value& value, Args args) final;
  Value Call(std::string_view member, Args args) final;

  std::uint64_t Number() const { return place_.number; }

  // An object that is no NumberedObject becomes object number 0.
  static SessionValue ToSessionValue(const Value& value);
  static std::string CreateCall(std::string_view className);

 protected:
  enum class Kind { Get, Put, Call };

  struct Use {
    Kind kind;
    std::string_view member;
    Args args;
    const Value* written;
    // Of an object that the call gives; its number is not known yet.
    Place result;
  };

  // Makes the call that `text` describes.
  virtual Value Make(const Use& use, std::string text) = 0;

 private:
  Value Pass(Use use);
  // The use as a line of a journal names it, and the path behind that name.
  std::string_view NameOf(const Use& use) const;
  std::string PathOf(const Use& use, std::string_view name) const;

  Place place_;
  std::int32_t turns_ = 0;  // of an enumerator
};

}  // namespace mortane::controller
