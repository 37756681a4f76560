#include "files/ControllerModels.h"

#include <array>

namespace vantrel {

namespace {

constexpr std::int16_t bothLinks = capabilityBsc | capabilityHispeed;

constexpr std::array<std::string_view, 3> usualFilters{"JBI", "DAT;CND;SYS", "PRM;LST"};
constexpr std::array<std::string_view, 2> smallFilters{"JBI", "DAT"};
constexpr std::array<std::string_view, 5> pcFilters{"JBI", "JBR", "DAT;CND;SYS", "PRM;LST", "*"};

constexpr std::array<ControllerModel, 6> models{{
    {"Borin", false, bothLinks, 2, usualFilters},
    {"Aster", false, capabilityBsc, 1, smallFilters},
    {"Cygna", false, bothLinks, 4, usualFilters},
    {"Dorado", false, bothLinks, 8, usualFilters},
    {"Eridan", false, bothLinks, 16, usualFilters},
    {"Tellus", false, bothLinks, 32, usualFilters},
}};
constexpr ControllerModel pc{"PC", true, 0, 0, pcFilters};
constexpr ControllerModel unknown{"", false, capabilityBsc, 0, {}};

} // namespace

const ControllerModel& controllerModel(std::int16_t controler) {
    const auto row = static_cast<std::size_t>(controler);
    return controler >= 0 && row < models.size() ? models[row] : unknown;
}

const ControllerModel& pcModel() {
    return pc;
}

std::span<const ControllerModel> controllerModels() {
    return models;
}

} // namespace vantrel
