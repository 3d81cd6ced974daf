#include "app/BenchSession.h"

#include <iostream>
#include <utility>

#include "common/Failure.h"
#include "controller/simulator/BenchFile.h"
#include "controller/simulator/Benches.h"
#include "controller/simulator/RealClock.h"

namespace mortane {

BenchSession::BenchSession(const std::string& path)
    : path_(path),
      library_(path.empty() ? controller::benches::Named("Quay") : controller::ReadBenchFile(path),
               std::make_shared<controller::RealClock>()) {
  if (!path_.empty()) {
    library_.OnChange([this](const controller::Bench&) { changed_ = true; });
  }
}

BenchSession::~BenchSession() {
  Keep();
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
