#include <string>
#include <string_view>

#include "common/Failure.h"
#include "common/Text.h"
#include "controller/simulator/Benches.h"
#include "controller/simulator/SimulatedLibrary.h"
#include "document/Dom.h"
#include "fuzz/FuzzEntry.h"
#include "fuzz/Promise.h"
#include "hub/clsK70.h"
#include "support/QuietPrompts.h"

namespace mortane {
namespace {

constexpr std::size_t kLongestName = 14;
constexpr std::int16_t kSections = 10;

// Reads every name and value, as the readers of the sections do.
std::size_t Walk(const DomNode& node) {
  std::size_t size = node.Name().size();
  for (const DomAttribute& attribute : node.Attributes()) {
    size += attribute.name.size() + attribute.value.size();
  }
  for (const DomNode& child : node.Children()) size += Walk(child);
  return size;
}

// A loaded model that reads one document after the other.
struct Reader {
  controller::SimulatedLibrary library{controller::benches::Named("Quay")};
  test::QuietPrompts prompts;
  clsK70 k70{library, prompts};

  Reader() {
    k70.Initialize();
    k70.Connect(0);
    k70.Receive();
  }

  // Whether there was a section to read. A failure that goes to the caller ends the reading; what
  // was read stays.
  bool Read(const DomDocument& document) {
    k70.ReadItems(document, "fuzz.xml");
    bool any = false;
    for (std::int16_t section = 0; section < kSections; ++section) {
      any = any || k70.FileItem(section) != 0;
    }
    if (!any) return false;
    try {
      k70.ReadSections(document, "fuzz.xml");
    } catch (const Failure& failure) {
      Require(!failure.Description().empty(), "a failure has a description");
    }
    return true;
  }
};

void CheckReader(const DomDocument& document) {
  static Reader reader;
  if (!reader.Read(document)) return;
  Require(CharacterCount(reader.k70.SystemName) <= kLongestName, "longer names are refused");
  DomDocument written;
  reader.k70.WriteSections(written);
  Require(!written.ToText().empty(), "whatever was read can be written");
}

void Check(std::string_view bytes) {
  DomDocument document;
  if (document.LoadText(bytes)) {
    std::size_t size = 0;
    for (const DomNode& node : document.Children()) size += Walk(node);
    Require(size > 0, "a document has a root");
    CheckReader(document);
  } else {
    Require(!document.Problem().empty(), "a refused document has a reason");
    Require(document.Children().empty(), "a refused document is empty");
  }
}

}  // namespace
}  // namespace mortane

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  mortane::Check(bytes);
  return 0;
}
