#include "controller/replay/SessionHeader.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <random>
#include <utility>

#include "common/Failure.h"
#include "common/Numbers.h"
#include "controller/replay/SessionValue.h"

namespace mortane::controller {
namespace {

constexpr std::string_view kMagic = "mortane-journal ";
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view kPart = "part";

struct Field {
  std::string_view name;
  std::string SessionHeader::*text;
};
constexpr std::array<Field, 5> kFields{{{"program", &SessionHeader::program},
                                        {"system", &SessionHeader::system},
                                        {"library", &SessionHeader::library},
                                        {"library-version", &SessionHeader::libraryVersion},
                                        {"session", &SessionHeader::session}}};

void AppendField(std::string& line, std::string_view name, std::string_view text) {
  ((line += ' ') += name) += '=';
  AppendQuoted(line, text);
}

// The whole number that the text begins with, which is taken off.
std::optional<std::int32_t> TakeWhole(std::string_view& text) {
  std::int32_t number = 0;
  const auto parsed = std::from_chars(text.data(), text.data() + text.size(), number);
  if (parsed.ec != std::errc()) return std::nullopt;
  text.remove_prefix(static_cast<std::size_t>(parsed.ptr - text.data()));
  return number;
}

[[noreturn]] void RaiseBroken() {
  RaiseOwnFailure(kConversionError, "the first line of the session cannot be read");
}

void SetField(SessionHeader& header, std::string_view name, std::string text) {
  if (name == kPart) {
    std::string_view digits = text;
    const auto part = TakeWhole(digits);
    if (!part || *part < 1 || !digits.empty()) RaiseBroken();
    header.part = *part;
  }
  for (const Field& field : kFields) {
    if (field.name != name) continue;
    header.*field.text = std::move(text);
    return;
  }
}

}  // namespace

std::string FormatSessionHeader(const SessionHeader& header) {
  std::string line = std::string(kMagic) + std::to_string(kJournalForm);
  for (const Field& field : kFields) {
    if (!(header.*field.text).empty()) AppendField(line, field.name, header.*field.text);
  }
  AppendField(line, kPart, std::to_string(header.part));
  return line;
}

bool IsSessionHeader(std::string_view line) {
  if (line.starts_with(kByteOrderMark)) line.remove_prefix(kByteOrderMark.size());
  return line.starts_with(kMagic);
}

SessionHeader ParseSessionHeader(std::string_view line) {
  if (!IsSessionHeader(line)) RaiseBroken();
  line.remove_prefix(line.find(kMagic) + kMagic.size());
  const auto form = TakeWhole(line);
  if (!form) RaiseBroken();
  if (*form != kJournalForm) {
    RaiseOwnFailure(kConversionError, "the journal has form " + std::to_string(*form) +
                                          ", and this program reads form " +
                                          std::to_string(kJournalForm));
  }
  SessionHeader header;
  while (!line.empty()) {
    const std::size_t equals = line.find('=');
    if (line.front() != ' ' || equals == std::string_view::npos) RaiseBroken();
    const std::string_view name = line.substr(1, equals - 1);
    line.remove_prefix(equals + 1);
    auto text = TakeQuoted(line);
    if (!text) RaiseBroken();
    SetField(header, name, std::move(*text));
  }
  return header;
}

std::string NewSessionName() {
  using namespace std::chrono;
  const auto now = floor<milliseconds>(system_clock::now());
  const auto day = floor<days>(now);
  const year_month_day date(day);
  const hh_mm_ss time(now - day);
  const auto padded = [](auto number, std::size_t width) {
    std::string digits = std::to_string(number);
    return std::string(width - std::min(digits.size(), width), '0') + digits;
  };
  std::random_device random;
  return padded(int(date.year()), 4) + "-" + padded(unsigned(date.month()), 2) + "-" +
         padded(unsigned(date.day()), 2) + "T" + padded(time.hours().count(), 2) + ":" +
         padded(time.minutes().count(), 2) + ":" + padded(time.seconds().count(), 2) + "." +
         padded(time.subseconds().count(), 3) + "Z-" +
         HexPadded(static_cast<std::int32_t>(random()), 8);
}

}  // namespace mortane::controller
