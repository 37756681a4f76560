#pragma once

#include "link/SessionOperations.h"

#include <cstdint>
#include <optional>
#include <string>

namespace vantrel {

// Conversions between late-bound values and the session's types. Nothing where a value does not
// convert; a missing value converts to nothing but a text.

SessionValue toSessionValue(bool value);
SessionValue toSessionValue(std::int32_t value);
SessionValue toSessionValue(const std::string& value);

std::optional<double> numberFrom(const SessionValue& value);
/// To the nearest whole number, a half to the even one.
std::optional<std::int32_t> integer32From(const SessionValue& value);
std::optional<std::int16_t> integer16From(const SessionValue& value);
/// 0 is false, every other number true; the words "true" and "false" in any letter case too.
std::optional<bool> flagFrom(const SessionValue& value);
std::string textFrom(const SessionValue& value);

} // namespace vantrel
