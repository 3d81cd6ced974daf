// Texts of the core as the toolkit's controls show them.
#pragma once

#include <QString>
#include <string>

namespace mortane {

// Reports break their lines with a carriage return and a line feed; controls want the latter.
inline QString ShownText(const std::string& text) {
  using namespace Qt::StringLiterals;
  return QString::fromStdString(text).replace("\r\n"_L1, "\n"_L1);
}

}  // namespace mortane
