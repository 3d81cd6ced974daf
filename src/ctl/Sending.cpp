#include "ctl/Sending.h"

#include <algorithm>
#include <istream>
#include <ostream>

#include "common/Failure.h"
#include "common/Text.h"
#include "ctl/ResultJson.h"
#include "ctl/ResultText.h"
#include "ctl/SettingsInput.h"
#include "ctl/ShownText.h"
#include "record/SentItems.h"

namespace mortane::ctl {
namespace {

// A person's yes; anything else, the end of the input included, is a no.
bool Agrees(const std::string& question, Surroundings& surroundings) {
  surroundings.err << question << " [y/N] " << std::flush;
  std::string answer;
  std::getline(surroundings.in, answer);
  answer = Trim(answer);
  return EqualsIgnoringCase(answer, "y") || EqualsIgnoringCase(answer, "yes");
}

class Sender {
 public:
  Sender(const Request& request, MicroscopeLink& link, const DomDocument& document,
         const std::string& fileName)
      : request_(request),
        link_(link),
        surroundings_(link.surroundings()),
        compared_(link, document, fileName, SectionsNamed(request.sections)) {
    result_.comparison = compared_.Result();
  }

  Outcome Run() {
    ShowComparison();
    const Outcome outcome = Decide();
    ShowResult();
    return outcome;
  }

 private:
  Outcome Decide() {
    if (request_.dryRun) {
      result_.sending = Sending::DryRun;
      return compared_.OutcomeOfComparison();
    }
    CheckComplete();
    if (result_.comparison.changed.empty()) {
      result_.sending = Sending::NothingToDo;
      return Outcome::Done;
    }
    if (!Agreed()) {
      result_.sending = Sending::Declined;
      return Outcome::Failed;
    }
    KeepBackup();
    return Write();
  }

  // With JSON the one object comes at the end; a person who is asked sees the text all the same.
  void ShowComparison() {
    if (!request_.json) {
      ResultText(surroundings_.out, surroundings_.colour).Write(result_.comparison);
      surroundings_.out.flush();
    } else if (WillAsk()) {
      ResultText(surroundings_.err, surroundings_.colour).Write(result_.comparison);
    }
    // Changes that nobody could see must not be made.
    if (!surroundings_.out) throw CommandFailed();
  }

  void ShowResult() {
    if (request_.json) {
      surroundings_.out << ToJson(result_) << '\n';
    } else {
      ResultText(surroundings_.out, surroundings_.colour).WriteSent(result_);
    }
  }

  bool WillAsk() const {
    return !request_.yes && !request_.dryRun && surroundings_.canAsk &&
           !result_.comparison.changed.empty();
  }

  // What is not known can neither be kept nor compared.
  void CheckComplete() const {
    for (const std::string& line : result_.comparison.unread) link_.prompts().Say(line);
    if (!result_.comparison.unread.empty() && !request_.noBackup) {
      Refuse("the backup of \"" + link_.Name() +
             "\" would not be whole, so nothing was sent (--no-backup sends without one)");
    }
  }

  bool Agreed() {
    if (request_.yes) return true;
    if (!surroundings_.canAsk) {
      Refuse("there is no terminal to ask on, so nothing was sent; --yes sends without a question");
    }
    const std::size_t count = result_.comparison.changed.size();
    return Agrees(
        "Send " + Counted(count, "change", "changes") + " to " + Shown(link_.Name()) + "?",
        surroundings_);
  }

  void KeepBackup() {
    if (request_.noBackup) return;
    try {
      result_.backup = BackupsOf(link_.Name(), surroundings_).Keep(compared_.Held()).path;
    } catch (const Failure& failure) {
      Refuse("no backup could be kept, so nothing was sent: " + failure.Description());
    }
    if (!request_.json) {
      surroundings_.out << "Backup: " << Shown(result_.backup) << '\n' << std::flush;
    }
    // Once more: the path of the backup has to be seen before anything is changed.
    if (!surroundings_.out) throw CommandFailed();
  }

  Outcome Write() {
    if (surroundings_.endAsked()) throw EndAsked();
    try {
      result_.failures = link_.Send();
    } catch (const EndAsked&) {
      result_.endAsked = true;
      static_cast<void>(link_.prompts().TakeLines());
    }
    ReadBack();
    link_.Keep();
    const bool complete = result_.notWritten.empty() && result_.notKnown.empty();
    result_.sending = complete ? Sending::Done : Sending::Partly;
    return complete && result_.failures.empty() ? Outcome::Done : Outcome::Failed;
  }

  // What was read back decides. What could not be read back is told by the calls that were made.
  void ReadBack() {
    link_.prompts().StayToTheEnd();
    const std::vector<std::string> unread = link_.Receive();
    const Comparison left = compared_.CompareAgain(link_);
    for (const ItemChange& change : compared_.Items().changed) {
      const ItemChange* open = Find(left.changed, change);
      Fate fate = open == nullptr ? Fate::Written : Fate::NotWritten;
      const bool wasRead = link_.k70().WasRead(TransferOf(change.to.kind));
      if (!wasRead || Find(left.unknown, change) != nullptr) {
        fate = FateOf(change.to, link_.Writes());
      }
      const ItemChange& shown = open == nullptr ? change : *open;
      ListOf(fate).push_back({NameOf(shown.from, compared_.NamesOfMicroscope()),
                              NameOf(change.to, compared_.NamesOfFile())});
    }
    if (!unread.empty()) {
      result_.failures.push_back("not all could be read back");
      result_.failures.insert(result_.failures.end(), unread.begin(), unread.end());
    }
  }

  static const ItemChange* Find(const std::vector<ItemChange>& changes, const ItemChange& change) {
    const auto found = std::find_if(changes.begin(), changes.end(), [&](const ItemChange& item) {
      return item.to.key == change.to.key;
    });
    return found == changes.end() ? nullptr : &*found;
  }

  std::vector<NamedChange>& ListOf(Fate fate) {
    switch (fate) {
      case Fate::Written:
        return result_.written;
      case Fate::NotWritten:
        return result_.notWritten;
      default:
        return result_.notKnown;
    }
  }

  const Request& request_;
  MicroscopeLink& link_;
  Surroundings& surroundings_;
  ComparedStates compared_;
  SendResult result_;
};

}  // namespace

std::string BackupFolder(const Surroundings& surroundings) {
  if (surroundings.backups.empty()) Refuse("the system names no folder for backups");
  return surroundings.backups;
}

Backups BackupsOf(const std::string& device, const Surroundings& surroundings) {
  return {BackupFolder(surroundings), device, surroundings.now};
}

Outcome SendSettings(const Request& request, MicroscopeLink& link, const DomDocument& document,
                     const std::string& fileName) {
  return Sender(request, link, document, fileName).Run();
}

}  // namespace mortane::ctl
