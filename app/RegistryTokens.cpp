#include "app/RegistryTokens.h"

#include <algorithm>

namespace vantrel {

std::string_view takeRegistryToken(std::string_view& rest) {
    rest.remove_prefix(std::min(rest.find_first_not_of(registryDelimiters), rest.size()));
    const std::string_view token = rest.substr(0, rest.find_first_of(registryDelimiters));
    rest.remove_prefix(token.size());
    return token;
}

} // namespace vantrel
