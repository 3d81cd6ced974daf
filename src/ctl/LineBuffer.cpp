#include "ctl/LineBuffer.h"

namespace mortane::ctl {
namespace {

constexpr std::size_t kMuch = std::size_t{64} * 1024;

}  // namespace

LineBuffer::int_type LineBuffer::overflow(int_type character) {
  if (traits_type::eq_int_type(character, traits_type::eof())) return traits_type::not_eof(0);
  const char byte = traits_type::to_char_type(character);
  return xsputn(&byte, 1) == 1 ? character : traits_type::eof();
}

std::streamsize LineBuffer::xsputn(const char* text, std::streamsize size) {
  if (!problem_.empty()) return 0;
  collected_.append(text, static_cast<std::size_t>(size));
  return collected_.size() < kMuch || WriteWholeLines() ? size : 0;
}

int LineBuffer::sync() {
  return WriteFirst(collected_.size()) ? 0 : -1;
}

bool LineBuffer::WriteFirst(std::size_t size) {
  if (!problem_.empty()) return false;
  if (size > 0) problem_ = write_(std::string_view(collected_).substr(0, size));
  collected_.erase(0, size);
  return problem_.empty();
}

bool LineBuffer::WriteWholeLines() {
  const std::size_t last = collected_.rfind('\n');
  return last == std::string::npos || WriteFirst(last + 1);
}

}  // namespace mortane::ctl
