// The kept states of a microscope.
#include <algorithm>
#include <filesystem>
#include <ostream>

#include "common/Numbers.h"
#include "common/Text.h"
#include "ctl/Commands.h"
#include "ctl/ResultJson.h"
#include "ctl/ResultText.h"
#include "ctl/Sending.h"
#include "ctl/SettingsInput.h"
#include "ctl/ShownText.h"
#include "platform/FilePath.h"

namespace mortane::ctl {
namespace {

// A name that has backups needs no controller library to be found.
std::string DeviceOf(const Request& request, Surroundings& surroundings) {
  const std::string& name = request.microscope.device;
  if (!name.empty() && !BackupsOf(name, surroundings).List().empty()) return name;
  return MicroscopeLink(request.microscope, surroundings).ChosenName();
}

// What stands at a path goes before a number and a time, which cannot be paths of backups.
std::string PathOfBackup(const std::string& which, const std::string& device,
                         const Surroundings& surroundings) {
  const Backups backups = BackupsOf(device, surroundings);
  const std::vector<Backup> list = backups.List();
  const bool isPath = which.find_first_of("/\\") != std::string::npos;
  if (isPath) return which;
  if (list.empty()) {
    Refuse("there is no backup of \"" + device + "\" in " + backups.Folder() +
           "; a path restores one that was kept under another name");
  }
  if (which.empty()) return list.front().path;
  for (std::size_t i = 0; i < list.size(); ++i) {
    if (which == std::to_string(i + 1) || which == TimeInFileName(list[i].time)) {
      return list[i].path;
    }
  }
  Refuse("there is no backup \"" + which + "\" of \"" + device + "\"; \"" + kProgram +
         " backups\" lists them");
}

}  // namespace

Outcome ListBackups(const Request& request, Surroundings& surroundings) {
  const std::string device = DeviceOf(request, surroundings);
  const Backups backups = BackupsOf(device, surroundings);
  const std::size_t removed = request.keep ? backups.Prune(*request.keep) : 0;
  std::vector<BackupRow> rows;
  for (const Backup& backup : backups.List()) {
    rows.push_back({device, rows.size() + 1, backup});
  }
  if (request.json) {
    surroundings.out << ToJson(rows, removed) << '\n';
    return Outcome::Done;
  }
  ResultText(surroundings.out, surroundings.colour).Write(rows);
  if (rows.empty()) surroundings.out << Shown(device) << ": no backups\n";
  if (request.keep) surroundings.out << Counted(removed, "backup", "backups") << " removed\n";
  return Outcome::Done;
}

Outcome RestoreBackup(const Request& request, Surroundings& surroundings) {
  const std::vector<std::size_t> sections = SectionsNamed(request.sections);
  MicroscopeLink link(request.microscope, surroundings);
  const std::string file = PathOfBackup(request.which, link.ChosenName(), surroundings);
  const DomDocument document = ReadSettings(file, surroundings);
  link.Connect();
  return SendSettings(request, link, document, file);
}

Outcome SendFile(const Request& request, Surroundings& surroundings) {
  const std::string& file = request.files.front();
  const DomDocument document = ReadSettings(file, surroundings);
  const std::vector<std::size_t> sections = SectionsNamed(request.sections);
  MicroscopeLink link(request.microscope, surroundings);
  link.Connect();
  return SendSettings(request, link, document, file);
}

}  // namespace mortane::ctl
