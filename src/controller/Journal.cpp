#include "controller/Journal.h"

#include <algorithm>
#include <array>

#include "common/Numbers.h"
#include "controller/ControllerError.h"

namespace mortane::controller {
namespace {

// Calls that only ask.
constexpr std::array<std::string_view, 2> kQuestions{"QueryCommand", "WaitMove"};

bool IsCommand(const CallSite& site) {
  if (site.kind == CallKind::Put) return true;
  return site.kind == CallKind::Call &&
         std::find(kQuestions.begin(), kQuestions.end(), site.member) == kQuestions.end();
}

std::string LeftSide(const CallSite& site) {
  std::string text = site.Path();
  if (site.written != nullptr) text.append(" = ").append(DescribeValue(*site.written));
  return text;
}

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
    if (IsNavigation(site, result)) return result;
    std::string line = LeftSide(site);
    const bool silent =
        site.kind != CallKind::Get && std::holds_alternative<std::monostate>(result);
    if (!silent) line.append(" -> ").append(DescribeValue(result));
    journal_.Add(std::move(line), IsCommand(site));
    return result;
  } catch (const Failure& failure) {
    journal_.Add(LeftSide(site) + " ! " + failure.Source() + ":" + Hex(failure.Number()),
                 IsCommand(site));
    throw;
  }
}

void JournalLibrary::TookNumber(const std::string& path, const Value& number) {
  journal_.Add(path + " -> " + DescribeValue(number), false);
}

}  // namespace mortane::controller
