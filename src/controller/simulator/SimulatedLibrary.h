// The built-in controller library: simulated instruments on a bench.
#pragma once

#include <functional>
#include <memory>

#include "controller/ControllerObject.h"
#include "controller/simulator/Bench.h"
#include "controller/simulator/Clock.h"

namespace mortane::controller {

struct SimulatorState;

// Any number of roots may live at once over the same instruments; objects keep what they need
// alive when they outlast the library. A root without a current, connected device fails every
// call but those of the device list.
class SimulatedLibrary : public ControllerLibrary {
 public:
  // On a SimulatedClock of its own.
  explicit SimulatedLibrary(Bench bench);
  SimulatedLibrary(Bench bench, std::shared_ptr<Clock> clock);
  ~SimulatedLibrary() override;
  SimulatedLibrary(const SimulatedLibrary&) = delete;
  SimulatedLibrary& operator=(const SimulatedLibrary&) = delete;

  ObjectRef Create(std::string_view className) override;

  // The live state: reads answer from it, writes go to it, and it may be changed at any time.
  Bench& bench();
  // The library's own clock. Drives move with it when they were told to return at once.
  SimulatedClock& clock();

  // Roots of the class "Microscope".
  int CreatedRoots() const;
  int ReleasedRoots() const;

  // Called after every write that changed the bench, and when a move has ended. What opens and
  // closes, connections and the fiber server's device, is no such change.
  void OnChange(std::function<void(const Bench&)> listener);

  // Called before a device is connected and after one was disconnected, to bring the bench up to
  // date with what others do to it.
  void OnConnection(std::function<void()> listener);

 private:
  std::shared_ptr<SimulatorState> state_;
  std::shared_ptr<SimulatedClock> ownClock_;
};

}  // namespace mortane::controller
