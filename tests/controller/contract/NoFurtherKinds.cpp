#include "controller/contract/BackEnd.h"

namespace mortane::controller::test {

std::vector<BackEndKind> KindsOfThisSystem() {
  return {};
}

}  // namespace mortane::controller::test
