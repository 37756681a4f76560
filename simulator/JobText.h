#pragma once

#include "simulator/ResultCodes.h"

#include <string>
#include <string_view>

namespace vantrel::simulator {

/// The name under which a controller keeps a job, normalised: taken from the first line of the
/// file's bytes that reads "//NAME", a blank and the name. Else why the controller refuses the
/// file: `code::formatError` for an empty file or one in UTF-16, `code::headerMissing` when there
/// is no such line, `code::nameInvalid` when its name could not be a file's.
CodeOr<std::string> jobNameIn(std::string_view bytes);

} // namespace vantrel::simulator
