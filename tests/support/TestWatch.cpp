#include "support/TestWatch.h"

#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <string>
#include <thread>

namespace mortane::test {
namespace {

using Clock = std::chrono::steady_clock;

constexpr int kExitCode = 3;

class TestWatch : public testing::EmptyTestEventListener {
 public:
  TestWatch() : thread_([this] { Watch(); }) {}

  ~TestWatch() override {
    {
      const std::scoped_lock lock(mutex_);
      over_ = true;
    }
    changed_.notify_all();
    thread_.join();
  }

  TestWatch(const TestWatch&) = delete;
  TestWatch& operator=(const TestWatch&) = delete;

  void OnTestStart(const testing::TestInfo& test) override {
    const std::scoped_lock lock(mutex_);
    name_ = std::string(test.test_suite_name()) + "." + test.name();
    deadline_ = Clock::now() + std::chrono::seconds(kSecondsForOneTest);
    changed_.notify_all();
  }

  void OnTestEnd(const testing::TestInfo&) override {
    const std::scoped_lock lock(mutex_);
    name_.clear();
  }

 private:
  void Watch() {
    std::unique_lock lock(mutex_);
    while (!over_) {
      if (name_.empty()) {
        changed_.wait(lock);
      } else if (changed_.wait_until(lock, deadline_) == std::cv_status::timeout) {
        if (!name_.empty() && Clock::now() >= deadline_) End();
      }
    }
  }

  [[noreturn]] void End() const {
    std::fprintf(stderr, "%s did not end within %d s\n", name_.c_str(), kSecondsForOneTest);
    std::fflush(stderr);
    std::_Exit(kExitCode);
  }

  std::mutex mutex_;
  std::condition_variable changed_;
  std::string name_;
  Clock::time_point deadline_;
  bool over_ = false;
  std::thread thread_;
};

}  // namespace

std::unique_ptr<testing::TestEventListener> MakeTestWatch() {
  return std::make_unique<TestWatch>();
}

}  // namespace mortane::test
