#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace vantrel {

/// One entry of a language file; both texts are UTF-8.
struct MessageEntry {
    std::int16_t MsgNo = 0;
    std::string Text1; ///< the reference wording
    std::string Text2; ///< the wording shown
};

/// The texts of the language in force, by message number. A number that is not there gives the
/// empty text; of equal numbers the first one counts.
class MessageTable {
  public:
    void replace(std::vector<MessageEntry> entries);

    /// Kind 2 is the text shown, kind 1 the reference text, any other kind gives the empty text.
    std::string getMessage(std::int32_t number, int kind = 2) const;
    /// The message with its first "%" replaced by the first argument, the next by the next one.
    std::string getMessageWithInsertion(std::int32_t number, std::string_view argument,
                                        std::string_view next = {}) const;
    /// Message `number` + 500: captions and labels of dialogs, and texts of our own codes.
    std::string resourceMessage(std::int32_t number) const;

    /// The text of a code that a controller gave: 1000 to 5200, else the empty text.
    std::string controllerErrorText(std::int32_t code) const;
    /// The text shown for any error code: from 1000 to 5200 the controller's text, for any other
    /// code its resource message; where there is none, the number itself. Never empty.
    std::string errorText(std::int32_t code) const;
    /// The same for a code that a library function returned: what else has a text under the number
    /// is meant for something else there.
    std::string returnedCodeText(std::int32_t code) const;

  private:
    std::unordered_map<std::int32_t, MessageEntry> entries_;
};

} // namespace vantrel
