#pragma once

#include "base/TransferMode.h"

#include <string>

namespace vantrel {

class MessageTable;

/// The main window's caption: the title and the transfer mode's name.
std::string windowTitle(TransferMode mode, const MessageTable& messages);

} // namespace vantrel
