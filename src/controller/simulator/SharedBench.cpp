#include "controller/simulator/SharedBench.h"

#include <algorithm>

#include "common/Failure.h"
#include "controller/simulator/BenchFile.h"
#include "platform/AtomicFile.h"
#include "platform/FilePath.h"
#include "platform/NamedMutex.h"

namespace mortane::controller {
namespace {

// An exchange takes some milliseconds. A program that holds the lock for longer hangs; the others
// go on without the lock.
constexpr int kLongestWaitMs = 5000;

class BenchLock {
 public:
  explicit BenchLock(const std::string& name) {
    mutex_.Open(name);
    mutex_.Lock(kLongestWaitMs);
  }
  ~BenchLock() { mutex_.Unlock(); }
  BenchLock(const BenchLock&) = delete;
  BenchLock& operator=(const BenchLock&) = delete;

 private:
  NamedMutex mutex_;
};

const Instrument* At(const Bench& bench, std::size_t place) {
  return place < bench.instruments.size() ? &bench.instruments[place] : nullptr;
}

bool IsChanged(const Bench& ours, const Bench& known, std::size_t place) {
  const Instrument* before = At(known, place);
  return before == nullptr || !(*before == ours.instruments[place]);
}

}  // namespace

SharedBench::SharedBench(const std::string& path)
    : path_(path), lockName_(LockName(path)), known_(ReadBenchFile(path)) {}

std::string SharedBench::LockName(const std::string& path) {
  return "MortaneBench-" + PathToken(path);
}

Bench SharedBench::Merged(const Bench& ours, const Bench& theirs) const {
  Bench merged = theirs;
  if (!(ours.fiber == known_.fiber)) merged.fiber = ours.fiber;
  for (std::size_t place = 0; place < ours.instruments.size(); ++place) {
    if (!IsChanged(ours, known_, place)) continue;
    // A changed instrument keeps its index, also when the file has fewer instruments now.
    while (merged.instruments.size() <= place) {
      merged.instruments.push_back(ours.instruments[merged.instruments.size()]);
    }
    merged.instruments[place] = ours.instruments[place];
  }
  return merged;
}

void SharedBench::Exchange(Bench& bench) {
  const BenchLock lock(lockName_);
  Bench theirs = known_;
  try {
    theirs = ReadBenchFile(path_);
  } catch (const Failure&) {
    if (!IsMissing(path_)) throw;
  }
  Bench merged = Merged(bench, theirs);
  if (!(merged == theirs)) WriteBenchFile(path_, merged);
  known_ = merged;
  bench = std::move(merged);
}

}  // namespace mortane::controller
