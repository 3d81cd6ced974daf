#include "platform/windows/Wide.h"

#include <windows.h>

#include <array>

namespace mortane {

std::wstring ToWide(std::string_view utf8) {
  const int bytes = static_cast<int>(utf8.size());
  if (bytes == 0) return {};
  const int length = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), bytes, nullptr, 0);
  std::wstring wide(static_cast<std::size_t>(length), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, utf8.data(), bytes, wide.data(), length);
  return wide;
}

std::string ToUtf8(std::wstring_view wide) {
  const int units = static_cast<int>(wide.size());
  if (units == 0) return {};
  // Most texts are short; a unit takes three bytes at most.
  std::array<char, 192> bytes;
  if (wide.size() <= bytes.size() / 3) {
    const int length = WideCharToMultiByte(CP_UTF8, 0, wide.data(), units, bytes.data(),
                                           static_cast<int>(bytes.size()), nullptr, nullptr);
    return {bytes.data(), static_cast<std::size_t>(length)};
  }
  const int length =
      WideCharToMultiByte(CP_UTF8, 0, wide.data(), units, nullptr, 0, nullptr, nullptr);
  std::string utf8(static_cast<std::size_t>(length), '\0');
  WideCharToMultiByte(CP_UTF8, 0, wide.data(), units, utf8.data(), length, nullptr, nullptr);
  return utf8;
}

std::string SystemMessage(unsigned long error) {
  wchar_t* text = nullptr;
  const DWORD length = FormatMessageW(
      FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
      nullptr, error, 0, reinterpret_cast<wchar_t*>(&text), 0, nullptr);
  std::wstring_view message(text == nullptr ? L"" : text, length);
  message = message.substr(0, message.find_last_not_of(L"\r\n .") + 1);
  const std::string utf8 = message.empty() ? "error " + std::to_string(error) : ToUtf8(message);
  LocalFree(text);
  return utf8;
}

}  // namespace mortane
