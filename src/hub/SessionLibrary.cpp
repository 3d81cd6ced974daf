#include "hub/SessionLibrary.h"

#include <iostream>

#include "common/Failure.h"
#include "common/Numbers.h"
#include "common/Text.h"
#include "platform/Environment.h"
#include "platform/SpecialFolder.h"
#include "platform/SystemDescription.h"

namespace mortane {
namespace {

std::string ComplaintOf(const Failure& failure) {
  return "The controller library cannot be used." + std::string(kLineBreak) +
         failure.Description() + " (" + Hex(failure.Number()) + ")" + std::string(kLineBreak) +
         std::string(kLineBreak) +
         "Install the library that came with the microscope and start this application again." +
         std::string(kLineBreak) +
         "Until then only the simulated microscope is there, with \"/SIM\" on the command line.";
}

void WriteLine(const std::string& text) {
  std::cerr << "mortane: " << text << '\n';
}

}  // namespace

LibraryWish WishOfEnvironment() {
  LibraryWish wish;
  wish.bench = EnvironmentVariable("MORTANE_BENCH");
  wish.journal = EnvironmentVariable("MORTANE_JOURNAL");
  wish.replay = EnvironmentVariable("MORTANE_REPLAY");
  return wish;
}

std::string UsersJournal() {
  return DocumentsFolder() + "/Mortane Journal.txt";
}

SessionLibrary::SessionLibrary(const LibraryWish& wish) : tell_(wish.tell ? wish.tell : WriteLine) {
  Open(wish);
  if (!wish.journal.empty()) Record(wish);
}

// The program holds no object of the library any more, so it has made all of its calls.
SessionLibrary::~SessionLibrary() {
  if (!replayed_ || !replayed_->Difference().empty()) return;
  const std::string rest = replayed_->Rest();
  if (!rest.empty()) tell_(rest);
}

void SessionLibrary::Open(const LibraryWish& wish) {
  if (!wish.replay.empty()) {
    replayed_.emplace(wish.replay, tell_);
    return;
  }
  if (wish.bench.empty()) OpenInstalled(wish);
  if (installed_ == nullptr) bench_.emplace(wish.bench, wish.notice);
}

void SessionLibrary::Record(const LibraryWish& wish) {
  const controller::LibraryIdentity identity = Identity();
  journal_.emplace(wish.journal,
                   controller::SessionHeader{wish.program, SystemDescription(), identity.className,
                                             identity.version, controller::NewSessionName(), 1},
                   tell_);
  recorded_.emplace(Source(), [this](const std::string& line) { journal_->Write(line); });
}

controller::LibraryIdentity SessionLibrary::Identity() const {
  if (replayed_) return {"a replayed session", {}};
  return bench_ ? controller::LibraryIdentity{"the simulator", {}}
                : controller::InstalledLibraryIdentity();
}

controller::ControllerLibrary& SessionLibrary::Source() {
  if (replayed_) return *replayed_;
  return installed_ ? *installed_ : bench_->Library();
}

void SessionLibrary::OpenInstalled(const LibraryWish& wish) {
  try {
    installed_ = wish.openInstalled();
  } catch (const Failure& failure) {
    complaint_ = ComplaintOf(failure);
  }
}

controller::ControllerLibrary& SessionLibrary::Library() {
  return recorded_ ? *recorded_ : Source();
}

void SessionLibrary::Keep() {
  if (bench_) bench_->Keep();
}

void SessionLibrary::Renew() {
  if (bench_) bench_->Renew();
}

}  // namespace mortane
