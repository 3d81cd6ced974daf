// The function that a fuzzer calls with every input; its name and form are the fuzzer's.
#pragma once

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
