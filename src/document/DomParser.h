// Parses bytes into a libxml2 document. Refuses entities and attribute defaults; uses no network.
#pragma once

#include <string>
#include <string_view>

struct _xmlDoc;  // NOLINT(bugprone-reserved-identifier): the name that libxml2 gives it

namespace mortane {

// A document that the caller frees, or null with one line in `problem` that says why.
_xmlDoc* ParseXml(std::string_view bytes, std::string& problem);

}  // namespace mortane
