#include "controller/Faults.h"

#include <array>
#include <utility>

#include "controller/ControllerError.h"

namespace mortane::controller {
namespace {

constexpr std::array kKinds{std::pair{std::string_view("get "), CallKind::Get},
                            std::pair{std::string_view("put "), CallKind::Put},
                            std::pair{std::string_view("call "), CallKind::Call}};

// Offset behind the bracket that opens at `path[open]`; brackets in quoted texts do not count.
std::size_t EndOfBracket(std::string_view path, std::size_t open) {
  bool quoted = false;
  for (std::size_t i = open; i < path.size(); ++i) {
    if (path[i] == '"') quoted = !quoted;
    if (path[i] == ')' && !quoted) return i + 1;
  }
  return path.size();
}

// True when they are equal, brackets aside that the pattern leaves out.
bool PathMatches(std::string_view pattern, std::string_view path) {
  std::size_t at = 0;
  for (std::size_t i = 0; i < path.size();) {
    const bool patternHasMember = at == pattern.size() || pattern[at] == '.';
    if (path[i] == '(' && patternHasMember) {
      i = EndOfBracket(path, i);
    } else if (at < pattern.size() && pattern[at] == path[i]) {
      ++at;
      ++i;
    } else {
      return false;
    }
  }
  return at == pattern.size();
}

// The pattern of a collection must not match the steps of its enumerator.
bool NextMatches(std::string_view pattern, std::string_view path) {
  const std::string_view collection = path.substr(0, path.rfind('('));
  return (pattern.ends_with(')') && PathMatches(pattern, path)) ||
         PathMatches(pattern, std::string(collection) + ".Next");
}

bool Matches(std::string_view pattern, CallKind kind, std::string_view path) {
  for (const auto& [prefix, wanted] : kKinds) {
    if (!pattern.starts_with(prefix)) continue;
    return kind == wanted && PathMatches(pattern.substr(prefix.size()), path);
  }
  if (kind == CallKind::EnumeratorNext) return NextMatches(pattern, path);
  return PathMatches(pattern, path);
}

}  // namespace

void FaultPlan::Add(FaultRule rule) {
  entries_.push_back({std::move(rule), 0});
}

void FaultPlan::FailCall(std::size_t k, FaultRule rule) {
  countedRule_ = std::move(rule);
  callsLeft_ = k;
}

void FaultPlan::Clear() {
  *this = FaultPlan();
}

void FaultPlan::Fail(const FaultRule& rule) {
  ++hits_;
  throw ControllerError(rule.source, rule.number, rule.description);
}

void FaultPlan::Check(const CallSite& site) {
  if (callsLeft_ > 0 && --callsLeft_ == 0) Fail(*countedRule_);
  if (entries_.empty()) return;
  const std::string path = site.Path();
  const Entry* due = nullptr;
  for (Entry& entry : entries_) {
    if (!Matches(entry.rule.call, site.kind, path)) continue;
    ++entry.seen;
    const bool now = entry.rule.occurrence == 0 || entry.rule.occurrence == entry.seen;
    if (now && due == nullptr) due = &entry;
  }
  if (due != nullptr) Fail(due->rule);
}

Value FaultyLibrary::Around(const CallSite& site, const Proceed& proceed) {
  plan_.Check(site);
  return proceed();
}

}  // namespace mortane::controller
