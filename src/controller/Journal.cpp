#include "controller/Journal.h"

#include <algorithm>
#include <array>

#include "common/Numbers.h"
#include "controller/ControllerError.h"

namespace mortane::controller {
namespace {

// Calls that ask and change nothing.
constexpr std::array<std::string_view, 2> kQuestions{"QueryCommand", "WaitMove"};

bool IsCommand(const CallSite& site) {
  if (site.kind == CallKind::Put) return true;
  return site.kind == CallKind::Call &&
         std::find(kQuestions.begin(), kQuestions.end(), site.member) == kQuestions.end();
}

std::string LeftSide(const CallSite& site) {
  if (site.written == nullptr) return site.path;
  return site.path + " = " + DescribeValue(*site.written);
}

bool IsNavigation(const CallSite& site, const Value& result) {
  return site.kind == CallKind::Create || site.kind == CallKind::EnumeratorNext ||
         std::holds_alternative<ObjectRef>(result);
}

}  // namespace

void Journal::Clear() {
  *this = Journal();
}

void Journal::Add(const CallSite& site, const std::string& rest) {
  lines_.push_back(LeftSide(site) + rest);
  if (IsCommand(site)) writes_.push_back(lines_.back());
}

Value JournalLibrary::Around(const CallSite& site, const std::function<Value()>& proceed) {
  ++journal_.callCount_;
  try {
    Value result = proceed();
    if (IsNavigation(site, result)) return result;
    const bool silent =
        site.kind != CallKind::Get && std::holds_alternative<std::monostate>(result);
    journal_.Add(site, silent ? "" : " -> " + DescribeValue(result));
    return result;
  } catch (const Failure& failure) {
    journal_.Add(site, " ! " + failure.Source() + ":" + Hex(failure.Number()));
    throw;
  }
}

void JournalLibrary::TookNumber(const std::string& path, const Value& number) {
  journal_.Add({CallKind::Get, path, ""}, " -> " + DescribeValue(number));
}

}  // namespace mortane::controller
