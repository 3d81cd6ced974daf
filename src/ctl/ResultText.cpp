#include "ctl/ResultText.h"

#include <algorithm>
#include <ostream>

#include "common/Text.h"
#include "ctl/SettingsInput.h"
#include "ctl/ShownText.h"

namespace mortane::ctl {
namespace {

constexpr char kBold[] = "\x1B[1m";
constexpr char kOld[] = "\x1B[31m";
constexpr char kNew[] = "\x1B[32m";
constexpr char kPlain[] = "\x1B[0m";
constexpr char kArrow[] = " → ";
constexpr char kIndent[] = "  ";

const char* UseText(DeviceUse use) {
  switch (use) {
    case DeviceUse::Free:
      return "can be used";
    case DeviceUse::InUse:
      return "used by another program";
    default:
      return "not available";
  }
}

std::string Items(std::size_t count) {
  return Counted(count, "item", "items");
}

std::string Changes(std::size_t count) {
  return Counted(count, "change", "changes");
}

}  // namespace

std::string ResultText::Painted(const char* colour, const std::string& text) const {
  return colour_ ? colour + text + kPlain : text;
}

void ResultText::Heading(const std::string& text) {
  out_ << Painted(kBold, Shown(text)) << '\n';
}

void ResultText::Lines(const std::string& heading, const std::vector<std::string>& lines) {
  if (lines.empty()) return;
  Heading(heading + ": " + Counted(lines.size(), "line", "lines"));
  for (const std::string& line : lines) out_ << kIndent << Shown(line) << '\n';
}

void ResultText::Items(const std::string& heading, const std::vector<NamedItem>& items) {
  if (items.empty()) return;
  Heading(heading + ": " + ctl::Items(items.size()));
  for (const NamedItem& item : items) {
    out_ << kIndent << Shown(item.name) << ": " << Shown(item.words) << '\n';
  }
}

std::string ResultText::ChangeLine(const NamedChange& change) const {
  return Shown(change.to.name) + ": " + Painted(kOld, Shown(change.from.words)) + kArrow +
         Painted(kNew, Shown(change.to.words));
}

void ResultText::Changes(const std::string& heading, const std::vector<NamedChange>& changes) {
  if (changes.empty()) return;
  Heading(heading + ": " + ctl::Items(changes.size()));
  for (const NamedChange& change : changes) out_ << kIndent << ChangeLine(change) << '\n';
}

void ResultText::Write(const std::vector<DeviceRow>& devices) {
  std::size_t width = 0;
  for (const DeviceRow& row : devices) width = std::max(width, CharacterCount(Shown(row.name)));
  for (const DeviceRow& row : devices) {
    const std::string name = Shown(row.name);
    out_ << row.index << kIndent << name << std::string(width - CharacterCount(name), ' ')
         << kIndent << UseText(row.use) << '\n';
  }
}

void ResultText::Write(const ComparisonResult& result) {
  const bool ofFiles = result.device.empty();
  const std::string first = ofFiles ? NameOfFile(result.files.front()) : result.device;
  const std::string second = NameOfFile(result.files.back());
  Heading(first + kArrow + second + ": " + ctl::Changes(result.changed.size()));
  for (const NamedChange& change : result.changed) out_ << kIndent << ChangeLine(change) << '\n';
  Items("Only in " + first, result.onlyFirst);
  Items("Only in " + second, result.onlySecond);
  Changes("Not known", result.unknown);
  Items("Not on this microscope", result.notOnMicroscope);
  Lines("Refused in " + second, result.refused);
  Lines("Not read from " + first, result.unread);
}

void ResultText::WriteSent(const SendResult& result) {
  const std::string& device = result.comparison.device;
  const std::size_t count = result.comparison.changed.size();
  switch (result.sending) {
    case Sending::NothingToDo:
      Heading(device + ": 0 changes, nothing was sent");
      return;
    case Sending::DryRun:
      return;
    case Sending::Declined:
      Heading(device + ": nothing was sent");
      return;
    case Sending::Done:
      Heading(device + ": " + ctl::Changes(count) + " sent and read back");
      break;
    case Sending::Partly:
      Heading(device + ": " + std::to_string(result.written.size()) + " of " + ctl::Changes(count) +
              " written");
      Changes("Written", result.written);
      Changes("Not written", result.notWritten);
      Changes("Not known whether written", result.notKnown);
      break;
  }
  Lines("Failed", result.failures);
}

void ResultText::Write(const std::vector<BackupRow>& backups) {
  std::string device;
  for (const BackupRow& row : backups) {
    if (row.number == 1) Heading(row.device);
    out_ << kIndent << row.number << kIndent << TimeInFileName(row.backup.time) << kIndent
         << Shown(row.backup.path) << '\n';
  }
}

void ResultText::Write(const CheckedFile& file) {
  const std::string name = Shown(NameOfFile(file.file));
  if (!file.problem.empty()) {
    out_ << Shown(file.problem) << '\n';
    return;
  }
  for (const std::string& line : file.refused) out_ << name << ": " << Shown(line) << '\n';
}

void ResultText::WriteWatched(const std::string& time, const ComparisonResult& changes) {
  for (const NamedChange& change : changes.changed) {
    out_ << time << kIndent << ChangeLine(change) << '\n';
  }
  for (const NamedItem& item : changes.onlyFirst) {
    out_ << time << kIndent << Shown(item.name) << ": " << Shown(item.words) << kArrow << "gone\n";
  }
  for (const NamedItem& item : changes.onlySecond) {
    out_ << time << kIndent << Shown(item.name) << ": new" << kArrow << Shown(item.words) << '\n';
  }
}

}  // namespace mortane::ctl
