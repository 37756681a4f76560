#pragma once

#include "platform/DynamicLibrary.h"

#include <string>

namespace vantrel::tests {

/// Why the library cannot be loaded; empty when it can.
inline std::string reasonFor(const std::string& path) {
    const auto library = DynamicLibrary::load(path);
    return library ? "" : library.reason();
}

} // namespace vantrel::tests
