#pragma once

#include "base/Text.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace vantrel::fuzz {

/// The bytes of one input. Parameters beside the file itself are its first lines, so that the
/// corpus can be read and written by hand.
class FuzzInput {
  public:
    FuzzInput(const std::uint8_t* data, std::size_t size)
        : rest_(reinterpret_cast<const char*>(data), size) {}

    std::string_view parameter() { return takeLine(rest_); }
    std::string_view file() const { return rest_; }

  private:
    std::string_view rest_;
};

/// Ends the run with a crash, which keeps the input, when a promise of the code is broken.
inline void require(bool holds, const char* promise) {
    if (holds)
        return;
    std::fprintf(stderr, "Broken promise: %s\n", promise);
    std::abort();
}

} // namespace vantrel::fuzz

/// Defines the function that the fuzzer calls: VANTREL_FUZZ_TARGET(input) { ... }
#define VANTREL_FUZZ_TARGET(input)                                                                 \
    static void runOn(vantrel::fuzz::FuzzInput input);                                             \
    extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {            \
        runOn({data, size});                                                                       \
        return 0;                                                                                  \
    }                                                                                              \
    static void runOn(vantrel::fuzz::FuzzInput input)
