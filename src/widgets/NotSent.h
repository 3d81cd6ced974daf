// The words for a value that differs from what was last received or sent.
#pragma once

#include <QString>
#include <optional>

namespace mortane {

// For the tool tip and the accessible description of what shows the value; nothing where no value
// differs. An empty `was` is one that was blank.
inline QString NotSent(const std::optional<QString>& was) {
  using namespace Qt::StringLiterals;
  if (!was) return {};
  return u"not sent: was %1"_s.arg(was->isEmpty() ? u"blank"_s : *was);
}

// The same for what stands for several values, as a page does.
inline QString SomethingNotSent() {
  using namespace Qt::StringLiterals;
  return u"not sent"_s;
}

}  // namespace mortane
