#include "ctl/MicroscopeLink.h"

#include <algorithm>

#include "common/Failure.h"
#include "common/Numbers.h"
#include "ctl/Outcome.h"
#include "hub/DeviceAvailability.h"

namespace mortane::ctl {
namespace {

constexpr std::int32_t kSimulator = 0;
constexpr std::int32_t kFirstMicroscope = 1;
// Between two tries for a microscope that another program uses.
constexpr int kTryAgainMs = 200;

constexpr char kOtherMicroscopes[] =
    " (--sim takes the simulated microscope, --bench FILE one of a bench file)";

std::string Joined(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += (text.empty() ? "" : "; ") + line;
  return text;
}

}  // namespace

MicroscopeLink::MicroscopeLink(const MicroscopeChoice& choice, Surroundings& surroundings)
    : choice_(choice), surroundings_(surroundings), prompts_(surroundings) {
  LibraryWish wish = surroundings.library;
  if (!choice.bench.empty()) {
    wish.bench = choice.bench;
    wish.replay.clear();
  }
  if (!choice.journal.empty()) wish.journal = choice.journal;
  wish.tell = [this](const std::string& text) { prompts_.Say(text); };
  wish.notice = [this](const std::string& text) { notKept_ = text; };
  wish.openInstalled = [this, open = wish.openInstalled]() {
    try {
      return open();
    } catch (const Failure& failure) {
      problem_ = failure.Description() + " (" + Hex(failure.Number()) + ")";
      throw;
    }
  };
  session_.emplace(wish);
  if (!problem_.empty() && !choice.simulated) {
    Refuse("the controller library cannot be used: " + problem_ +
           "; install the library that came with the microscope" + kOtherMicroscopes);
  }
  watch_.emplace(session_->Library());
  k70_.emplace(*watch_, prompts_, surroundings.makeMutex);
  k70_->Initialize();
  if (const auto lines = prompts_.TakeLines(); !lines.empty()) {
    Refuse("the controller library does not answer: " + Joined(lines));
  }
}

std::vector<DeviceRow> MicroscopeLink::Devices() {
  std::vector<DeviceRow> rows;
  const std::int32_t count = k70_->DeviceCount();
  rows.reserve(static_cast<std::size_t>(std::max(count, 0)));
  for (std::int32_t index = 0; index < count; ++index) {
    rows.push_back({index, k70_->DeviceName(index), UseOf(index)});
  }
  if (const auto lines = prompts_.TakeLines(); !lines.empty()) {
    Refuse("the devices cannot be listed: " + Joined(lines));
  }
  return rows;
}

// Takes the name for a moment; there is no other way to ask for it.
DeviceUse MicroscopeLink::UseOf(std::int32_t index) {
  const bool free = k70_->CreateConnectionName(std::to_string(index));
  k70_->DeleteConnectionName();
  if (!free) return DeviceUse::InUse;
  return index == kSimulator || IsDeviceAvailable(*watch_, index) ? DeviceUse::Free
                                                                  : DeviceUse::NotAvailable;
}

std::string MicroscopeLink::ChosenName() {
  return k70_->DeviceName(Choose());
}

std::int32_t MicroscopeLink::Choose() {
  if (choice_.simulated) return kSimulator;
  return choice_.device.empty() ? TheOnlyOne() : Named(choice_.device);
}

std::int32_t MicroscopeLink::TheOnlyOne() {
  const std::int32_t count = k70_->DeviceCount();
  if (count == kFirstMicroscope + 1) return kFirstMicroscope;
  if (count <= kFirstMicroscope) {
    Refuse(std::string("no microscope is connected") + kOtherMicroscopes);
  }
  std::vector<std::string> names;
  for (std::int32_t i = kFirstMicroscope; i < count; ++i) {
    names.push_back(std::to_string(i) + " " + k70_->DeviceName(i));
  }
  Refuse("several microscopes are connected, choose one with --device: " + Joined(names));
}

// The name goes before the index, which a name may look like.
std::int32_t MicroscopeLink::Named(const std::string& name) {
  const std::int32_t count = k70_->DeviceCount();
  std::vector<std::string> found;
  std::int32_t last = kSimulator;
  for (std::int32_t i = kSimulator; i < count; ++i) {
    if (k70_->DeviceName(i) != name) continue;
    found.push_back(std::to_string(i));
    last = i;
  }
  if (found.size() > 1) {
    Refuse("several devices are called \"" + name +
           "\", choose one by its index with --device: " + Joined(found));
  }
  if (found.size() == 1) return last;
  for (std::int32_t i = kSimulator; i < count; ++i) {
    if (name == std::to_string(i)) return i;
  }
  Refuse("no device is called \"" + name + "\"; \"" + kProgram + " devices\" lists them");
}

void MicroscopeLink::TakeUse(std::int32_t index) {
  int leftMs = choice_.waitSeconds * 1000;
  while (!k70_->CreateConnectionName(std::to_string(index))) {
    // A name that is asked for must not keep its holder's successor out.
    k70_->DeleteConnectionName();
    if (leftMs <= 0) {
      Refuse("\"" + name_ + "\" is used by another program" +
             (choice_.waitSeconds > 0 ? "" : " (--wait SECONDS waits for it)"));
    }
    if (surroundings_.endAsked()) throw EndAsked();
    const int pauseMs = std::min(leftMs, kTryAgainMs);
    surroundings_.sleepMilliseconds(pauseMs);
    leftMs -= pauseMs;
  }
}

void MicroscopeLink::Connect() {
  const std::int32_t index = Choose();
  name_ = k70_->DeviceName(index);
  TakeUse(index);
  if (index != kSimulator && !IsDeviceAvailable(*watch_, index)) {
    Refuse("\"" + name_ + "\" is not available");
  }
  // After a failure behind the device's answer the connection is marked by the index alone.
  if (!k70_->Connect(index) || k70_->lConnectDevice < 0) {
    const auto lines = prompts_.TakeLines();
    Refuse("\"" + name_ + "\" does not answer" + (lines.empty() ? "" : ": " + Joined(lines)));
  }
  // An accessory that could not be asked for would look as if it were not mounted.
  if (const auto lines = prompts_.TakeLines(); !lines.empty()) {
    Refuse("\"" + name_ + "\" does not tell what it has: " + Joined(lines));
  }
}

std::vector<std::string> MicroscopeLink::Receive() {
  prompts_.NameTransfer("Receiving");
  k70_->Receive();
  return prompts_.TakeLines();
}

std::vector<std::string> MicroscopeLink::Send() {
  prompts_.NameTransfer("Sending");
  const WriteWatch::Scope watching(*watch_);
  k70_->Send();
  return prompts_.TakeLines();
}

void MicroscopeLink::Renew() {
  session_->Renew();
  if (!notKept_.empty()) Refuse(notKept_);
}

void MicroscopeLink::Keep() {
  session_->Keep();
  if (!notKept_.empty()) Refuse(notKept_);
}

}  // namespace mortane::ctl
