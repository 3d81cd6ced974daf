#include <winerror.h>

#include "controller/contract/com/ComBackEnd.h"

namespace mortane::controller::test {
namespace {

BackEndKind Kind(const char* name, BackEndMaker make, bool distant) {
  return {name,
          std::move(make),
          {"Mortane", DISP_E_UNKNOWNNAME},
          {"Mortane", DISP_E_BADPARAMCOUNT},
          {"Mortane", DISP_E_MEMBERNOTFOUND},
          {"Mortane", DISP_E_TYPEMISMATCH},
          true,
          distant};
}

template <typename Host>
BackEndMaker MakerOn() {
  return [](const std::string& bench) -> std::unique_ptr<BackEnd> {
    return std::make_unique<ComBackEnd<Host>>(bench);
  };
}

BackEndMaker MakerIn(const comserver::HostFiles& files) {
  return [files](const std::string& bench) -> std::unique_ptr<BackEnd> {
    return std::make_unique<HostedBackEnd>(files, bench);
  };
}

}  // namespace

std::vector<BackEndKind> KindsOfThisSystem() {
  std::vector<BackEndKind> kinds{Kind("InProcess", MakerOn<InProcessServer>(), false),
                                 Kind("OwnProcess", MakerOn<ServerProcess>(), true)};
  for (const comserver::HostFiles& files : comserver::AllHostFiles()) {
    kinds.push_back(Kind(files.are32 ? "Host32" : "Host64", MakerIn(files), true));
  }
  return kinds;
}

}  // namespace mortane::controller::test
