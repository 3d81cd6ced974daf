// The path from the process's start to a connected microscope.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "app/Outcome.h"
#include "common/Prompts.h"
#include "controller/ControllerObject.h"

namespace mortane {

class clsK70;

// What the start path works on.
struct StartPath {
  clsK70& k70;
  controller::ControllerLibrary& library;
  Prompts& prompts;
  // The program's path, then the command line's arguments.
  std::vector<std::string> arguments;
  // Shows the device selection and answers its Selected.
  std::function<std::int32_t()> selectDevice;
  // Told how the first Receive has ended.
  std::function<void(Outcome)> received = [](Outcome) {};
};

// Chooses a device, takes its exclusive use, connects and receives. True when the model is
// connected and filled; false when the program has to end. Everything that went wrong was shown,
// but for a Failure that it raises: of a device name that the system refuses.
bool ConnectMicroscope(const StartPath& start);

}  // namespace mortane
