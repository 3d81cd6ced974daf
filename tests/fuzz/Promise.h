// What a fuzz target expects to hold: the fuzzer keeps an input that breaks it.
#pragma once

#include <cstdio>
#include <cstdlib>

namespace mortane {

inline void Require(bool holds, const char* promise) {
  if (holds) return;
  std::fprintf(stderr, "broken: %s\n", promise);
  std::abort();
}

}  // namespace mortane
