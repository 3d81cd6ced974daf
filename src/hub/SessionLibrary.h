// The controller library that a program works with, chosen when it starts.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "controller/InstalledLibrary.h"
#include "controller/replay/JournalFile.h"
#include "controller/replay/RecordedLibrary.h"
#include "controller/replay/ReplayedLibrary.h"
#include "hub/BenchSession.h"

namespace mortane {

// What a program was asked for. WishOfEnvironment fills the fields that name a variable.
struct LibraryWish {
  // MORTANE_BENCH: a bench file, whose instruments come before every installed library.
  std::string bench;
  // MORTANE_JOURNAL: a file to whose end the journal of the session is written.
  std::string journal;
  std::function<std::unique_ptr<controller::ControllerLibrary>()> openInstalled =
      controller::OpenInstalledLibrary;
  BenchSession::Notice notice = {};
  // MORTANE_REPLAY: the journal of a session, which comes before a bench file.
  std::string replay = {};
  // The name of the program in the journal.
  std::string program = "mortane";
  // Says in one line why the journal ends, or where the program differs from the session that it
  // replays. Without it a line goes to standard error.
  BenchSession::Notice tell = {};
};

LibraryWish WishOfEnvironment();

// The journal that is asked for without a name: a file in the user's documents.
std::string UsersJournal();

// The answers of a session's journal where one is named, else a bench file's instruments, else the
// installed library; the simulated microscope alone where there is none.
class SessionLibrary {
 public:
  // Raises a Failure for a bench file that is wrong and for a session that cannot be replayed. A
  // journal that cannot be written is told, and the session goes on without.
  explicit SessionLibrary(const LibraryWish& wish);
  ~SessionLibrary();
  SessionLibrary(const SessionLibrary&) = delete;
  SessionLibrary& operator=(const SessionLibrary&) = delete;

  controller::ControllerLibrary& Library();

  // Why the installed library is not used, and what to do; empty when there is nothing to say.
  const std::string& Complaint() const { return complaint_; }

  // Writes into the bench file what changed since the last time.
  void Keep();
  // The same, and takes what other programs wrote there.
  void Renew();

 private:
  void Open(const LibraryWish& wish);
  void OpenInstalled(const LibraryWish& wish);
  void Record(const LibraryWish& wish);
  controller::ControllerLibrary& Source();
  controller::LibraryIdentity Identity() const;

  BenchSession::Notice tell_;
  std::unique_ptr<controller::ControllerLibrary> installed_;
  std::optional<controller::ReplayedLibrary> replayed_;
  std::optional<BenchSession> bench_;
  std::optional<controller::JournalFile> journal_;
  std::optional<controller::RecordedLibrary> recorded_;
  std::string complaint_;
};

}  // namespace mortane
