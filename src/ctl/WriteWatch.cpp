#include "ctl/WriteWatch.h"

#include "controller/CallLine.h"

namespace mortane::ctl {

using controller::CallSite;
using controller::Proceed;
using controller::Value;

WriteWatch::Scope::Scope(WriteWatch& watch) : watch_(watch) {
  watch_.writes_.clear();
  watch_.watching_ = true;
}

WriteWatch::Scope::~Scope() {
  watch_.watching_ = false;
}

Value WriteWatch::Around(const CallSite& site, const Proceed& proceed) {
  if (!watching_ || !controller::IsCommand(site)) return proceed();
  writes_.push_back({step_(), site.Path(),
                     site.written ? controller::DescribeValue(*site.written) : std::string(),
                     true});
  Value result = proceed();
  writes_.back().failed = false;
  return result;
}

Fate WriteWatch::FateOf(const ConfigurationItem& /*item*/) const {
  return Fate::NotKnown;
}

}  // namespace mortane::ctl
