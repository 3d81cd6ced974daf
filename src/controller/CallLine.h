// A call to a controller library as a line of text.
#pragma once

#include <string>
#include <string_view>

#include "controller/Decorator.h"

namespace mortane {
class Failure;
}

namespace mortane::controller {

// "NosepieceDevice.Positions(3).Code -> 12", "RemoteLED(7) = 2", "SetInterlock(4, 1)". A commanding
// call that answers nothing has no arrow, nor has a call that gives an object.
std::string CallLine(const CallSite& site, const Value& result);

// What was read at a path: "Position -> 3".
std::string ReadLine(std::string_view path, const Value& value);

// The call as above, without a result, then " ! LIB:80004005".
std::string FailedCallLine(const CallSite& site, const Failure& failure);
std::string FailedReadLine(std::string_view path, const Failure& failure);

// Whether the call changes something: every Put, and every call but those that only ask.
bool IsCommand(const CallSite& site);

}  // namespace mortane::controller
