#include <cmath>
#include <string>
#include <string_view>

#include "common/Failure.h"
#include "controller/replay/JournalReader.h"
#include "controller/simulator/BenchFile.h"
#include "controller/simulator/BenchOfSession.h"
#include "fuzz/FuzzEntry.h"
#include "fuzz/MemoryFile.h"
#include "fuzz/Promise.h"

namespace mortane {
namespace {

using controller::JournalReader;
using controller::SessionLine;

// Equal to nothing, not even to itself.
bool IsNoNumber(const SessionLine& line) {
  const auto* number = std::get_if<double>(&line.result);
  return number != nullptr && std::isnan(*number);
}

void CheckLine(const SessionLine& line) {
  const std::string text = controller::FormatSessionLine({}, line);
  const auto again = controller::ParseSessionLine(text);
  Require(again.has_value(), "a line that is written can be read");
  Require(IsNoNumber(line) || *again == line, "a line that is written is read as it was");
  controller::ParseSessionCall(line.call);
}

void ReadLines(JournalReader& reader) {
  while (const auto line = reader.Next()) CheckLine(*line);
  Require(!reader.Where().empty(), "a place has a name");
}

void MakeBench(JournalReader& reader) {
  const controller::SessionBench made = controller::BenchOfSession(reader);
  Require(!controller::BenchFileText(made.bench).empty(), "a session's bench can be written");
}

// Whether the journal was read to its end.
bool Read(const MemoryFile& file, void (*use)(JournalReader&)) {
  try {
    JournalReader reader(file.Path());
    use(reader);
    return true;
  } catch (const Failure& failure) {
    Require(!failure.Description().empty(), "a failure has a description");
    return false;
  }
}

void Check(std::string_view bytes) {
  static MemoryFile file;
  file.Put(bytes);
  if (Read(file, ReadLines)) Read(file, MakeBench);
}

}  // namespace
}  // namespace mortane

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  mortane::Check({reinterpret_cast<const char*>(data), size});
  return 0;
}
