// A stream buffer that hands on whole lines.
#pragma once

#include <functional>
#include <streambuf>
#include <string>
#include <string_view>

namespace mortane::ctl {

// What was collected goes out when the stream is flushed, and lines that are whole also when much
// was collected. After a failed write nothing more goes out and the stream is bad.
class LineBuffer : public std::streambuf {
 public:
  // Writes all bytes, and answers the reason when that failed.
  using Write = std::function<std::string(std::string_view)>;

  explicit LineBuffer(Write write) : write_(std::move(write)) {}

  // Why a write failed; empty as long as none did.
  const std::string& Problem() const { return problem_; }

 protected:
  int_type overflow(int_type character) override;
  std::streamsize xsputn(const char* text, std::streamsize size) override;
  int sync() override;

 private:
  bool WriteFirst(std::size_t size);
  bool WriteWholeLines();

  Write write_;
  std::string collected_;
  std::string problem_;
};

}  // namespace mortane::ctl
