#include "controller/contract/BackEnd.h"

#include "common/Numbers.h"
#include "controller/ControllerError.h"
#include "controller/simulator/Benches.h"
#include "controller/simulator/RealClock.h"
#include "controller/simulator/SimulatedLibrary.h"

namespace mortane::controller::test {
namespace {

constexpr std::int32_t kUnspecifiedError = -2147467259;

class InPlace : public BackEnd {
 public:
  explicit InPlace(const std::string& bench)
      : library_(benches::Named(bench), std::make_shared<RealClock>()) {}

  ControllerLibrary& Library() override { return library_; }
  int LiveObjects() override { return library_.CreatedRoots() - library_.ReleasedRoots(); }

 private:
  SimulatedLibrary library_;
};

}  // namespace

std::ostream& operator<<(std::ostream& stream, const BackEndKind& kind) {
  return stream << kind.name;
}

const std::vector<BackEndKind>& BackEndKinds() {
  static const std::vector<BackEndKind> kinds = [] {
    const Refusal own{"Simulator", kUnspecifiedError};
    std::vector<BackEndKind> all{{"InPlace",
                                  [](const std::string& bench) -> std::unique_ptr<BackEnd> {
                                    return std::make_unique<InPlace>(bench);
                                  },
                                  own, own, own, own, false, false}};
    for (const BackEndKind& kind : KindsOfThisSystem()) all.push_back(kind);
    return all;
  }();
  return kinds;
}

std::vector<BackEndKind> NearBackEndKinds() {
  std::vector<BackEndKind> kinds = BackEndKinds();
  std::erase_if(kinds, [](const BackEndKind& kind) { return kind.distant; });
  return kinds;
}

std::string KindName(const testing::TestParamInfo<BackEndKind>& info) {
  return info.param.name;
}

std::string DescribeFailure(const std::exception& failure) {
  const auto* own = dynamic_cast<const ControllerError*>(&failure);
  if (own == nullptr) return std::string("not of the controller: ") + failure.what();
  return own->Source() + ":" + Hex(own->Number()) + ": " + own->Description();
}

}  // namespace mortane::controller::test
