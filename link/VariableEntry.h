#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vantrel {

/// The values of one robot variable.
using VariableValues = std::array<double, 10>;

/// One robot variable, written as "B005=12" or "BP003=1,2,3,0,0,0,0,0,0": kind letters, number, "="
/// and the values.
struct VariableEntry {
    std::int16_t kind = 0;   ///< as the library counts them: B, I, D, R, P, BP, EX
    std::int16_t number = 0; ///< 0 to 32767
    VariableValues values{};

    bool operator==(const VariableEntry&) const = default;

    /// Nothing when the line is no entry: an unknown kind, no "=", a number or a value that is not
    /// one, or more than ten values. What is left empty is 0.
    static std::optional<VariableEntry> parse(std::string_view line);

    /// The number with at least three digits; kinds up to 3 with one value, the others with nine.
    std::string format() const;
    /// Whether all values that `format` writes are finite, so that they can be read back.
    bool isFinite() const;
};

} // namespace vantrel
