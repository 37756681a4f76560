#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace vantrel {

struct WindowPlacement;

/// The list of numbers under the key `Window`: left, top, width, height of the main window and the
/// widths of three columns, in twips, joined with ",".
inline constexpr std::string_view defaultWindowText = "0,0,9720,7000,1399.75,700.158,1500.09";

/// Stores the fields, rounded to whole numbers. A field that is no number, or too large, leaves its
/// index as it was, and so do fields that are missing; those after the eighth are dropped.
void readWindowText(std::string_view text, std::array<std::int32_t, 8>& positions);

/// The seven numbers to store. A number that is still the one that was read keeps the fraction that
/// `storedText` has for it.
std::string windowText(const std::array<std::int32_t, 8>& positions,
                       const WindowPlacement& placement, std::string_view storedText);

} // namespace vantrel
