#include "document/DomParser.h"

#include <libxml/SAX2.h>
#include <libxml/parser.h>
#include <libxml/xmlerror.h>

#include <algorithm>
#include <memory>
#include <new>

#include "platform/AtomicFile.h"

namespace mortane {
namespace {

// No network access and no substitution of entities. Without XML_PARSE_HUGE, libxml2 limits the
// depth of nesting and the length of a text.
constexpr int kParseOptions =
    XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING | XML_PARSE_COMPACT;

struct FreeContext {
  void operator()(xmlParserCtxt* context) const { xmlFreeParserCtxt(context); }
};

// Each node takes about 120 bytes, whatever it takes in the file: this many are 150 MB, and read in
// half a second. A settings file has some hundred.
constexpr int kMostNodes = 1200000;

// Keeps the first error that makes a document unusable, from the parser or from the conversion of
// its encoding, and stops libxml2 from printing to standard error.
class ErrorCollector {
 public:
  ErrorCollector() : oldContext_(xmlStructuredErrorContext), oldHandler_(xmlStructuredError) {
    xmlSetStructuredErrorFunc(this, &Collect);
  }
  ~ErrorCollector() { xmlSetStructuredErrorFunc(oldContext_, oldHandler_); }
  ErrorCollector(const ErrorCollector&) = delete;
  ErrorCollector& operator=(const ErrorCollector&) = delete;

  const std::string& Problem() const { return problem_; }

  bool AddNodes(int count) {
    nodes_ += count;
    return nodes_ <= kMostNodes;
  }

  void Refuse(int line, const std::string& reason) {
    if (problem_.empty()) problem_ = "line " + std::to_string(line) + ": " + reason;
  }

 private:
  // An undeclared prefix is an error of namespaces only: the document is still well formed.
  static void Collect(void* self, xmlErrorPtr error) {
    const bool fatal = error->level == XML_ERR_FATAL ||
                       (error->level == XML_ERR_ERROR &&
                        (error->domain == XML_FROM_I18N || error->domain == XML_FROM_IO));
    if (!fatal) return;
    std::string reason = error->message == nullptr ? "" : error->message;
    reason.resize(std::min(reason.find_first_of("\r\n"), reason.size()));
    static_cast<ErrorCollector*>(self)->Refuse(error->line, reason);
  }

  void* oldContext_;
  xmlStructuredErrorFunc oldHandler_;
  std::string problem_;
  int nodes_ = 0;
};

ErrorCollector& ErrorsOf(const xmlParserCtxt& context) {
  return *static_cast<ErrorCollector*>(context._private);
}

void Refuse(void* parser, const char* reason) {
  auto* context = static_cast<xmlParserCtxt*>(parser);
  const int line = context->input == nullptr ? 0 : context->input->line;
  ErrorsOf(*context).Refuse(line, reason);
  xmlStopParser(context);
}

void RefuseEntity(void* parser, const xmlChar*, int, const xmlChar*, const xmlChar*, xmlChar*) {
  Refuse(parser, "entities are not allowed");
}

void RefuseUnparsedEntity(void* parser, const xmlChar*, const xmlChar*, const xmlChar*,
                          const xmlChar*) {
  Refuse(parser, "entities are not allowed");
}

// Called for every entity but the five predefined ones. Ignoring an undeclared one would leave a
// gap in a value, so the document is refused.
xmlEntityPtr RefuseReference(void* parser, const xmlChar*) {
  Refuse(parser, "entities are not allowed");
  return nullptr;
}

// A default value is copied into every element, so a small file could fill the memory.
void RefuseAttributeDefault(void* parser, const xmlChar*, const xmlChar*, int, int, const xmlChar*,
                            xmlEnumerationPtr values) {
  xmlFreeEnumeration(values);
  Refuse(parser, "attribute declarations are not allowed");
}

bool HasRoomFor(void* parser, int nodes) {
  if (ErrorsOf(*static_cast<xmlParserCtxt*>(parser)).AddNodes(nodes)) return true;
  Refuse(parser, "too many elements");
  return false;
}

// An attribute's value is a node of its own.
void StartElement(void* parser, const xmlChar* name, const xmlChar* prefix, const xmlChar* uri,
                  int namespaceCount, const xmlChar** namespaces, int attributeCount,
                  int defaultedCount, const xmlChar** attributes) {
  if (!HasRoomFor(parser, 1 + namespaceCount + 2 * attributeCount)) return;
  xmlSAX2StartElementNs(parser, name, prefix, uri, namespaceCount, namespaces, attributeCount,
                        defaultedCount, attributes);
}

// Called several times for a text with references; each counts.
void AddText(void* parser, const xmlChar* text, int length) {
  if (HasRoomFor(parser, 1)) xmlSAX2Characters(parser, text, length);
}

void AddComment(void* parser, const xmlChar* text) {
  if (HasRoomFor(parser, 1)) xmlSAX2Comment(parser, text);
}

void AddInstruction(void* parser, const xmlChar* target, const xmlChar* data) {
  if (HasRoomFor(parser, 1)) xmlSAX2ProcessingInstruction(parser, target, data);
}

void AddCharacterData(void* parser, const xmlChar* text, int length) {
  if (HasRoomFor(parser, 1)) xmlSAX2CDataBlock(parser, text, length);
}

// Width in bytes of a code unit, told by the byte-order mark or the first character.
std::size_t UnitWidth(std::string_view bytes) {
  using namespace std::string_view_literals;
  for (const std::string_view mark : {"\xFF\xFE\0\0"sv, "\0\0\xFE\xFF"sv, "<\0\0\0"sv, "\0\0\0<"sv})
    if (bytes.starts_with(mark)) return 4;
  for (const std::string_view mark : {"\xFF\xFE"sv, "\xFE\xFF"sv, "<\0"sv, "\0<"sv})
    if (bytes.starts_with(mark)) return 2;
  return 1;
}

// libxml2 would take a NUL after the root element for the end of the document.
bool HoldsNul(std::string_view bytes) {
  const std::size_t width = UnitWidth(bytes);
  if (width == 1) return bytes.find('\0') != std::string_view::npos;
  const std::string nul(width, '\0');
  for (std::size_t offset = 0; offset + width <= bytes.size(); offset += width)
    if (bytes.substr(offset, width) == nul) return true;
  return false;
}

bool HoldsUnreadBytes(const xmlParserCtxt& context) {
  const xmlParserInputBuffer* buffer = context.input == nullptr ? nullptr : context.input->buf;
  return buffer != nullptr && buffer->raw != nullptr && xmlBufUse(buffer->raw) > 0;
}

}  // namespace

_xmlDoc* ParseXml(std::string_view bytes, std::string& problem) {
  if (bytes.empty()) problem = "the document is empty";
  if (bytes.size() > kLargestFile) problem = "the document is too large";
  if (problem.empty() && HoldsNul(bytes)) problem = "the document holds a NUL character";
  if (!problem.empty()) return nullptr;

  ErrorCollector errors;
  const std::unique_ptr<xmlParserCtxt, FreeContext> context(xmlNewParserCtxt());
  if (context == nullptr) throw std::bad_alloc();
  context->_private = &errors;
  context->sax->startElementNs = &StartElement;
  context->sax->characters = context->sax->ignorableWhitespace = &AddText;
  context->sax->comment = &AddComment;
  context->sax->processingInstruction = &AddInstruction;
  context->sax->cdataBlock = &AddCharacterData;
  context->sax->getEntity = &RefuseReference;
  context->sax->entityDecl = &RefuseEntity;
  context->sax->unparsedEntityDecl = &RefuseUnparsedEntity;
  context->sax->attributeDecl = &RefuseAttributeDefault;
  xmlDoc* document = xmlCtxtReadMemory(context.get(), bytes.data(), static_cast<int>(bytes.size()),
                                       nullptr, nullptr, kParseOptions);
  problem = errors.Problem();
  // An incomplete character at the end never reaches the parser, so it reports no error.
  const bool cut = document != nullptr && HoldsUnreadBytes(*context);
  if (cut && problem.empty()) problem = "the document ends within a character";
  if (document == nullptr && problem.empty()) problem = "the document is not well formed";
  if (problem.empty()) return document;
  xmlFreeDoc(document);
  return nullptr;
}

}  // namespace mortane
