#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

/// One row of the controller model table.
struct ControllerModel {
    std::string_view name;
    bool isPC = false;
    std::int16_t capabilities = 0;             ///< sum of `capabilityBsc` and `capabilityHispeed`
    std::int16_t bit = 0;                      ///< the model's bit in the file table's masks
    std::span<const std::string_view> filters; ///< each: extensions without point, joined by ";"
};

inline constexpr std::int16_t capabilityBsc = 1;
inline constexpr std::int16_t capabilityHispeed = 2;

/// The row of the setting `Controler`, 0 to 5; for any other value a row that has BSC only, no bit
/// and no filters.
const ControllerModel& controllerModel(std::int16_t controler);
/// The row of the PC pane.
const ControllerModel& pcModel();
/// The rows 0 to 5.
std::span<const ControllerModel> controllerModels();

/// The captions of a filter box: the entry "DAT;CND;SYS" reads "*.DAT;*.CND;*.SYS".
std::vector<std::string> filterChoices(const ControllerModel& model);

/// Whether an upper-cased name passes the model's filter entry. An index past the entries accepts
/// every name with a point.
bool matchesFilter(std::string_view upperName, int filterIndex, const ControllerModel& model);

} // namespace vantrel
