#include "link/SessionValues.h"

#include "base/Numbers.h"

#include <cmath>
#include <limits>

namespace vantrel {

SessionValue toSessionValue(bool value) {
    return value ? 1.0 : 0.0;
}

SessionValue toSessionValue(std::int32_t value) {
    return static_cast<double>(value);
}

SessionValue toSessionValue(const std::string& value) {
    return value;
}

std::optional<double> numberFrom(const SessionValue& value) {
    if (const auto* number = std::get_if<double>(&value))
        return *number;
    if (const auto* text = std::get_if<std::string>(&value))
        return wholeNumber(*text);
    return {};
}

std::optional<std::int32_t> integer32From(const SessionValue& value) {
    const auto number = numberFrom(value);
    return number ? rounded32(*number) : std::nullopt;
}

std::optional<std::int16_t> integer16From(const SessionValue& value) {
    using Limits = std::numeric_limits<std::int16_t>;
    const auto number = integer32From(value);
    if (!number || *number < Limits::min() || *number > Limits::max())
        return {};
    return static_cast<std::int16_t>(*number);
}

std::optional<bool> flagFrom(const SessionValue& value) {
    if (const auto* text = std::get_if<std::string>(&value))
        return truthValue(*text);
    const auto number = numberFrom(value);
    if (!number || std::isnan(*number))
        return {};
    return *number != 0;
}

std::string textFrom(const SessionValue& value) {
    if (const auto* number = std::get_if<double>(&value))
        return generalText(*number);
    const auto* text = std::get_if<std::string>(&value);
    return text ? *text : std::string();
}

} // namespace vantrel
