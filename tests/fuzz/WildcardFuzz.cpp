#include "FuzzInput.h"
#include "base/Wildcard.h"

using namespace vantrel;

// The pattern, then the text.
VANTREL_FUZZ_TARGET(input) {
    const auto pattern = input.parameter();
    const std::string text(input.file());
    matchesWildcard(text, pattern);
    fuzz::require(matchesWildcard(text, "*"), "everything matches the star alone");
    fuzz::require(matchesWildcard(text + std::string(pattern), "*" + std::string(pattern)) ||
                      pattern.find_first_of("*?#[") != std::string_view::npos ||
                      !isValidUtf8(text) || !isValidUtf8(pattern),
                  "a plain tail is found");
}
