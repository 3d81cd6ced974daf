// Results go out as whole lines, and a failed write stays known.
#include "ctl/LineBuffer.h"

#include <gtest/gtest.h>

#include <ostream>

namespace mortane::test {
namespace {

struct Written {
  std::vector<std::string> pieces;
  std::string problem;

  ctl::LineBuffer::Write Write() {
    return [this](std::string_view bytes) {
      if (problem.empty()) pieces.emplace_back(bytes);
      return problem;
    };
  }
};

TEST(LineBuffer, HoldsEverythingUntilItIsFlushed) {
  Written written;
  ctl::LineBuffer buffer(written.Write());
  std::ostream out(&buffer);
  out << "one\ntw" << 'o';
  EXPECT_TRUE(written.pieces.empty());
  out.flush();
  EXPECT_EQ(written.pieces, std::vector<std::string>{"one\ntwo"});
}

TEST(LineBuffer, WritesOfMuchOnlyWhatEndsWithALine) {
  Written written;
  ctl::LineBuffer buffer(written.Write());
  std::ostream out(&buffer);
  const std::string line(999, 'x');
  for (int i = 0; i < 100; ++i) out << line << '\n';
  ASSERT_FALSE(written.pieces.empty());
  std::size_t size = 0;
  for (const std::string& piece : written.pieces) {
    EXPECT_EQ(piece.back(), '\n');
    size += piece.size();
  }
  EXPECT_LT(size, 100000U);
  out.flush();
  EXPECT_EQ(size + written.pieces.back().size(), 100000U);
}

TEST(LineBuffer, AfterAFailedWriteTheStreamIsBadAndNothingMoreGoesOut) {
  Written written;
  ctl::LineBuffer buffer(written.Write());
  std::ostream out(&buffer);
  written.problem = "no room";
  out << "one\n" << std::flush;
  EXPECT_FALSE(out);
  EXPECT_EQ(buffer.Problem(), "no room");
  written.problem.clear();
  out.clear();
  out << "two\n" << std::flush;
  EXPECT_FALSE(out);
  EXPECT_TRUE(written.pieces.empty());
}

}  // namespace
}  // namespace mortane::test
