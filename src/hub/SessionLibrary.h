// The controller library that a program works with, chosen when it starts.
#pragma once

#include <fstream>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "controller/CallLog.h"
#include "controller/InstalledLibrary.h"
#include "hub/BenchSession.h"

namespace mortane {

// What a program was asked for; by default what the environment says.
struct LibraryWish {
  // MORTANE_BENCH: a bench file, whose instruments come before every installed library.
  std::string bench;
  // MORTANE_JOURNAL: a file to whose end a log of all calls is written.
  std::string journal;
  std::function<std::unique_ptr<controller::ControllerLibrary>()> openInstalled =
      controller::OpenInstalledLibrary;
  BenchSession::Notice notice = {};
};

LibraryWish WishOfEnvironment();

// A bench file's instruments where one is named, else the installed library; the simulated
// microscope alone where there is none.
class SessionLibrary {
 public:
  // Raises a Failure for a bench file that is wrong and for a journal that cannot be written.
  explicit SessionLibrary(const LibraryWish& wish);

  controller::ControllerLibrary& Library();

  // Why the installed library is not used, and what to do; empty when there is nothing to say.
  const std::string& Complaint() const { return complaint_; }

  // Writes into the bench file what changed since the last time.
  void Keep();
  // The same, and takes what other programs wrote there.
  void Renew();

 private:
  void OpenInstalled(const LibraryWish& wish);

  std::unique_ptr<controller::ControllerLibrary> installed_;
  std::optional<BenchSession> bench_;
  std::ofstream journal_;
  std::optional<controller::CallLog> log_;
  std::string complaint_;
};

}  // namespace mortane
