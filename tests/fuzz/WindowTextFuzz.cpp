#include "FuzzInput.h"
#include "app/settings/SettingsFile.h"
#include "app/settings/WindowText.h"

using namespace vantrel;

VANTREL_FUZZ_TARGET(input) {
    std::array<std::int32_t, 8> positions{};
    readWindowText(input.file(), positions);

    // A window that nobody moved.
    WindowPlacement placement;
    placement.left = positions[0];
    placement.top = positions[1];
    placement.width = positions[2];
    placement.height = positions[3];
    for (std::size_t column = 0; column < placement.columnWidths.size(); ++column)
        placement.columnWidths[column] = positions[4 + column];
    const auto text = windowText(positions, placement, input.file());

    const auto fields = split(text, ',');
    fuzz::require(fields.size() == 7, "seven numbers are stored");
    auto again = positions;
    readWindowText(text, again);
    fuzz::require(std::equal(again.begin(), again.begin() + 6, positions.begin()),
                  "an unmoved window keeps its place");
}
