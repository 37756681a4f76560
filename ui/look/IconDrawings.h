#pragma once

#include <span>
#include <string_view>

namespace vantrel {

/// One of the program's own drawings: the key is the file's name in data/icons without ".svg".
struct IconDrawing {
    std::string_view key;
    const char* svg;
};

/// All drawings, embedded at build time.
std::span<const IconDrawing> iconDrawings();

} // namespace vantrel
