// Two processes on one bench file.
#include <gtest/gtest.h>

#include <chrono>

#include "controller/SimulatedRig.h"
#include "controller/simulator/BenchFile.h"
#include "controller/simulator/SharedBench.h"
#include "platform/NamedMutex.h"
#include "platform/Sleep.h"
#include "support/SecondProcess.h"
#include "support/TempFolder.h"

namespace mortane::controller::test {
namespace {

using mortane::test::SecondProcess;
using mortane::test::TempFolder;
using mortane::test::Words;

constexpr std::int32_t kRounds = 20;

// A name that an 8-bit code page cannot hold.
constexpr const char* kFileName = "bench \xC3\xA4\xE6\x97\xA5.xml";

// Counts an instrument's escape mode up, one exchange for each step.
int CountUp(const std::string& path, std::size_t place) {
  SharedBench file(path);
  Bench bench = file.Known();
  for (std::int32_t round = 1; round <= kRounds; ++round) {
    // A stale copy of the file would set it back.
    if (bench.instruments[place].escapeMode != round - 1) return 1;
    bench.instruments[place].escapeMode = round;
    file.Exchange(bench);
  }
  return 0;
}

const SecondProcess::Part kCountUp{"count up",
                                   [](const SecondProcess::Side& test, const Words& words) {
                                     test.Tell();
                                     return CountUp(words.at(0), 1);
                                   }};

const SecondProcess::Part kRename{"rename",
                                  [](const SecondProcess::Side& test, const Words& words) {
                                    SharedBench file(words.at(0));
                                    Bench bench = file.Known();
                                    bench.instruments[0].name = "Other";
                                    test.Tell();
                                    file.Exchange(bench);
                                    return 0;
                                  }};

const SecondProcess::Part kExchangeForEver{
    "exchange for ever", [](const SecondProcess::Side& test, const Words& words) -> int {
      SharedBench file(words.at(0));
      Bench bench = file.Known();
      for (;;) {
        if (++bench.instruments[0].escapeMode == 3) test.Tell();
        file.Exchange(bench);
      }
    }};

TEST(SharedBenchProcesses, KeepWhatEachOfThemSent) {
  const TempFolder folder;
  const std::string path = folder.Path(kFileName);
  Bench bench;
  bench.instruments.resize(2);
  WriteBenchFile(path, bench);
  SecondProcess other(kCountUp, {path});
  other.Await();
  EXPECT_EQ(CountUp(path, 0), 0);
  EXPECT_EQ(other.Wait(), 0);
  const Bench stored = ReadBenchFile(path);
  EXPECT_EQ(stored.instruments[0].escapeMode, kRounds);
  EXPECT_EQ(stored.instruments[1].escapeMode, kRounds);
}

TEST(SharedBenchProcesses, WaitForTheOneThatHoldsTheFile) {
  const TempFolder folder;
  const std::string path = folder.Path(kFileName);
  WriteBenchFile(path, benches::Named("Quay"));
  NamedMutex lock;
  lock.Open(SharedBench::LockName(path));
  lock.Lock(-1);
  SecondProcess other(kRename, {path});
  other.Await();
  SleepMilliseconds(50);  // several times what an exchange takes
  EXPECT_EQ(ReadBenchFile(path).instruments[0].name, "Lab 2 East");
  lock.Unlock();
  EXPECT_EQ(other.Wait(), 0);
  EXPECT_EQ(ReadBenchFile(path).instruments[0].name, "Other");
}

TEST(SharedBenchProcesses, ThatAreKilledKeepNoLock) {
  const TempFolder folder;
  const std::string path = folder.Path(kFileName);
  WriteBenchFile(path, Bench{{Instrument()}, {}});
  SecondProcess other(kExchangeForEver, {path});
  other.Await();
  other.Kill();
  SharedBench file(path);
  Bench bench = file.Known();
  bench.instruments[0].name = "After";
  const auto start = std::chrono::steady_clock::now();
  file.Exchange(bench);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(3));
  EXPECT_EQ(ReadBenchFile(path).instruments[0].name, "After");
}

}  // namespace
}  // namespace mortane::controller::test
