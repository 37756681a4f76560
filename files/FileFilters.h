#pragma once

#include "files/ControllerModels.h"

#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

/// The captions of a filter box: the entry "DAT;CND;SYS" reads "*.DAT;*.CND;*.SYS".
std::vector<std::string> filterChoices(const ControllerModel& model);

/// Whether an upper-cased name passes the model's filter entry. An index past the entries accepts
/// every name with a point.
bool matchesFilter(std::string_view upperName, int filterIndex, const ControllerModel& model);

} // namespace vantrel
