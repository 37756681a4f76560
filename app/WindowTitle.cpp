#include "app/WindowTitle.h"

#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"

namespace vantrel {

std::string windowTitle(TransferMode mode, const MessageTable& messages) {
    const auto name = mode == TransferMode::HispeedLink ? message::modeHispeed : message::modeBsc;
    return messages.getMessage(message::title) + "  -- " + messages.getMessage(name) + " --";
}

} // namespace vantrel
