// The built-in controller library: simulated instruments on a bench.
#pragma once

#include <functional>
#include <memory>

#include "controller/ControllerObject.h"
#include "controller/simulator/Bench.h"
#include "controller/simulator/Clock.h"

namespace mortane::controller {

struct SimulatorState;

// Any number of roots may exist over the same instruments. Objects may outlive the library. A root
// without a current, connected device fails every call but those of the device list.
class SimulatedLibrary : public ControllerLibrary {
 public:
  // With a SimulatedClock of its own.
  explicit SimulatedLibrary(Bench bench);
  SimulatedLibrary(Bench bench, std::shared_ptr<Clock> clock);
  ~SimulatedLibrary() override;
  SimulatedLibrary(const SimulatedLibrary&) = delete;
  SimulatedLibrary& operator=(const SimulatedLibrary&) = delete;

  ObjectRef Create(std::string_view className) override;

  // The data that all calls read and write. It may be changed at any time.
  Bench& bench();
  // The library's own clock; not for a library that was given one. Asynchronous moves follow it.
  SimulatedClock& clock();

  // Numbers of roots, objects of the class "Microscope".
  int CreatedRoots() const;
  int ReleasedRoots() const;

  // Called after every write that changed the bench, and when a move has ended. Opening or closing
  // connections, or the fiber server's device, is not a change.
  void OnChange(std::function<void(const Bench&)> listener);

  // Called before a device is connected and after one was disconnected. The listener may replace
  // the bench, for instance by what other programs wrote.
  void OnConnection(std::function<void()> listener);

 private:
  std::shared_ptr<SimulatorState> state_;
  std::shared_ptr<SimulatedClock> ownClock_;
};

}  // namespace mortane::controller
