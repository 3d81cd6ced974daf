#include "common/DomWriter.h"

#include <libxml/tree.h>

#include <string_view>

namespace mortane {
namespace {

// libxml2's own writer leaves the names of name spaces unescaped, so that what it wrote could not
// always be read again.

std::string_view View(const xmlChar* text) {
  return text == nullptr ? std::string_view() : reinterpret_cast<const char*>(text);
}

enum class Place { Text, Attribute };

// Within an attribute a reader turns tabs and line ends into blanks, and everywhere a carriage
// return into a line end, unless they are written as references.
std::string_view Escape(char c, Place place) {
  switch (c) {
    case '&':
      return "&amp;";
    case '<':
      return "&lt;";
    case '>':
      return "&gt;";
    case '\r':
      return "&#13;";
    case '"':
      return place == Place::Attribute ? "&quot;" : std::string_view();
    case '\n':
      return place == Place::Attribute ? "&#10;" : std::string_view();
    case '\t':
      return place == Place::Attribute ? "&#9;" : std::string_view();
    default:
      return {};
  }
}

void WriteEscaped(std::string& out, std::string_view text, Place place) {
  std::size_t plain = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const std::string_view escape = Escape(text[i], place);
    if (escape.empty()) continue;
    out.append(text.substr(plain, i - plain)).append(escape);
    plain = i + 1;
  }
  out.append(text.substr(plain));
}

void WriteName(std::string& out, const xmlNs* space, const xmlChar* name) {
  if (space != nullptr && space->prefix != nullptr) out.append(View(space->prefix)).append(":");
  out.append(View(name));
}

void WriteAttributes(std::string& out, const xmlNode& element) {
  for (const xmlNs* space = element.nsDef; space != nullptr; space = space->next) {
    out.append(space->prefix == nullptr ? " xmlns" : " xmlns:").append(View(space->prefix));
    out.append("=\"");
    WriteEscaped(out, View(space->href), Place::Attribute);
    out.append("\"");
  }
  for (const xmlAttr* attribute = element.properties; attribute != nullptr;
       attribute = attribute->next) {
    out.append(" ");
    WriteName(out, attribute->ns, attribute->name);
    out.append("=\"");
    for (const xmlNode* part = attribute->children; part != nullptr; part = part->next)
      WriteEscaped(out, View(part->content), Place::Attribute);
    out.append("\"");
  }
}

void WriteNode(std::string& out, const xmlNode& node);

void WriteElement(std::string& out, const xmlNode& element) {
  out.append("<");
  WriteName(out, element.ns, element.name);
  WriteAttributes(out, element);
  if (element.children == nullptr) {
    out.append("/>");
    return;
  }
  out.append(">");
  for (const xmlNode* child = element.children; child != nullptr; child = child->next)
    WriteNode(out, *child);
  out.append("</");
  WriteName(out, element.ns, element.name);
  out.append(">");
}

void WriteNode(std::string& out, const xmlNode& node) {
  switch (node.type) {
    case XML_ELEMENT_NODE:
      WriteElement(out, node);
      break;
    case XML_TEXT_NODE:
      WriteEscaped(out, View(node.content), Place::Text);
      break;
    case XML_CDATA_SECTION_NODE:
      out.append("<![CDATA[").append(View(node.content)).append("]]>");
      break;
    case XML_COMMENT_NODE:
      out.append("<!--").append(View(node.content)).append("-->");
      break;
    case XML_PI_NODE:
      out.append("<?").append(View(node.name));
      if (node.content != nullptr) out.append(" ").append(View(node.content));
      out.append("?>");
      break;
    default:
      break;
  }
}

}  // namespace

std::string WriteXml(const _xmlDoc& document) {
  std::string out;
  for (const xmlNode* node = document.children; node != nullptr; node = node->next)
    WriteNode(out, *node);
  return out;
}

}  // namespace mortane
