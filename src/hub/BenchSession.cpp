#include "hub/BenchSession.h"

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

void WriteNotice(const std::string& text) {
  std::cerr << "mortane: " << text << '\n';
}

}  // namespace

BenchSession::BenchSession(const std::string& path, Notice notice)
    : file_(FileAt(path)),
      library_(file_ ? file_->Known() : controller::benches::Named("Quay"),
               std::make_shared<controller::RealClock>()),
      notice_(notice ? std::move(notice) : WriteNotice) {
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

void BenchSession::Renew() {
  if (file_) Exchange();
}

void BenchSession::Exchange() {
  changed_ = false;
  try {
    file_->Exchange(library_.bench());
    failed_ = false;
  } catch (const Failure& failure) {
    failed_ = true;
    notice_(failure.Description());
  }
}

}  // namespace mortane
