// mortanectl: what a check of many files costs beside libxml2 alone on the same bytes, and whole
// commands from the start of the process to its end beside a process that does nothing.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <libxml/parser.h>
#include <libxml/tree.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include "SilentPrompts.h"
#include "controller/simulator/Benches.h"
#include "controller/simulator/SimulatedLibrary.h"
#include "ctl/Program.h"
#include "hub/clsK70.h"

namespace mortane {
namespace {

namespace fs = std::filesystem;

// A folder of full settings files, on a memory file system where there is one.
class SettingsFolder {
 public:
  explicit SettingsFolder(std::int64_t count) {
    fs::create_directories(path_);
    controller::SimulatedLibrary library(controller::benches::Named("Quay"));
    SilentPrompts prompts;
    clsK70 k70(library, prompts);
    k70.Initialize();
    k70.Connect(0);
    k70.Receive();
    for (std::int64_t i = 0; i < count; ++i) {
      files_.push_back((path_ / (std::to_string(i) + ".xml")).string());
      if (i == 0) {
        k70.WriteXML(files_.front());
      } else {
        fs::copy_file(files_.front(), files_.back(), fs::copy_options::overwrite_existing);
      }
    }
  }
  ~SettingsFolder() { fs::remove_all(path_); }
  SettingsFolder(const SettingsFolder&) = delete;
  SettingsFolder& operator=(const SettingsFolder&) = delete;

  std::string Path() const { return path_.string(); }
  const std::vector<std::string>& Files() const { return files_; }

 private:
  static fs::path Base() {
    const fs::path memory = "/dev/shm";
    return fs::exists(memory) ? memory : fs::temp_directory_path();
  }

  fs::path path_ = Base() / ("mortane-benchmark-" + std::to_string(getpid()));
  std::vector<std::string> files_;
};

void PerFile(benchmark::State& state) {
  state.SetComplexityN(state.range(0));
  state.SetItemsProcessed(state.iterations() * state.range(0));
}

void Check(benchmark::State& state) {
  const SettingsFolder folder(state.range(0));
  for ([[maybe_unused]] auto _ : state) {
    std::istringstream in;
    std::ostringstream out;
    std::ostringstream err;
    ctl::Surroundings surroundings{in, out, err};
    if (ctl::Run({"check", folder.Path()}, surroundings) != ctl::Outcome::Done) {
      state.SkipWithError("refused");
    }
  }
  PerFile(state);
}
BENCHMARK(Check)->RangeMultiplier(10)->Range(1, 10000)->Complexity(benchmark::oN);

void ReadByLibraryAlone(benchmark::State& state) {
  const SettingsFolder folder(state.range(0));
  for ([[maybe_unused]] auto _ : state) {
    for (const std::string& file : folder.Files()) {
      xmlDoc* document = xmlReadFile(file.c_str(), nullptr, XML_PARSE_NONET);
      benchmark::DoNotOptimize(document);
      xmlFreeDoc(document);
    }
  }
  PerFile(state);
}
BENCHMARK(ReadByLibraryAlone)->RangeMultiplier(10)->Range(1, 10000)->Complexity(benchmark::oN);

// Runs a program to its end and tells its largest memory.
void RunProcess(benchmark::State& state, const std::vector<std::string>& words) {
  std::vector<char*> arguments;
  arguments.reserve(words.size() + 1);
  for (const std::string& word : words) arguments.push_back(const_cast<char*>(word.c_str()));
  arguments.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
  posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
  struct rusage usage = {};
  for ([[maybe_unused]] auto _ : state) {
    pid_t child = 0;
    int status = 0;
    if (posix_spawn(&child, arguments[0], &actions, nullptr, arguments.data(), environ) != 0 ||
        wait4(child, &status, 0, &usage) != child || !WIFEXITED(status) ||
        WEXITSTATUS(status) > 1) {
      state.SkipWithError("the process failed");
    }
  }
  posix_spawn_file_actions_destroy(&actions);
  state.counters["KiB"] = static_cast<double>(usage.ru_maxrss);
}

void ProcessThatDoesNothing(benchmark::State& state) {
  RunProcess(state, {MORTANE_NOTHING});
}
void ProcessOfHelp(benchmark::State& state) {
  RunProcess(state, {MORTANECTL, "--help"});
}
void ProcessOfDiff(benchmark::State& state) {
  const SettingsFolder folder(2);
  RunProcess(state, {MORTANECTL, "diff", folder.Files().front(), folder.Files().back()});
}
void ProcessOfCompare(benchmark::State& state) {
  const SettingsFolder folder(1);
  RunProcess(state, {MORTANECTL, "compare", "--sim", folder.Files().front()});
}
void ProcessOfCheck(benchmark::State& state) {
  const SettingsFolder folder(state.range(0));
  RunProcess(state, {MORTANECTL, "check", folder.Path()});
}
BENCHMARK(ProcessThatDoesNothing)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(ProcessOfHelp)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(ProcessOfDiff)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(ProcessOfCompare)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(ProcessOfCheck)
    ->RangeMultiplier(10)
    ->Range(1, 10000)
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace mortane
