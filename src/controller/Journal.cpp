#include "controller/Journal.h"

#include "controller/CallLine.h"
#include "controller/ControllerError.h"

namespace mortane::controller {
namespace {

bool IsNavigation(const CallSite& site, const Value& result) {
  return site.kind == CallKind::Create || site.kind == CallKind::EnumeratorNext ||
         std::holds_alternative<ObjectRef>(result);
}

}  // namespace

void Journal::Clear() {
  *this = Journal();
}

void Journal::Add(std::string line, bool command) {
  lines_.push_back(std::move(line));
  if (command) writes_.push_back(lines_.back());
}

Value JournalLibrary::Around(const CallSite& site, const Proceed& proceed) {
  ++journal_.callCount_;
  try {
    Value result = proceed();
    if (!IsNavigation(site, result)) journal_.Add(CallLine(site, result), IsCommand(site));
    return result;
  } catch (const Failure& failure) {
    journal_.Add(FailedCallLine(site, failure), IsCommand(site));
    throw;
  }
}

Value JournalLibrary::AroundNumber(const std::string& path, const Proceed& proceed) {
  try {
    Value number = proceed();
    journal_.Add(ReadLine(path, number), false);
    return number;
  } catch (const Failure& failure) {
    journal_.Add(FailedReadLine(path, failure), false);
    throw;
  }
}

}  // namespace mortane::controller
