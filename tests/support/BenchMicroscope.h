// A connected microscope for the tests of one room's units. What the microscope object detects in
// the library is taken from the bench's data here.
#pragma once

#include <string>
#include <utility>

#include "common/Text.h"
#include "controller/simulator/Bench.h"
#include "model/ConnectedMicroscope.h"

namespace mortane::test {

// Base of a room's units, which hold a reference to it as their microscope. The bench must outlive
// it; changes of the bench after Connect are not detected.
class BenchMicroscope : public ConnectedMicroscope {
 public:
  // Makes the root of the library.
  BenchMicroscope(controller::ControllerLibrary& library, const controller::Bench& bench,
                  Prompts& prompts);
  virtual ~BenchMicroscope() = default;
  BenchMicroscope(const BenchMicroscope&) = delete;
  BenchMicroscope& operator=(const BenchMicroscope&) = delete;
  BenchMicroscope(BenchMicroscope&&) = delete;
  BenchMicroscope& operator=(BenchMicroscope&&) = delete;

  // Connects that instrument, on a new root. Raises what the library raises.
  void Connect(std::int32_t device);
  void Disconnect();

  // Reads the units in the order of the transfers, then counts the addresses of the turrets.
  // Returns the lines of what failed.
  std::string Receive();

 protected:
  // The reports of the units, joined.
  virtual std::string ReadUnits() = 0;
  // Gives the units the counts of their turrets.
  virtual void TakeCounts() {}

  // Addresses of the nosepiece, the filter turret or the cassette; 0 when it is not mounted.
  std::int32_t TurretCount(std::int32_t accessory) const;

 private:
  void Detect(const controller::Instrument& instrument);

  controller::ControllerLibrary& library_;
  const controller::Bench& bench_;
};

// Reads the units one after the other.
template <typename... Units>
std::string ReadInOrder(Units&... units) {
  std::string failures;
  ((failures = AppendLine(std::move(failures), units.ReadSdk())), ...);
  return failures;
}

}  // namespace mortane::test
