// The way from a libxml2 document to bytes.
#pragma once

#include <string>

struct _xmlDoc;  // NOLINT(bugprone-reserved-identifier): the name that libxml2 gives it

namespace mortane {

// UTF-8 with no declaration, no document type and no white space of its own.
std::string WriteXml(const _xmlDoc& document);

}  // namespace mortane
