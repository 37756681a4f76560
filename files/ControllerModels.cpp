#include "files/ControllerModels.h"

#include "base/Text.h"

#include <algorithm>
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

constexpr std::string_view anyExtension = "*";

bool hasPoint(std::string_view name) {
    return name.find('.') != std::string_view::npos;
}

/// The pattern "*." and the extension. The table's extensions hold no other wildcard than the lone
/// "*", so this is a look at the end of the name; it runs for every file of a folder.
bool matchesExtension(std::string_view upperName, std::string_view extension) {
    if (extension == anyExtension)
        return hasPoint(upperName);
    return upperName.ends_with(extension) && upperName.size() > extension.size() &&
           upperName[upperName.size() - extension.size() - 1] == '.';
}

std::string caption(std::string_view entry) {
    std::string text;
    for (const std::string_view extension : split(entry, ';')) {
        if (!text.empty())
            text += ';';
        text.append("*.").append(extension);
    }
    return text;
}

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

std::vector<std::string> filterChoices(const ControllerModel& model) {
    std::vector<std::string> choices;
    std::transform(model.filters.begin(), model.filters.end(), std::back_inserter(choices),
                   caption);
    return choices;
}

bool matchesFilter(std::string_view upperName, int filterIndex, const ControllerModel& model) {
    const auto index = static_cast<std::size_t>(filterIndex);
    // A box without a choice has the index -1; it hides as little as an index past the entries.
    if (filterIndex < 0 || index >= model.filters.size())
        return hasPoint(upperName);
    std::string_view rest = model.filters[index];
    while (true) {
        const std::size_t end = rest.find(';');
        if (matchesExtension(upperName, rest.substr(0, end)))
            return true;
        if (end == std::string_view::npos)
            return false;
        rest.remove_prefix(end + 1);
    }
}

} // namespace vantrel
