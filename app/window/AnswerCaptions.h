#pragma once

#include "link/OperatorTalk.h"

#include <string>

namespace vantrel {

class MessageTable;

/// The caption of an answer's button in the language in force. Where the language file lacks it,
/// the button has the caption that it was designed with: an operator without one cannot tell Yes
/// from No.
std::string answerCaption(const MessageTable& messages, Answer answer);

} // namespace vantrel
