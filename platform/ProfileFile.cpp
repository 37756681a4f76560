#include "platform/ProfileFile.h"

#include <algorithm>
#include <limits>

namespace vantrel {

std::int16_t ProfileFile::shortInteger(std::string_view section, std::string_view key,
                                       std::int16_t defaultValue) const {
    using Limits = std::numeric_limits<std::int16_t>;
    const auto value = integer(section, key, defaultValue);
    return static_cast<std::int16_t>(std::clamp<std::int32_t>(value, Limits::min(), Limits::max()));
}

} // namespace vantrel
