#include "document/Dom.h"

#include <libxml/parserInternals.h>
#include <libxml/tree.h>

#include <array>
#include <cassert>
#include <new>

#include "common/Failure.h"
#include "common/Text.h"
#include "document/DomParser.h"
#include "platform/AtomicFile.h"

namespace mortane {
namespace {

const xmlChar* Xml(const std::string& text) {
  return reinterpret_cast<const xmlChar*>(text.c_str());
}

std::string FromXml(const xmlChar* text) {
  return text == nullptr ? std::string() : std::string(reinterpret_cast<const char*>(text));
}

std::string QualifiedName(const xmlNs* space, const xmlChar* name) {
  const bool prefixed = space != nullptr && space->prefix != nullptr;
  return (prefixed ? FromXml(space->prefix) + ":" : std::string()) + FromXml(name);
}

template <typename T>
T* Made(T* pointer) {
  if (pointer == nullptr) throw std::bad_alloc();
  return pointer;
}

// Length in bytes of the first character; 0 for one that XML 1.0 cannot hold.
int XmlCharacterLength(std::string_view text) {
  int length = text.size() < 4 ? static_cast<int>(text.size()) : 4;
  const int code = xmlGetUTF8Char(reinterpret_cast<const unsigned char*>(text.data()), &length);
  if (code <= 0 || !IS_CHAR(code)) return 0;
  // The smallest code of each length: an overlong form is invalid UTF-8.
  constexpr std::array<int, 5> kLeast = {0, 0, 0x80, 0x800, 0x10000};
  return code < kLeast[static_cast<std::size_t>(length)] ? 0 : length;
}

void CheckText(std::string_view text, std::string_view name) {
  for (std::size_t offset = 0; offset < text.size();) {
    const int length = XmlCharacterLength(text.substr(offset));
    if (length == 0) {
      const int byte = static_cast<unsigned char>(text[offset]);
      const std::size_t position = CharacterCount(text.substr(0, offset)) + 1;
      RaiseOwnFailure(kConversionError, "XML cannot hold the character at position " +
                                            std::to_string(position) + " of " + std::string(name) +
                                            " (byte " + std::to_string(byte) + ")");
    }
    offset += static_cast<std::size_t>(length);
  }
}

std::string CheckedName(std::string_view name) {
  CheckText(name, "a name");
  std::string checked(name);
  if (xmlValidateName(Xml(checked), 0) != 0)
    RaiseOwnFailure(kConversionError, "XML cannot hold the name \"" + checked + "\"");
  return checked;
}

// libxml2 writes all but ASCII as references unless the document says that it is UTF-8.
void WriteAsUtf8(xmlDoc* document) {
  if (document->encoding != nullptr) xmlFree(const_cast<xmlChar*>(document->encoding));
  document->encoding = Made(xmlStrdup(Xml("UTF-8")));
}

std::vector<DomNode> NodesFrom(xmlNode* first) {
  std::vector<DomNode> nodes;
  for (xmlNode* node = first; node != nullptr; node = node->next)
    if (node->type != XML_DTD_NODE) nodes.emplace_back(node);
  return nodes;
}

}  // namespace

bool DomNode::IsElement() const {
  return node_ != nullptr && node_->type == XML_ELEMENT_NODE;
}

std::string DomNode::Name() const {
  if (node_ == nullptr) return {};
  switch (node_->type) {
    case XML_ELEMENT_NODE:
      return QualifiedName(node_->ns, node_->name);
    case XML_PI_NODE:
      return FromXml(node_->name);
    case XML_TEXT_NODE:
      return "#text";
    case XML_CDATA_SECTION_NODE:
      return "#cdata-section";
    case XML_COMMENT_NODE:
      return "#comment";
    default:
      return "#other";
  }
}

std::vector<DomAttribute> DomNode::Attributes() const {
  std::vector<DomAttribute> attributes;
  if (!IsElement()) return attributes;
  for (const xmlNs* space = node_->nsDef; space != nullptr; space = space->next) {
    const std::string prefix = FromXml(space->prefix);
    attributes.push_back({prefix.empty() ? "xmlns" : "xmlns:" + prefix, FromXml(space->href)});
  }
  for (const xmlAttr* attribute = node_->properties; attribute != nullptr;
       attribute = attribute->next) {
    xmlChar* value = xmlNodeListGetString(node_->doc, attribute->children, 1);
    attributes.push_back({QualifiedName(attribute->ns, attribute->name), FromXml(value)});
    xmlFree(value);
  }
  return attributes;
}

std::vector<DomNode> DomNode::Children() const {
  return NodesFrom(IsElement() ? node_->children : nullptr);
}

void DomNode::SetAttribute(std::string_view name, std::string_view value) {
  assert(IsElement());
  const std::string checkedName = CheckedName(name);
  CheckText(value, "attribute " + checkedName);
  Made(xmlSetProp(node_, Xml(checkedName), Xml(std::string(value))));
}

void DomNode::Append(DomNode child) {
  assert(IsElement() && child.IsElement() && child.node_->parent == nullptr);
  Made(xmlAddChild(node_, child.node_));
}

DomDocument::DomDocument() : document_(Made(xmlNewDoc(Xml("1.0")))) {
  WriteAsUtf8(document_.get());
}

DomDocument::~DomDocument() {
  FreeLoose();
}

DomDocument::DomDocument(DomDocument&&) noexcept = default;

DomDocument& DomDocument::operator=(DomDocument&& other) noexcept {
  FreeLoose();
  document_ = std::move(other.document_);
  loose_ = std::move(other.loose_);
  problem_ = std::move(other.problem_);
  return *this;
}

void DomDocument::Free::operator()(_xmlDoc* document) const {
  xmlFreeDoc(document);
}

// Appended elements are freed with their parent; drop them from the list first.
void DomDocument::FreeLoose() noexcept {
  std::erase_if(loose_, [](const _xmlNode* node) { return node->parent != nullptr; });
  for (_xmlNode* node : loose_) xmlFreeNode(node);
  loose_.clear();
}

bool DomDocument::Load(const std::string& path) {
  std::string bytes;
  try {
    bytes = ReadWholeFile(path);
  } catch (const Failure& failure) {
    *this = DomDocument();
    problem_ = failure.Description();
    return false;
  }
  if (LoadText(bytes)) return true;
  problem_ = path + ": " + problem_;
  return false;
}

bool DomDocument::LoadText(std::string_view bytes) {
  *this = DomDocument();
  xmlDoc* parsed = ParseXml(bytes, problem_);
  if (parsed == nullptr) return false;
  document_.reset(parsed);
  WriteAsUtf8(parsed);
  return true;
}

DomNode DomDocument::CreateElement(std::string_view name) {
  const std::string checked = CheckedName(name);
  xmlNode* node = Made(xmlNewDocNode(document_.get(), nullptr, Xml(checked), nullptr));
  loose_.push_back(node);
  return DomNode(node);
}

void DomDocument::Append(DomNode root) {
  assert(root.IsElement() && root.node_->parent == nullptr);
  assert(xmlDocGetRootElement(document_.get()) == nullptr);
  Made(xmlAddChild(reinterpret_cast<xmlNode*>(document_.get()), root.node_));
}

std::vector<DomNode> DomDocument::Children() const {
  return NodesFrom(document_->children);
}

void DomDocument::Save(const std::string& path) const {
  WriteFileAtomically(path, ToText());
}

std::string DomDocument::ToText() const {
  xmlOutputBuffer* output = Made(xmlAllocOutputBuffer(nullptr));
  for (xmlNode* node = document_->children; node != nullptr; node = node->next)
    xmlNodeDumpOutput(output, document_.get(), node, 0, 0, "UTF-8");
  std::string text(reinterpret_cast<const char*>(xmlOutputBufferGetContent(output)),
                   xmlOutputBufferGetSize(output));
  xmlOutputBufferClose(output);
  return text;
}

}  // namespace mortane
