// The record of a microscope or file, and its export.
#include <ostream>

#include "common/Text.h"
#include "ctl/Commands.h"
#include "ctl/MicroscopeLink.h"
#include "ctl/OutputFile.h"
#include "ctl/SettingsInput.h"
#include "record/OmeExport.h"
#include "record/Report.h"

namespace mortane::ctl {
namespace {

// By the ending of the output's name; text where the record goes to the standard output.
bool IsHtml(const std::string& output) {
  if (output == kStandardStream) return false;
  const std::size_t dot = output.rfind('.');
  const std::string ending = dot == std::string::npos ? "" : output.substr(dot);
  if (EqualsIgnoringCase(ending, ".html") || EqualsIgnoringCase(ending, ".htm")) return true;
  if (EqualsIgnoringCase(ending, ".txt")) return false;
  Refuse("a record is OUT.html or OUT.txt, and \"" + output + "\" ends with neither");
}

ReportContent ContentOf(const DomDocument& document, const std::string& name) {
  return {StateOf(document), std::nullopt, name, {}, {}, {}};
}

ReportContent ContentOf(MicroscopeLink& link) {
  return {StateOf(link.k70()), std::nullopt, link.Name(), {}, {}, AccessoriesOf(link.k70())};
}

Outcome Write(ReportContent content, const Request& request, const std::string& output, bool html,
              Surroundings& surroundings) {
  if (!request.since.empty()) content.before = StateOf(ReadSettings(request.since, surroundings));
  content.time = LocalTime(surroundings.now());
  content.version = "Mortane " MORTANE_VERSION;
  WriteOutput(output, html ? ReportAsHtml(content) : ReportAsText(content), surroundings);
  return Outcome::Done;
}

}  // namespace

Outcome WriteReport(const Request& request, Surroundings& surroundings) {
  const std::string output = request.output.empty() ? kStandardStream : request.output;
  const bool html = IsHtml(output);
  if (!request.files.empty()) {
    const std::string& file = request.files.front();
    return Write(ContentOf(ReadSettings(file, surroundings), NameOfFile(file)), request, output,
                 html, surroundings);
  }
  MicroscopeLink link(request.microscope, surroundings);
  link.Connect();
  const std::vector<std::string> unread = link.Receive();
  for (const std::string& line : unread) link.prompts().Say(line);
  const Outcome outcome = Write(ContentOf(link), request, output, html, surroundings);
  return unread.empty() ? outcome : Outcome::Failed;
}

Outcome ExportInstrument(const Request& request, Surroundings& surroundings) {
  MicroscopeLink link(request.microscope, surroundings);
  link.Connect();
  const std::vector<std::string> unread = link.Receive();
  for (const std::string& line : unread) link.prompts().Say(line);
  WriteOutput(request.output, OmeXml(link.k70()), surroundings);
  return unread.empty() ? Outcome::Done : Outcome::Failed;
}

}  // namespace mortane::ctl
