#pragma once

#include "files/TransferServices.h"

#include <optional>
#include <string>

namespace vantrel {

/// The text of a controller's file as the viewer shows it. The file is fetched into a folder of its
/// own among the system's temporary files, which goes again: no file of the PC can be touched by
/// it. Nothing, after a message where the operator needs one, when it cannot be fetched or read.
std::optional<std::string> peekAtController(const TransferServices& services,
                                            const std::string& name);

} // namespace vantrel
