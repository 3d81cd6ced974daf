// The commands that only read from a microscope.
#include <ostream>

#include "ctl/Commands.h"
#include "ctl/ComparedStates.h"
#include "ctl/MicroscopeLink.h"
#include "ctl/OutputFile.h"
#include "ctl/ResultJson.h"
#include "ctl/ResultText.h"
#include "ctl/SettingsInput.h"
#include "ctl/ShownText.h"

namespace mortane::ctl {

Outcome ListDevices(const Request& request, Surroundings& surroundings) {
  MicroscopeLink link(request.microscope, surroundings);
  const std::vector<DeviceRow> devices = link.Devices();
  if (request.json) {
    surroundings.out << ToJson(devices) << '\n';
  } else {
    ResultText(surroundings.out, surroundings.colour).Write(devices);
  }
  return Outcome::Done;
}

Outcome ReceiveToFile(const Request& request, Surroundings& surroundings) {
  MicroscopeLink link(request.microscope, surroundings);
  link.Connect();
  const std::vector<std::string> unread = link.Receive();
  for (const std::string& line : unread) link.prompts().Say(line);
  if (!unread.empty() && !request.partial) {
    // Parts that are missing would look like changes in the next comparison.
    Refuse(Counted(unread.size(), "part", "parts") + " of \"" + link.Name() +
           "\" could not be read, so nothing was written (--partial writes the rest)");
  }
  DomDocument document;
  link.k70().WriteSections(document);
  WriteOutput(request.output, document.ToText(), surroundings);
  return Outcome::Done;
}

Outcome CompareWithFile(const Request& request, Surroundings& surroundings) {
  const std::string& file = request.files.front();
  const DomDocument document = ReadSettings(file, surroundings);
  const std::vector<std::size_t> sections = SectionsNamed(request.sections);
  MicroscopeLink link(request.microscope, surroundings);
  link.Connect();
  const ComparedStates compared(link, document, file, sections);
  if (request.json) {
    surroundings.out << ToJson(compared.Result()) << '\n';
  } else {
    ResultText(surroundings.out, surroundings.colour).Write(compared.Result());
  }
  return compared.OutcomeOfComparison();
}

}  // namespace mortane::ctl
