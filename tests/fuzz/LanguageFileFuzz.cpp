#include "FuzzInput.h"
#include "base/Text.h"
#include "lang/LanguageFiles.h"

using namespace vantrel;

VANTREL_FUZZ_TARGET(input) {
    auto entries = parseLanguageFile(input.file());
    for (const auto& entry : entries) {
        fuzz::require(entry.Text1.find('"') == std::string::npos, "a text ends at its quote");
        fuzz::require(isValidUtf8(entry.Text2), "a text is valid UTF-8");
    }
    const auto number = entries.empty() ? std::int16_t{0} : entries.front().MsgNo;

    MessageTable table;
    table.replace(std::move(entries));
    table.getMessageWithInsertion(number, "%");
    fuzz::require(!table.errorText(number).empty(), "an error always has a text");
}
