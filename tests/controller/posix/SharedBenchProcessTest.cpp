// Two processes on one bench file.
#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>

#include "controller/SimulatedRig.h"
#include "controller/simulator/BenchFile.h"
#include "controller/simulator/SharedBench.h"
#include "platform/NamedMutex.h"
#include "platform/Sleep.h"
#include "platform/posix/ChildProcess.h"
#include "support/TempFolder.h"

namespace mortane::controller::test {
namespace {

using mortane::test::ChildProcess;
using mortane::test::TempFolder;

constexpr std::int32_t kRounds = 20;

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

TEST(SharedBenchProcesses, KeepWhatEachOfThemSent) {
  const TempFolder folder;
  const std::string path = folder.Path("bench.xml");
  Bench bench;
  bench.instruments.resize(2);
  WriteBenchFile(path, bench);
  ChildProcess other([&](const ChildProcess::Side& parent) {
    parent.Tell();
    return CountUp(path, 1);
  });
  other.AwaitChild();
  EXPECT_EQ(CountUp(path, 0), 0);
  EXPECT_EQ(other.Wait(), 0);
  const Bench stored = ReadBenchFile(path);
  EXPECT_EQ(stored.instruments[0].escapeMode, kRounds);
  EXPECT_EQ(stored.instruments[1].escapeMode, kRounds);
}

TEST(SharedBenchProcesses, HaveOneLockForAFileAndALinkToIt) {
  const TempFolder folder;
  const std::string path = folder.Write("bench.xml", "<Bench/>");
  std::filesystem::create_symlink("bench.xml", folder.Path("link.xml"));
  EXPECT_EQ(SharedBench::LockName(folder.Path("link.xml")), SharedBench::LockName(path));
}

TEST(SharedBenchProcesses, WaitForTheOneThatHoldsTheFile) {
  const TempFolder folder;
  const std::string path = folder.Path("bench.xml");
  WriteBenchFile(path, benches::Named("Quay"));
  NamedMutex lock;
  lock.Open(SharedBench::LockName(path));
  lock.Lock(-1);
  ChildProcess other([&](const ChildProcess::Side& parent) {
    SharedBench file(path);
    Bench bench = file.Known();
    bench.instruments[0].name = "Other";
    parent.Tell();
    file.Exchange(bench);
    return 0;
  });
  other.AwaitChild();
  SleepMilliseconds(50);  // several times what an exchange takes
  EXPECT_EQ(ReadBenchFile(path).instruments[0].name, "Lab 2 East");
  lock.Unlock();
  EXPECT_EQ(other.Wait(), 0);
  EXPECT_EQ(ReadBenchFile(path).instruments[0].name, "Other");
}

TEST(SharedBenchProcesses, ThatAreKilledKeepNoLock) {
  const TempFolder folder;
  const std::string path = folder.Path("bench.xml");
  WriteBenchFile(path, Bench{{Instrument()}, {}});
  ChildProcess other([&](const ChildProcess::Side& parent) -> int {
    SharedBench file(path);
    Bench bench = file.Known();
    for (;;) {
      if (++bench.instruments[0].escapeMode == 3) parent.Tell();
      file.Exchange(bench);
    }
  });
  other.AwaitChild();
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
