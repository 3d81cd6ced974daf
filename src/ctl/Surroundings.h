// What the commands use of the world around them.
#pragma once

#include <functional>
#include <iosfwd>
#include <memory>
#include <string>

#include "hub/SessionLibrary.h"
#include "platform/NamedMutex.h"
#include "record/Backups.h"

namespace mortane::ctl {

// The program's own name in front of its messages.
inline constexpr char kProgram[] = "mortanectl";

// Borrowed by everything that runs in it. A test gives streams, time and terminal of its own.
struct Surroundings {
  std::istream& in;
  std::ostream& out;           // results
  std::ostream& err;           // everything else
  bool canAsk = false;         // a person sits at `in` and reads `err`
  bool showsProgress = false;  // `err` is a terminal
  bool colour = false;
  // Whether the person or the system wants the program to end.
  std::function<bool()> endAsked = [] { return false; };
  std::function<void(int)> sleepMilliseconds = [](int) {};
  Backups::Clock now = Backups::SystemTime;
  // The folder of all backups; empty when the system names none.
  std::string backups = {};
  LibraryWish library = {};
  NamedMutexMaker makeMutex = MakeNamedMutex;
};

}  // namespace mortane::ctl
