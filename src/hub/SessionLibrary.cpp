#include "hub/SessionLibrary.h"

#include <filesystem>

#include "common/Failure.h"
#include "common/Numbers.h"
#include "common/Text.h"
#include "platform/AtomicFile.h"
#include "platform/Environment.h"

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

std::ofstream OpenAtEnd(const std::string& utf8Path) {
  const std::filesystem::path path(std::u8string(utf8Path.begin(), utf8Path.end()));
  std::ofstream file(path, std::ios::app | std::ios::binary);
  if (!file) RaiseOwnFailure(kFileError, "Cannot write " + utf8Path);
  return file;
}

}  // namespace

LibraryWish WishOfEnvironment() {
  return {EnvironmentVariable("MORTANE_BENCH"), EnvironmentVariable("MORTANE_JOURNAL")};
}

SessionLibrary::SessionLibrary(const LibraryWish& wish) {
  if (!wish.journal.empty()) journal_ = OpenAtEnd(wish.journal);
  if (wish.bench.empty()) OpenInstalled(wish);
  if (installed_ == nullptr) bench_.emplace(wish.bench, wish.notice);
  if (!wish.journal.empty()) log_.emplace(installed_ ? *installed_ : bench_->Library(), journal_);
}

void SessionLibrary::OpenInstalled(const LibraryWish& wish) {
  try {
    installed_ = wish.openInstalled();
  } catch (const Failure& failure) {
    complaint_ = ComplaintOf(failure);
  }
}

controller::ControllerLibrary& SessionLibrary::Library() {
  if (log_) return *log_;
  return installed_ ? *installed_ : bench_->Library();
}

void SessionLibrary::Keep() {
  if (bench_) bench_->Keep();
}

void SessionLibrary::Renew() {
  if (bench_) bench_->Renew();
}

}  // namespace mortane
