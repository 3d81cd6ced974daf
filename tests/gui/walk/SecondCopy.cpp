#include "SecondCopy.h"

#include <optional>

#include "support/QuietPrompts.h"
#include "support/RandomModel.h"

namespace mortane::test {

SecondCopy::SecondCopy(controller::SimulatedLibrary& library, std::mt19937& random)
    : library_(library), random_(random), prompts_(std::make_unique<QuietPrompts>()) {}

SecondCopy::~SecondCopy() = default;

void SecondCopy::Leave() {
  k70_.reset();
}

std::string SecondCopy::Act(std::int32_t device) {
  if (k70_ && random_() % 3 == 0) {
    Leave();
    return {};
  }
  if (!k70_) return Take(device);
  if (k70_->lConnectDevice == device) return "two copies have device " + std::to_string(device);
  std::optional<controller::Instrument> before;
  if (device >= 0) before = library_.bench().instruments[static_cast<std::size_t>(device)];
  MakeRandom(*k70_, random_);
  k70_->Send();
  if (before && before != library_.bench().instruments[static_cast<std::size_t>(device)]) {
    return "the second copy changed device " + std::to_string(device);
  }
  return {};
}

std::string SecondCopy::Take(std::int32_t device) {
  auto k70 = std::make_unique<clsK70>(library_, *prompts_);
  k70->Initialize();
  const auto wanted = static_cast<std::int32_t>(random_() % library_.bench().instruments.size());
  if (!k70->CreateConnectionName(std::to_string(wanted))) return {};
  if (wanted == device) return "a second copy got device " + std::to_string(wanted);
  if (!k70->Connect(wanted)) return {};
  k70->Receive();
  k70_ = std::move(k70);
  return {};
}

}  // namespace mortane::test
