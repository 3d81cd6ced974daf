// The way from bytes to a libxml2 document, with what a stranger's file may not do switched off.
#pragma once

#include <string>
#include <string_view>

struct _xmlDoc;  // NOLINT(bugprone-reserved-identifier): the name that libxml2 gives it

namespace mortane {

// A document that the caller frees, or null with one line in `problem` that says why.
_xmlDoc* ParseXml(std::string_view bytes, std::string& problem);

}  // namespace mortane
