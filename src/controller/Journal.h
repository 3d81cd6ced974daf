// A journal of the calls to a controller library.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "controller/Decorator.h"

namespace mortane::controller {

// Lines, in order:
//   a value read          NosepieceDevice.Positions(3).Code -> 12
//   a value written       NosepieceDevice.Positions(3).Code = 14
//   one of 16 bits        XYDriveDevice.HandleMode = int16(1)
//   a call                ControllerSettings.SetInterlock(4, 1)
//   a call with a result  QueryCommand("rONR1") -> "ONR1210FA0C63B63"
//   a failure             the left side of these, then " ! LIB:80004005"
// A call that gives an object, and a step of an enumerator, have a line only when they fail. A
// state value has a line for each reading of its number.
class Journal {
 public:
  const std::vector<std::string>& Lines() const { return lines_; }
  // Only the lines of writes and of commanding calls, whether they failed or not.
  const std::vector<std::string>& Writes() const { return writes_; }
  // Calls of every kind, also creations, calls that give an object and steps of enumerators.
  // Reading the number of a state value does not count.
  std::size_t CallCount() const { return callCount_; }
  void Clear();

 private:
  friend class JournalLibrary;
  void Add(std::string line, bool command);

  std::vector<std::string> lines_;
  std::vector<std::string> writes_;
  std::size_t callCount_ = 0;
};

class JournalLibrary : public DecoratedLibrary {
 public:
  JournalLibrary(ControllerLibrary& inner, Journal& journal)
      : DecoratedLibrary(inner), journal_(journal) {}

 protected:
  Value Around(const CallSite& site, const Proceed& proceed) override;
  Value AroundNumber(const std::string& path, const Proceed& proceed) override;

 private:
  Journal& journal_;
};

}  // namespace mortane::controller
