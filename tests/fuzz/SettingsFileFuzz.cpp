#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

#include "common/Text.h"
#include "controller/simulator/Benches.h"
#include "controller/simulator/SimulatedLibrary.h"
#include "document/Dom.h"
#include "fuzz/FuzzEntry.h"
#include "hub/clsK70.h"

namespace mortane {
namespace {

constexpr std::size_t kLongestName = 14;

void Require(bool holds, const char* promise) {
  if (holds) return;
  std::fprintf(stderr, "broken: %s\n", promise);
  std::abort();
}

// Counts the boxes and ignores everything else.
class CountingPrompts : public Prompts {
 public:
  int boxes = 0;

  Answer MsgBox(const std::string&, int, const std::string&) override {
    ++boxes;
    return Answer::Ok;
  }
  Answer TimedMsgBox(int, const std::string&, int, const std::string&, const std::string&,
                     int) override {
    return Answer::Ok;
  }
  std::string AskFileToOpen(const FileQuestion&) override { return {}; }
  std::string AskFileToSave(const FileQuestion&) override { return {}; }
  void SetPointer(Pointer) override {}
  void FlushInput() override {}
  void Wait(int) override {}
  void ShowProgress(int, int) override {}
};

// Reads every name and value, as the readers of the sections do.
std::size_t Walk(const DomNode& node) {
  std::size_t size = node.Name().size();
  for (const DomAttribute& attribute : node.Attributes()) {
    size += attribute.name.size() + attribute.value.size();
  }
  for (const DomNode& child : node.Children()) size += Walk(child);
  return size;
}

// True when the bytes are a document.
bool CheckDocument(std::string_view bytes) {
  DomDocument document;
  if (!document.LoadText(bytes)) {
    Require(!document.Problem().empty(), "a refused document has a reason");
    Require(document.Children().empty(), "a refused document is empty");
    return false;
  }
  std::size_t size = 0;
  for (const DomNode& node : document.Children()) size += Walk(node);
  Require(size > 0, "a document has a root");
  return true;
}

// A memory file system is used if there is one, because each save waits for the disk.
std::filesystem::path FastFolder() {
  const std::filesystem::path memory = "/dev/shm";
  return std::filesystem::exists(memory) ? memory : std::filesystem::temp_directory_path();
}

// A loaded model that reads one file after the other.
struct Reader {
  controller::SimulatedLibrary library{controller::benches::Named("Quay")};
  CountingPrompts prompts;
  clsK70 k70{library, prompts};
  std::string path = (FastFolder() / ("mortane-fuzz-" + std::to_string(getpid()))).string();

  Reader() {
    k70.Initialize();
    k70.Connect(0);
    k70.Receive();
  }
  ~Reader() { std::filesystem::remove(path); }

  // A failure that goes to the caller ends the reading; what was read stays.
  void Read(std::string_view bytes) {
    std::ofstream(path, std::ios::binary) << bytes;
    k70.ReadXMLItems(path);
    try {
      k70.ReadXML(path);
    } catch (const Failure& failure) {
      Require(!failure.Description().empty(), "a failure has a description");
    }
  }
};

void CheckReader(std::string_view bytes, bool isDocument) {
  static Reader reader;
  reader.k70.SystemName = "Before";
  reader.prompts.boxes = 0;
  reader.Read(bytes);
  Require(isDocument || reader.prompts.boxes == 2, "both readers tell of what is no document");
  Require(isDocument || reader.k70.SystemName == "Before", "what is no document changes nothing");
  Require(CharacterCount(reader.k70.SystemName) <= kLongestName, "longer names are refused");

  reader.prompts.boxes = 0;
  reader.k70.WriteXML(reader.path);
  Require(reader.prompts.boxes == 0, "whatever was read can be written");
}

}  // namespace
}  // namespace mortane

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  mortane::CheckReader(bytes, mortane::CheckDocument(bytes));
  return 0;
}
