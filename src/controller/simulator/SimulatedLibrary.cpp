#include "controller/simulator/SimulatedLibrary.h"

#include <cassert>

#include "controller/simulator/FiberObjects.h"
#include "controller/simulator/RootObject.h"

namespace mortane::controller {

SimulatedLibrary::SimulatedLibrary(Bench bench, std::shared_ptr<Clock> clock)
    : state_(std::make_shared<SimulatorState>()) {
  state_->bench = std::move(bench);
  state_->clock = std::move(clock);
}

SimulatedLibrary::SimulatedLibrary(Bench bench)
    : SimulatedLibrary(std::move(bench), std::make_shared<SimulatedClock>()) {
  ownClock_ = std::static_pointer_cast<SimulatedClock>(state_->clock);
}

SimulatedLibrary::~SimulatedLibrary() = default;

ObjectRef SimulatedLibrary::Create(std::string_view className) {
  if (className == "Microscope") return MakeRoot(state_);
  if (className == "FiberServer") return MakeFiberServer(state_);
  if (className == "FiberRemote") return MakeFiberRemote(state_);
  RaiseSimulated("Unknown class \"" + std::string(className) + "\".");
}

Bench& SimulatedLibrary::bench() {
  return state_->bench;
}

SimulatedClock& SimulatedLibrary::clock() {
  assert(ownClock_ != nullptr);
  return *ownClock_;
}

int SimulatedLibrary::CreatedRoots() const {
  return state_->createdRoots;
}

int SimulatedLibrary::ReleasedRoots() const {
  return state_->releasedRoots;
}

void SimulatedLibrary::OnChange(std::function<void(const Bench&)> listener) {
  state_->onChange = std::move(listener);
}

void SimulatedLibrary::OnConnection(std::function<void()> listener) {
  state_->onConnection = std::move(listener);
}

}  // namespace mortane::controller
