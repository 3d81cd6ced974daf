// A full settings file, read and written by the program and by libxml2 alone.
#include <benchmark/benchmark.h>
#include <libxml/parser.h>
#include <libxml/tree.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "SilentPrompts.h"
#include "controller/simulator/Benches.h"
#include "controller/simulator/SimulatedLibrary.h"
#include "hub/clsK70.h"

namespace mortane {
namespace {

// On a memory file system where there is one, so that no disk is measured.
std::string BenchmarkFile() {
  const std::filesystem::path memory = "/dev/shm";
  const auto folder =
      std::filesystem::exists(memory) ? memory : std::filesystem::temp_directory_path();
  return (folder / "mortane-benchmark.xml").string();
}

struct LoadedModel {
  LoadedModel() {
    k70.Initialize();
    k70.Connect(0);
    k70.Receive();
    k70.WriteXML(path);
    k70.ReadXMLItems(path);
  }
  ~LoadedModel() { std::filesystem::remove(path); }

  controller::SimulatedLibrary library{controller::benches::Named("Quay")};
  SilentPrompts prompts;
  clsK70 k70{library, prompts};
  std::string path = BenchmarkFile();
};

void CountBytes(benchmark::State& state, const std::string& path) {
  state.SetBytesProcessed(state.iterations() *
                          static_cast<std::int64_t>(std::filesystem::file_size(path)));
}

void ReadSettings(benchmark::State& state) {
  LoadedModel model;
  for ([[maybe_unused]] auto _ : state) model.k70.ReadXML(model.path);
  CountBytes(state, model.path);
}
BENCHMARK(ReadSettings);

void ReadByLibraryAlone(benchmark::State& state) {
  const LoadedModel model;
  for ([[maybe_unused]] auto _ : state) {
    xmlDoc* document = xmlReadFile(model.path.c_str(), nullptr, XML_PARSE_NONET);
    benchmark::DoNotOptimize(document);
    xmlFreeDoc(document);
  }
  CountBytes(state, model.path);
}
BENCHMARK(ReadByLibraryAlone);

void WriteSettings(benchmark::State& state) {
  LoadedModel model;
  for ([[maybe_unused]] auto _ : state) model.k70.WriteXML(model.path);
  CountBytes(state, model.path);
}
BENCHMARK(WriteSettings);

// Copying the tree stands for building it; there is no fsync and no rename.
void WriteByLibraryAlone(benchmark::State& state) {
  const LoadedModel model;
  xmlDoc* original = xmlReadFile(model.path.c_str(), nullptr, XML_PARSE_NONET);
  for ([[maybe_unused]] auto _ : state) {
    xmlDoc* document = xmlCopyDoc(original, 1);
    xmlSaveFile(model.path.c_str(), document);
    xmlFreeDoc(document);
  }
  xmlFreeDoc(original);
  CountBytes(state, model.path);
}
BENCHMARK(WriteByLibraryAlone);

}  // namespace
}  // namespace mortane
