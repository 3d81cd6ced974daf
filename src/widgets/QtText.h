// Names as name boxes show them.
#pragma once

#include <QString>
#include <string>
#include <string_view>

#include "common/Text.h"

namespace mortane {

inline QString ToQString(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// Blanks alone are no name: the mark stands in its place.
inline QString NameOrMark(const std::string& name, std::string_view mark) {
  return ToQString(Trim(name).empty() ? mark : std::string_view(name));
}

}  // namespace mortane
