// A microscope that a command works on: found, in exclusive use, connected.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "ctl/ConsolePrompts.h"
#include "ctl/Request.h"
#include "ctl/Surroundings.h"
#include "ctl/WriteWatch.h"
#include "hub/SessionLibrary.h"
#include "hub/clsK70.h"
#include "record/Comparison.h"

namespace mortane::ctl {

enum class DeviceUse { Free, InUse, NotAvailable };

struct DeviceRow {
  std::int32_t index;
  std::string name;
  DeviceUse use;
};

// Opens the controller library when it is made; nothing before Connect talks to a microscope. The
// end disconnects and gives up the exclusive use. Everything raises a Failure with a line for the
// person, and EndAsked.
class MicroscopeLink {
 public:
  MicroscopeLink(const MicroscopeChoice& choice, Surroundings& surroundings);

  // Every entry of the library's list, the simulated microscope at index 0.
  std::vector<DeviceRow> Devices();

  // The name of the chosen microscope, which need not be free.
  std::string ChosenName();

  // Takes the exclusive use of the chosen microscope and connects it.
  void Connect();

  // Reads the microscope and answers the lines of what could not be read.
  std::vector<std::string> Receive();

  // Writes the model and answers the lines of what failed.
  std::vector<std::string> Send();

  // The calls of the last Send that were to change something.
  const std::vector<WriteCall>& Writes() const { return watch_->Calls(); }

  // As it was connected.
  const std::string& Name() const { return name_; }
  clsK70& k70() { return *k70_; }
  ConsolePrompts& prompts() { return prompts_; }
  Surroundings& surroundings() { return surroundings_; }

  // Takes what other programs wrote to the bench file.
  void Renew();
  // Writes what was sent into the bench file, and raises a Failure when that is not possible.
  void Keep();

 private:
  std::int32_t Choose();
  std::int32_t Named(const std::string& name);
  std::int32_t TheOnlyOne();
  DeviceUse UseOf(std::int32_t index);
  void TakeUse(std::int32_t index);

  MicroscopeChoice choice_;
  Surroundings& surroundings_;
  ConsolePrompts prompts_;
  std::string problem_;  // why the installed library cannot be used
  std::string notKept_;  // why the bench file was not written
  std::optional<SessionLibrary> session_;
  std::optional<WriteWatch> watch_;
  std::optional<clsK70> k70_;
  std::string name_;
};

}  // namespace mortane::ctl
