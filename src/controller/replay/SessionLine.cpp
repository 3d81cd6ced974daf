#include "controller/replay/SessionLine.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

#include "common/Numbers.h"

namespace mortane::controller {
namespace {

constexpr std::size_t kTimeWidth = 10;
constexpr int kDecimals = 3;
constexpr std::size_t kObjectWidth = 8;
constexpr std::size_t kUseWidth = 6;

constexpr std::string_view kWritten = " = ";
constexpr std::string_view kAnswered = " -> ";
constexpr std::string_view kFailed = " ! ";

constexpr std::string_view kCreate = "create";
constexpr std::string_view kCreateOpening = "Create(";
constexpr std::array<std::string_view, 6> kUses{kCreate, "get", "put", "call", "next", "number"};

bool IsKnownUse(std::string_view use) {
  for (const std::string_view known : kUses) {
    if (known == use) return true;
  }
  return false;
}

bool IsCommand(std::string_view use) {
  return use == "put" || use == "call";
}

std::string_view TakeWord(std::string_view& text) {
  text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
  const std::string_view word = text.substr(0, text.find(' '));
  text.remove_prefix(word.size());
  return word;
}

void AppendColumn(std::string& text, std::string_view word, std::size_t width) {
  text.append(width - std::min(word.size(), width), ' ').append(word);
}

void AppendTime(std::string& text, double time) {
  std::array<char, 400> digits{};  // the largest double has 309 in front of the point
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), time,
                                 std::chars_format::fixed, kDecimals);
  AppendColumn(text, {digits.data(), static_cast<std::size_t>(end.ptr - digits.data())},
               kTimeWidth);
}

bool IsTime(std::string_view word) {
  double value = 0;
  const auto parsed = std::from_chars(word.data(), word.data() + word.size(), value);
  return parsed.ec == std::errc() && parsed.ptr == word.data() + word.size();
}

bool IsObject(std::string_view word) {
  return word.size() > 1 && word.front() == '#' &&
         word.find_first_not_of("0123456789", 1) == std::string_view::npos;
}

// A blank outside quotes and brackets ends a path; nothing for one that leaves them open.
std::optional<std::size_t> LengthOfPath(std::string_view text) {
  int depth = 0;
  bool quoted = false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char character = text[i];
    if (quoted && character == '\\') {
      ++i;
    } else if (character == '"') {
      quoted = !quoted;
    } else if (!quoted && character == '(') {
      ++depth;
    } else if (!quoted && character == ')') {
      --depth;
    } else if (!quoted && depth == 0 && character == ' ') {
      return i;
    }
    if (depth < 0) return std::nullopt;
  }
  if (quoted || depth > 0) return std::nullopt;
  return text.size();
}

std::optional<SessionFailure> TakeFailure(std::string_view& text) {
  SessionFailure failure;
  auto source = TakeQuoted(text);
  if (!source || !TakePrefix(text, " ")) return std::nullopt;
  std::uint32_t number = 0;
  const auto parsed = std::from_chars(text.data(), text.data() + text.size(), number, 16);
  if (parsed.ec != std::errc()) return std::nullopt;
  text.remove_prefix(static_cast<std::size_t>(parsed.ptr - text.data()));
  if (!TakePrefix(text, " ")) return std::nullopt;
  auto description = TakeQuoted(text);
  if (!description) return std::nullopt;
  return SessionFailure{std::move(*source), static_cast<std::int32_t>(number),
                        std::move(*description)};
}

// What the call answered, which is the rest of the line.
bool TakeAnswer(std::string_view text, std::string_view use, SessionLine& line) {
  if (TakePrefix(text, kFailed)) {
    line.failure = TakeFailure(text);
    if (!line.failure) return false;
  } else if (TakePrefix(text, kAnswered)) {
    auto result = TakeValue(text);
    if (!result) return false;
    line.result = std::move(*result);
  } else if (!IsCommand(use)) {
    return false;
  }
  return text.empty();
}

std::string_view UseOf(std::string_view call) {
  TakeWord(call);
  return TakeWord(call);
}

bool TakeArguments(std::string_view& text, std::vector<SessionValue>& args) {
  if (TakePrefix(text, ")")) return true;
  while (true) {
    auto value = TakeValue(text);
    if (!value) return false;
    args.push_back(std::move(*value));
    if (TakePrefix(text, ")")) return true;
    if (!TakePrefix(text, ", ")) return false;
  }
}

std::optional<std::vector<PathStep>> ParsePath(std::string_view text) {
  std::vector<PathStep> path;
  while (true) {
    const std::size_t length = std::min(text.find_first_of(".("), text.size());
    PathStep step{std::string(text.substr(0, length)), {}};
    text.remove_prefix(length);
    if (TakePrefix(text, "(") && !TakeArguments(text, step.args)) return std::nullopt;
    path.push_back(std::move(step));
    if (text.empty()) return path;
    if (!TakePrefix(text, ".")) return std::nullopt;
  }
}

std::optional<std::vector<PathStep>> ParseCreation(std::string_view text) {
  if (!TakePrefix(text, kCreateOpening) || !text.ends_with(')')) return std::nullopt;
  text.remove_suffix(1);
  return std::vector<PathStep>{{"Create", {SessionValue(std::string(text))}}};
}

}  // namespace

std::string FormatSessionLine(const LineTimes& times, const SessionLine& line) {
  using Seconds = std::chrono::duration<double>;
  using Milliseconds = std::chrono::duration<double, std::milli>;
  std::string_view path = line.call;
  const std::string_view object = TakeWord(path);
  const std::string_view use = TakeWord(path);
  std::string text;
  AppendTime(text, Seconds(times.sinceBeginning).count());
  AppendTime(text += ' ', Milliseconds(times.duration).count());
  AppendColumn(text += ' ', object, kObjectWidth);
  text.append(2, ' ').append(use).append(kUseWidth - std::min(use.size(), kUseWidth), ' ');
  (text += ' ') += path;
  if (line.failure) {
    AppendQuoted(text += kFailed, line.failure->source);
    (text += ' ') += Hex(line.failure->number);
    AppendQuoted(text += ' ', line.failure->description);
  } else if (!IsCommand(use) || !std::holds_alternative<std::monostate>(line.result)) {
    AppendValue(text += kAnswered, line.result);
  }
  return text;
}

std::optional<SessionLine> ParseSessionLine(std::string_view text) {
  if (!IsTime(TakeWord(text)) || !IsTime(TakeWord(text))) return std::nullopt;
  const std::string_view object = TakeWord(text);
  const std::string_view use = TakeWord(text);
  if (!IsObject(object) || !IsKnownUse(use)) return std::nullopt;
  text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
  const auto length = LengthOfPath(text);
  if (!length) return std::nullopt;
  SessionLine line;
  line.call.reserve(text.size() + object.size() + use.size() + 2);
  ((line.call.append(object) += ' ').append(use) += ' ').append(text.substr(0, *length));
  text.remove_prefix(*length);
  if (use == "put") {
    std::string_view rest = text;
    if (!TakePrefix(rest, kWritten) || !TakeValue(rest)) return std::nullopt;
    line.call += text.substr(0, text.size() - rest.size());
    text = rest;
  }
  if (!TakeAnswer(text, use, line)) return std::nullopt;
  return line;
}

std::optional<SessionCall> ParseSessionCall(std::string_view call) {
  SessionCall parts;
  parts.use = UseOf(call);
  TakeWord(call);
  TakeWord(call);
  if (!TakePrefix(call, " ")) return std::nullopt;
  const auto length = LengthOfPath(call);
  if (!length) return std::nullopt;
  const std::string_view path = call.substr(0, *length);
  call.remove_prefix(path.size());
  auto steps = parts.use == kCreate ? ParseCreation(path) : ParsePath(path);
  if (!steps) return std::nullopt;
  parts.path = std::move(*steps);
  if (TakePrefix(call, kWritten)) {
    parts.written = TakeValue(call);
    if (!parts.written) return std::nullopt;
  }
  if (!call.empty()) return std::nullopt;
  return parts;
}

}  // namespace mortane::controller
