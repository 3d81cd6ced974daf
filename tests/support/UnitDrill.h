// The one drill for configuration units: each brings its table of data and passes the same tests.
#pragma once

#include <gtest/gtest.h>

#include <concepts>
#include <functional>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "support/BenchMicroscope.h"
#include "support/RigLibrary.h"
#include "support/UnitText.h"

namespace mortane::test {

// The five operations of a unit, whichever it is. `make` gives the units of its room; the others
// take no other microscope than that.
struct UnitOperations {
  std::function<std::unique_ptr<BenchMicroscope>(RigLibrary&)> make;
  std::function<std::string(BenchMicroscope&)> read;
  std::function<std::string(BenchMicroscope&, std::string&)> modify;
  std::function<std::string(BenchMicroscope&)> write;
  std::function<std::string(BenchMicroscope&, const std::string&)> readElement;
  std::function<std::string(BenchMicroscope&)> fileText;
};

template <typename Unit, typename Units>
UnitOperations OperationsOf(Unit Units::*unit) {
  const auto of = [unit](BenchMicroscope& microscope) -> Unit& {
    return static_cast<Units&>(microscope).*unit;
  };
  return {[](RigLibrary& rig) -> std::unique_ptr<BenchMicroscope> {
            return std::make_unique<Units>(rig.library, rig.simulated.bench(), rig.prompts);
          },
          [of](BenchMicroscope& microscope) { return of(microscope).ReadSdk(); },
          [of](BenchMicroscope& microscope, std::string& list) {
            return of(microscope).ModifySdk(list);
          },
          [of](BenchMicroscope& microscope) { return of(microscope).WriteSdk(); },
          [of](BenchMicroscope& microscope, const std::string& xml) {
            return ReadElement(of(microscope), xml);
          },
          [of](BenchMicroscope& microscope) { return FileTextOf(of(microscope)); }};
}

class UnitChange;

template <typename Type>
concept UnitLambda = !std::same_as<std::remove_cvref_t<Type>, UnitChange>;

// A function of the room's units, made of a lambda that takes them by reference.
class UnitChange {
 public:
  template <UnitLambda Change>
  UnitChange(Change change) : change_(Erased(std::function(std::move(change)))) {}

  void operator()(BenchMicroscope& microscope) const { change_(microscope); }

 private:
  template <typename Units>
  static std::function<void(BenchMicroscope&)> Erased(std::function<void(Units&)> change) {
    return [change = std::move(change)](BenchMicroscope& microscope) {
      change(static_cast<Units&>(microscope));
    };
  }

  std::function<void(BenchMicroscope&)> change_;
};

// A change of the unit, what ModifySdk adds to its list for it, and what WriteSdk then writes,
// in the journal's words.
struct UnitEdit {
  std::string what;
  UnitChange change;
  std::string differences;
  std::vector<std::string> writes;
};

struct RefusedElement {
  std::string xml;
  std::string line;
};

// `edits` change different items, in the order in which the unit compares them. Failures are the
// openings of lines; without a modifyFailure ModifySdk must make no call to the controller.
struct UnitDrillData {
  std::string name;
  std::string bench;
  UnitOperations unit;
  std::vector<UnitEdit> edits;
  std::vector<std::string> alwaysWritten;
  std::string readFailure;
  std::string readFailed = "LIB:80004005)";  // what follows it
  std::string modifyFailure;
  std::vector<std::string> writeFailures;
  std::vector<RefusedElement> refused;
  // Takes the edits back that a read leaves as they are until the controller has answered.
  std::optional<UnitChange> undoKept;
  // Whether an item that was not read has a value of its own, so that it is neither compared nor
  // written. Codes and names have none.
  bool marksUnknown = false;
};

inline void PrintTo(const UnitDrillData& data, std::ostream* stream) {
  *stream << data.name;
}

inline std::string DrillName(const testing::TestParamInfo<UnitDrillData>& info) {
  return info.param.name;
}

// The units of the data's room, connected and read.
struct DrillRig : RigLibrary {
  explicit DrillRig(const UnitDrillData& data);

  std::unique_ptr<BenchMicroscope> units;
};

// No table may be empty, and reading and writing must each call the controller.
class UnitDrill : public testing::TestWithParam<UnitDrillData> {
 protected:
  void SetUp() override;
  static void MakeAllEdits(BenchMicroscope& units);
  static std::vector<std::string> LinesOf(const std::string& report);
};

}  // namespace mortane::test
