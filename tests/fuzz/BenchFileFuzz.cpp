#include <string_view>

#include "common/Failure.h"
#include "controller/simulator/BenchFile.h"
#include "fuzz/FuzzEntry.h"
#include "fuzz/MemoryFile.h"
#include "fuzz/Promise.h"

namespace mortane {
namespace {

void Check(std::string_view bytes) {
  static MemoryFile file;
  file.Put(bytes);
  controller::Bench bench;
  try {
    bench = controller::ReadBenchFile(file.Path());
  } catch (const Failure& failure) {
    Require(!failure.Description().empty(), "a failure has a description");
    return;
  }
  Require(!bench.instruments.empty(), "a bench has an instrument");
  file.Put(controller::BenchFileText(bench));
  Require(controller::ReadBenchFile(file.Path()) == bench, "what is written is read as it was");
}

}  // namespace
}  // namespace mortane

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  mortane::Check({reinterpret_cast<const char*>(data), size});
  return 0;
}
