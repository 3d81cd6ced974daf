#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "common/Dom.h"
#include "fuzz/FuzzEntry.h"

namespace mortane {
namespace {

void Require(bool holds, const char* promise) {
  if (holds) return;
  std::fprintf(stderr, "broken: %s\n", promise);
  std::abort();
}

// Reads every name and value, as the readers of the sections do.
std::size_t Walk(const DomNode& node) {
  std::size_t size = node.Name().size();
  for (const DomAttribute& attribute : node.Attributes())
    size += attribute.name.size() + attribute.value.size();
  for (const DomNode& child : node.Children()) size += Walk(child);
  return size;
}

void CheckDocument(std::string_view bytes) {
  DomDocument document;
  if (!document.LoadText(bytes)) {
    Require(!document.Problem().empty(), "a refused document has a reason");
    Require(document.Children().empty(), "a refused document is empty");
    return;
  }
  std::size_t size = 0;
  for (const DomNode& node : document.Children()) size += Walk(node);
  Require(size > 0, "a document has a root");

  const std::string text = document.ToText();
  DomDocument again;
  Require(again.LoadText(text), "what is written can be read");
  Require(again.ToText() == text, "the same content gives the same bytes");
}

}  // namespace
}  // namespace mortane

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  mortane::CheckDocument({reinterpret_cast<const char*>(data), size});
  return 0;
}
