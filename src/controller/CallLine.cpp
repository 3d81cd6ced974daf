#include "controller/CallLine.h"

#include <algorithm>
#include <array>

#include "common/Failure.h"
#include "common/Numbers.h"

namespace mortane::controller {
namespace {

// Calls that only ask.
constexpr std::array<std::string_view, 2> kQuestions{"QueryCommand", "WaitMove"};

std::string LeftSide(const CallSite& site) {
  std::string text = site.Path();
  if (site.written != nullptr) text.append(" = ").append(DescribeValue(*site.written));
  return text;
}

}  // namespace

std::string CallLine(const CallSite& site, const Value& result) {
  const bool commands = site.kind == CallKind::Put || site.kind == CallKind::Call;
  const bool silent = std::holds_alternative<ObjectRef>(result) ||
                      (commands && std::holds_alternative<std::monostate>(result));
  return silent ? LeftSide(site) : ReadLine(LeftSide(site), result);
}

std::string ReadLine(std::string_view path, const Value& value) {
  return std::string(path).append(" -> ").append(DescribeValue(value));
}

std::string FailedCallLine(const CallSite& site, const Failure& failure) {
  return FailedReadLine(LeftSide(site), failure);
}

std::string FailedReadLine(std::string_view path, const Failure& failure) {
  return std::string(path) + " ! " + failure.Source() + ":" + Hex(failure.Number());
}

bool IsCommand(const CallSite& site) {
  if (site.kind == CallKind::Put) return true;
  return site.kind == CallKind::Call &&
         std::find(kQuestions.begin(), kQuestions.end(), site.member) == kQuestions.end();
}

}  // namespace mortane::controller
