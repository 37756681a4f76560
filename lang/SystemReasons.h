#pragma once

#include <string>

namespace vantrel {

class MessageTable;

/// A reason as `Failure` holds it, in the language in force. The system says its reasons in a
/// language of its own, often English; the usual ones are known by their words and have messages.
/// A name before the words or behind them stays, and so does any other reason.
std::string reasonInLanguage(const MessageTable& messages, const std::string& reason);

} // namespace vantrel
