#include "support/windows/PartOption.h"

#include <cstdint>
#include <sstream>
#include <stdexcept>
#include <string_view>

namespace mortane::test {
namespace {

constexpr std::string_view kMark = "--part-of-a-test";

std::uintptr_t NumberOf(HANDLE handle) {
  return reinterpret_cast<std::uintptr_t>(handle);
}

HANDLE HandleOf(std::uintptr_t number) {
  return reinterpret_cast<HANDLE>(number);
}

}  // namespace

std::string PartOption::Text() const {
  std::ostringstream text;
  text << kMark << '|' << NumberOf(in) << '|' << NumberOf(out) << '|' << mutexScope << '|' << part;
  return text.str();
}

std::optional<PartOption> ReadPartOption(const std::string& text) {
  if (!text.starts_with(kMark)) return std::nullopt;
  std::istringstream fields(text);
  std::string mark;
  std::string in;
  std::string out;
  PartOption option;
  std::getline(fields, mark, '|');
  std::getline(fields, in, '|');
  std::getline(fields, out, '|');
  std::getline(fields, option.mutexScope, '|');
  std::getline(fields, option.part, '|');
  option.in = HandleOf(std::stoull(in));
  option.out = HandleOf(std::stoull(out));
  return option;
}

void SendByte(HANDLE pipe) {
  const char byte = '.';
  DWORD count = 0;
  if (!WriteFile(pipe, &byte, 1, &count, nullptr)) throw std::runtime_error("no one listens");
}

void ReceiveByte(HANDLE pipe) {
  char byte = 0;
  DWORD count = 0;
  if (!ReadFile(pipe, &byte, 1, &count, nullptr) || count == 0)
    throw std::runtime_error("the other process ended");
}

}  // namespace mortane::test
