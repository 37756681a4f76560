#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vantrel {

/// The usual leading-number conversion: blanks, a sign, digits, a point, an exponent as far as they
/// go; what follows is ignored and no number at all is 0. The point is the decimal sign in every
/// locale.
double leadingNumber(std::string_view text);

/// `leadingNumber` as a whole number, cut off at the point and held within the type's range.
std::int16_t leadingInteger16(std::string_view text);
std::int32_t leadingInteger32(std::string_view text);

/// The whole text (but for outer blanks) as a number, or nothing.
std::optional<double> wholeNumber(std::string_view text);

/// "True" and "False" in any letter case, or a number, of which only 0 is false; outer blanks do
/// not count. Nothing for any other text.
std::optional<bool> truthValue(std::string_view text);

/// To the nearest whole number, a half to the even one, or nothing outside 32 bits.
std::optional<std::int32_t> rounded32(double value);

/// The shortest decimal text that reads back to the same value, without an exponent for everyday
/// sizes: "12", "-0.5", "1399.75".
std::string generalText(double value);

} // namespace vantrel
