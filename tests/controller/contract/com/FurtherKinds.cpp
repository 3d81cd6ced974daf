#include <winerror.h>

#include "controller/contract/com/ComBackEnd.h"

namespace mortane::controller::test {
namespace {

template <typename Host>
BackEndKind Kind(const char* name, bool distant) {
  return {name,
          [](const std::string& bench) -> std::unique_ptr<BackEnd> {
            return std::make_unique<ComBackEnd<Host>>(bench);
          },
          {"Mortane", DISP_E_UNKNOWNNAME},
          {"Mortane", DISP_E_BADPARAMCOUNT},
          {"Mortane", DISP_E_MEMBERNOTFOUND},
          {"Mortane", DISP_E_TYPEMISMATCH},
          true,
          distant};
}

}  // namespace

std::vector<BackEndKind> KindsOfThisSystem() {
  return {Kind<InProcessServer>("InProcess", false), Kind<ServerProcess>("OwnProcess", true)};
}

}  // namespace mortane::controller::test
