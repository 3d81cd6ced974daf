// The ways in which a program reaches a controller library, for tests that hold for each of them.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "controller/ControllerObject.h"

namespace mortane::controller::test {

// A simulated library on one of the named benches, whose moves take their time.
class BackEnd {
 public:
  virtual ~BackEnd() = default;

  virtual ControllerLibrary& Library() = 0;

  // Objects that the library handed out and that were not given back: roots alone in place, all
  // objects behind COM.
  virtual int LiveObjects() = 0;
};

// A failure that does not come from the instruments, which tell theirs alike everywhere.
struct Refusal {
  std::string source;
  std::int32_t number;
};

using BackEndMaker = std::function<std::unique_ptr<BackEnd>(const std::string& bench)>;

struct BackEndKind {
  const char* name;
  BackEndMaker make;
  Refusal unknownMember;
  Refusal wrongCount;
  Refusal wrongUse;  // a write of what can only be read, and the reverse
  Refusal wrongKind;
  bool coerces;  // takes arguments of other types as automation does
  bool distant;  // in another process, where a call takes a thousand times as long
};

std::ostream& operator<<(std::ostream& stream, const BackEndKind& kind);

// In place; on Windows through COM as well, in the caller's process, in a server's, and in the
// host's.
const std::vector<BackEndKind>& BackEndKinds();

// Those in this process, for long runs.
std::vector<BackEndKind> NearBackEndKinds();

// The kinds that a system adds to the one in place.
std::vector<BackEndKind> KindsOfThisSystem();

// A test that is run on each back end, with one on the bench "Quay", which has a fiber server.
class OnEachBackEnd : public testing::TestWithParam<BackEndKind> {
 protected:
  std::unique_ptr<BackEnd> Make(const std::string& bench = "Quay") const {
    return GetParam().make(bench);
  }
};

// Names the tests of a suite by the kinds.
std::string KindName(const testing::TestParamInfo<BackEndKind>& info);

// The failure of an expression as "source:number in hexadecimal: text"; empty without one.
template <typename Expression>
std::string FailureOf(Expression&& expression);

std::string DescribeFailure(const std::exception& failure);

template <typename Expression>
std::string FailureOf(Expression&& expression) {
  try {
    expression();
    return {};
  } catch (const std::exception& failure) {
    return DescribeFailure(failure);
  }
}

}  // namespace mortane::controller::test
