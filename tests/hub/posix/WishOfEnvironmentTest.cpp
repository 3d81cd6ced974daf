// What the environment asks for in place of the installed library.
#include <gtest/gtest.h>

#include <cstdlib>

#include "hub/SessionLibrary.h"

namespace mortane::test {
namespace {

TEST(WishOfEnvironment, TakesBenchJournalAndReplayEachFromItsVariable) {
  ::setenv("MORTANE_BENCH", "bench.xml", 1);
  ::setenv("MORTANE_JOURNAL", "journal.txt", 1);
  ::setenv("MORTANE_REPLAY", "replay.txt", 1);
  const LibraryWish wish = WishOfEnvironment();
  for (const char* name : {"MORTANE_BENCH", "MORTANE_JOURNAL", "MORTANE_REPLAY"}) ::unsetenv(name);
  EXPECT_EQ(wish.bench, "bench.xml");
  EXPECT_EQ(wish.journal, "journal.txt");
  EXPECT_EQ(wish.replay, "replay.txt");
  const LibraryWish none = WishOfEnvironment();
  EXPECT_EQ(none.bench + none.journal + none.replay, "");
}

}  // namespace
}  // namespace mortane::test
