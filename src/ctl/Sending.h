// Sends what a file changes, with a backup before and a reading after.
#pragma once

#include <string>
#include <vector>

#include "ctl/ComparedStates.h"
#include "ctl/Request.h"
#include "ctl/Results.h"

namespace mortane::ctl {

// The folder of all backups. Raises a Failure when the system names none.
std::string BackupFolder(const Surroundings& surroundings);
Backups BackupsOf(const std::string& device, const Surroundings& surroundings);

// Shows what the file would change, asks, keeps a backup, writes and reads back. The microscope is
// connected. Nothing is written when any step before the writing fails.
Outcome SendSettings(const Request& request, MicroscopeLink& link, const DomDocument& document,
                     const std::string& fileName);

}  // namespace mortane::ctl
