#include "FuzzInput.h"
#include "base/Text.h"
#include "platform/ProfileText.h"

using namespace vantrel;

namespace {

/// What a value comes back as: a reader strips outer blanks and one layer of quotes.
std::string_view asRead(std::string_view value) {
    value = trimmed(value, " \t");
    const bool quoted = value.size() >= 2 && value.front() == value.back() &&
                        (value.front() == '"' || value.front() == '\'');
    return quoted ? value.substr(1, value.size() - 2) : value;
}

} // namespace

// Section, key and value, a line each, then the file.
VANTREL_FUZZ_TARGET(input) {
    const auto section = input.parameter();
    const auto key = input.parameter();
    const auto value = input.parameter();
    ProfileText profile{std::string(input.file())};

    const auto before = profile.value(section, key).value_or("");
    profileInteger(before);
    fuzz::require(cutToBuffer(before, 80).size() < std::size_t{80} * 4, "a cut text fits");

    if (profile.set(section, key, value))
        fuzz::require(profile.value(section, key) == asRead(value), "what was set is read back");
    else
        fuzz::require(profile.bytes() == input.file(), "a refused value changes nothing");
}
