#include "link/VariableList.h"

#include "base/PathRules.h"
#include "base/Text.h"
#include "link/SessionErrorRecord.h"
#include "link/SessionServices.h"
#include "platform/Files.h"

namespace vantrel {
namespace {

/// The line end of a text's first line; a text of one line is given the usual one.
std::string firstLineEnd(std::string_view text) {
    const std::size_t at = text.find_first_of("\r\n");
    if (at == std::string_view::npos || text.substr(at).starts_with("\r\n"))
        return "\r\n";
    return {text[at]};
}

} // namespace

bool VariableList::read() {
    entries_.clear();
    readingFailed_ = true;
    if (!PathRules::isPlainName(file_))
        return fail(session_code::nameRefused);
    const auto content = readFile(PathRules().join(properties_.path, file_));
    if (!content)
        return fail(session_code::listFileNotOpened, content.reason());
    readingFailed_ = false;
    const DecodedText decoded = decodeText(*content);
    encoding_ = decoded.encoding;
    lineEnd_ = firstLineEnd(decoded.text);
    for (const std::string_view line : lines(decoded.text))
        entries_.add(std::string(line));
    return true;
}

bool VariableList::write(const std::string& file) {
    if (!PathRules::isPlainName(file))
        return fail(session_code::nameRefused);
    if (readingFailed_ && entries_.count() == 0)
        return fail(session_code::listNotRead);
    std::string text;
    for (const std::string& entry : entries_.all())
        text += entry + lineEnd_;
    auto bytes = encodeReadably(text, encoding_);
    if (!bytes) // a line that came from elsewhere than the file
        bytes = encodeText(text, TextEncoding::Utf8);
    if (!bytes)
        return fail(session_code::listFileNotOpened);
    const Outcome written = replaceFile(PathRules().join(properties_.path, file), *bytes);
    return written || fail(session_code::listFileNotOpened, written.reason());
}

bool VariableList::fail(std::int16_t code, const std::string& systemReason) {
    error_.set(code, "");
    error_.systemReason = systemReason;
    return false;
}

} // namespace vantrel
