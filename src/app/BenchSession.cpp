#include "app/BenchSession.h"

#include <iostream>
#include <utility>

#include "common/Failure.h"
#include "controller/simulator/Benches.h"
#include "controller/simulator/RealClock.h"

namespace mortane {
namespace {

std::optional<controller::SharedBench> FileAt(const std::string& path) {
  if (path.empty()) return std::nullopt;
  return controller::SharedBench(path);
}

}  // namespace

BenchSession::BenchSession(const std::string& path)
    : file_(FileAt(path)),
      library_(file_ ? file_->Known() : controller::benches::Named("Quay"),
               std::make_shared<controller::RealClock>()) {
  if (!file_) return;
  library_.OnChange([this](const controller::Bench&) { changed_ = true; });
  library_.OnConnection([this] { Exchange(); });
}

BenchSession::~BenchSession() {
  if (changed_ || failed_) Exchange();
}

void BenchSession::Keep() {
  if (changed_) Exchange();
}

void BenchSession::Exchange() {
  changed_ = false;
  try {
    file_->Exchange(library_.bench());
    failed_ = false;
  } catch (const Failure& failure) {
    failed_ = true;
    std::cerr << "mortane: " << failure.Description() << '\n';
  }
}

}  // namespace mortane
