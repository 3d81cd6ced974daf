// Texts of the core as the toolkit's.
#pragma once

#include <QString>
#include <string>
#include <string_view>

#include "common/Text.h"

namespace mortane {

inline QString ToQString(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// For a name box. Blanks alone are no name: the placeholder stands for it.
inline QString NameOrPlaceholder(const std::string& name, std::string_view placeholder) {
  return ToQString(Trim(name).empty() ? placeholder : std::string_view(name));
}

}  // namespace mortane
