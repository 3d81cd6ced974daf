// A controller library that is reached through COM.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "controller/ControllerObject.h"
#include "controller/com/HostProcess.h"
#include "controller/com/LibraryWays.h"

namespace mortane::controller {

class MemberIds;

// A class of the transport, and the name under which the system knows it: a ProgID, or for a server
// without one its class identifier in braces.
struct ComClass {
  std::string name;
  std::string progId;
};

// Lensmir's and Ravlin's names; the environment variables MORTANE_PROGID_MICROSCOPE,
// MORTANE_PROGID_FIBERSERVER and MORTANE_PROGID_FIBERREMOTE give others.
std::vector<ComClass> InstalledClasses();

// Belongs to the thread that makes it, whose single-threaded apartment it enters and leaves; its
// objects must be gone before it. Creation raises what LibraryWays.h says.
class ComLibrary : public ControllerLibrary {
 public:
  explicit ComLibrary(std::vector<ComClass> classes = InstalledClasses(),
                      LibraryWays ways = LibraryWays::kAny, std::wstring hostFile = HostFile());
  ~ComLibrary() override;
  ComLibrary(const ComLibrary&) = delete;
  ComLibrary& operator=(const ComLibrary&) = delete;

  ObjectRef Create(std::string_view className) override;

 private:
  ObjectRef MakeRoot(const ComClass& row);

  std::vector<ComClass> classes_;
  LibraryWays ways_;
  std::unique_ptr<HostProcess> host_;  // for all classes
  std::unique_ptr<MemberIds> ids_;
};

}  // namespace mortane::controller
