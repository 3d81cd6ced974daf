// What the command line asks for.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace mortane::ctl {

enum class Verb {
  Devices,
  Receive,
  Compare,
  Diff,
  Send,
  Backups,
  Restore,
  Check,
  Report,
  Export,
  Watch,
  Bench,
};

// Which microscope, and where it stands. Without a name the only one that is connected.
struct MicroscopeChoice {
  std::string device;      // its name, or its index in the list
  bool simulated = false;  // the simulated microscope
  std::string bench;       // a bench file in place of the installed library
  int waitSeconds = 0;     // for a microscope that another program uses
  std::string journal;     // of the session
};

// "-" as a file is the standard input, as an output the standard output.
struct Request {
  Verb verb = Verb::Devices;
  MicroscopeChoice microscope;
  bool json = false;
  std::vector<std::string> files;
  std::string output;
  std::vector<std::string> sections;  // elements of the settings file; empty for all
  bool partial = false;               // write also what could not be read as a whole
  std::string since;                  // an earlier state, as a file
  bool dryRun = false;
  bool yes = false;
  bool noBackup = false;
  std::optional<std::size_t> keep;  // backups to keep of each device
  std::string which;                // of the backups: a number, a time or a path
  int everySeconds = 5;
  std::string journal;  // a session to make a bench of
};

}  // namespace mortane::ctl
