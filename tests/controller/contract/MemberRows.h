// Every member of the controller library as the program uses it, and what the bench "Quay" answers.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "controller/Microscope.h"

namespace mortane::controller::test {

// A use of one member. `take` gets the member's object from a connected root and gives back the
// use, so that the device can be disconnected in between.
struct MemberRow {
  std::function<std::function<void()>(const Microscope&)> take;
  std::string line;  // of the journal
};

// `object` gives the member's object, `use` uses the member.
template <typename Object, typename Use>
MemberRow Row(Object object, std::string line, Use use) {
  return {[object, use](const Microscope& root) -> std::function<void()> {
            return [taken = object(root), use] { use(taken); };
          },
          std::move(line)};
}

std::vector<MemberRow> RootRows();
std::vector<MemberRow> DeviceRows();
std::vector<MemberRow> DriveRows();
std::vector<MemberRow> SettingsRows();
std::vector<MemberRow> DatabaseRows();

// Members of the root that give an object and have no line but for a failure.
std::vector<std::string> AreaMembers();

}  // namespace mortane::controller::test
