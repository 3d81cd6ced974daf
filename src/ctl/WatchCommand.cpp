// Receives again and again and tells what changed.
#include <algorithm>
#include <ostream>
#include <utility>

#include "ctl/Commands.h"
#include "ctl/MicroscopeLink.h"
#include "ctl/ResultJson.h"
#include "ctl/ResultText.h"

namespace mortane::ctl {
namespace {

// How long a wish to end may wait.
constexpr int kPieceMs = 100;

void SleepUnlessEnded(int milliseconds, Surroundings& surroundings) {
  for (int left = milliseconds; left > 0; left -= kPieceMs) {
    if (surroundings.endAsked()) throw EndAsked();
    surroundings.sleepMilliseconds(std::min(left, kPieceMs));
  }
}

class Watcher {
 public:
  Watcher(const Request& request, Surroundings& surroundings)
      : request_(request), surroundings_(surroundings), link_(request.microscope, surroundings) {}

  // The end is asked for, or nobody reads on.
  Outcome Run() {
    link_.Connect();
    try {
      while (surroundings_.out) {
        Look();
        SleepUnlessEnded(request_.everySeconds * 1000, surroundings_);
        link_.Renew();
      }
    } catch (const EndAsked&) {
    }
    return surroundings_.out ? Outcome::Done : Outcome::Failed;
  }

 private:
  // What could not be read is told once. The states on both sides of it are compared.
  void Look() {
    std::vector<std::string> unread = link_.Receive();
    if (unread != unread_) {
      for (const std::string& line : unread) link_.prompts().Say(line);
      unread_ = unread;
    }
    if (!unread.empty()) return;
    ConfigurationState now = StateOf(link_.k70());
    if (last_) Tell(now);
    last_ = std::move(now);
  }

  void Tell(const ConfigurationState& now) {
    const Differences differences = DifferencesOf(last_->items, now.items);
    if (differences.IsEmpty()) return;
    ComparisonResult changes;
    changes.device = link_.Name();
    changes.changed = NamesOf(differences.changed, last_->names, now.names);
    changes.onlyFirst = NamesOf(differences.onlyFirst, last_->names);
    changes.onlySecond = NamesOf(differences.onlySecond, now.names);
    const std::string time = TimeInFileName(surroundings_.now());
    if (request_.json) {
      surroundings_.out << WatchedToJson(time, changes) << '\n';
    } else {
      ResultText(surroundings_.out, surroundings_.colour).WriteWatched(time, changes);
    }
    surroundings_.out.flush();
  }

  const Request& request_;
  Surroundings& surroundings_;
  MicroscopeLink link_;
  std::vector<std::string> unread_;
  std::optional<ConfigurationState> last_;
};

}  // namespace

Outcome WatchMicroscope(const Request& request, Surroundings& surroundings) {
  return Watcher(request, surroundings).Run();
}

}  // namespace mortane::ctl
