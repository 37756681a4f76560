#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vantrel {

class MessageTable;

// A language file that somebody wrote for another version may know the prescribed numbers only.
// Where it lacks one of ours, a control has the caption that it was designed with: a button without
// one cannot be told from another.

/// The caption in the language in force, else `designed`.
std::string formCaption(const MessageTable& messages, std::int32_t number,
                        std::string_view designed);
/// The same with the designed captions of the settings and language dialogs; a number that has none
/// there falls back to nothing.
std::string formCaption(const MessageTable& messages, std::int32_t number);

} // namespace vantrel
