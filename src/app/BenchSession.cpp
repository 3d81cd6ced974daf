#include "app/BenchSession.h"

#include <iostream>
#include <utility>

#include "common/Failure.h"
#include "controller/simulator/BenchFile.h"
#include "controller/simulator/Benches.h"

namespace mortane {

BenchSession::BenchSession(const std::string& path)
    : path_(path),
      library_(path.empty() ? controller::benches::Named("Quay") : controller::ReadBenchFile(path)),
      timed_(library_, [this] { AdvanceClock(); }) {
  if (!path_.empty()) {
    library_.OnChange([this](const controller::Bench&) { changed_ = true; });
  }
}

BenchSession::~BenchSession() {
  Keep();
}

void BenchSession::AdvanceClock() {
  using std::chrono::milliseconds;
  const auto passed = std::chrono::steady_clock::now() - started_;
  const std::int64_t now = std::chrono::duration_cast<milliseconds>(passed).count();
  library_.clock().Advance(now - library_.clock().Now());
}

void BenchSession::Keep() {
  if (!std::exchange(changed_, false)) return;
  try {
    controller::WriteBenchFile(path_, library_.bench());
  } catch (const Failure& failure) {
    std::cerr << "mortane: " << failure.Description() << '\n';
  }
}

}  // namespace mortane
