#include "controller/simulator/SimulatedLibrary.h"

#include "controller/simulator/FiberObjects.h"
#include "controller/simulator/RootObject.h"

namespace mortane::controller {

SimulatedLibrary::SimulatedLibrary(Bench bench) : state_(std::make_shared<SimulatorState>()) {
  state_->bench = std::move(bench);
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
  return state_->clock;
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

}  // namespace mortane::controller
