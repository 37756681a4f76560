#include "link/JobFile.h"

#include "base/Text.h"
#include "link/JobNameSet.h"
#include "platform/Files.h"
#include "platform/TextEncoding.h"

#include <algorithm>

namespace vantrel {
namespace {

constexpr std::string_view nameKey = "//NAME";

/// What stands on the line after the key, or an empty text when the line is another one.
std::string_view nameOnLine(std::string_view line) {
    if (!line.starts_with(nameKey))
        return {};
    const std::string_view rest = line.substr(nameKey.size());
    const bool keyEnds = rest.starts_with(' ') || rest.starts_with('\t');
    return keyEnds ? trimmed(rest) : std::string_view();
}

} // namespace

// The whole file decides on its encoding: a short name alone may look like another one.
JobName jobNameInside(std::string_view bytes) {
    const DecodedText decoded = decodeText(bytes);
    // No controller reads UTF-16, so it finds no name either.
    if (decoded.encoding == TextEncoding::Utf16LittleEndian)
        return {};
    const std::string& text = decoded.text;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find_first_of("\r\n", at), text.size());
        const auto name = nameOnLine(std::string_view(text).substr(at, end - at));
        if (!name.empty())
            return {std::string(name), decoded.encoding == TextEncoding::CodePage || isAscii(name)};
        at = end + 1;
    }
    return {};
}

Result<JobFile> JobFile::read(const std::string& path) {
    auto content = readUnsharedFile(path);
    const bool isUnshared = static_cast<bool>(content);
    if (!isUnshared)
        content = readSettledFile(path);
    if (!content)
        return Failure{content.reason()};
    JobName name = isJobFileName(path) ? jobNameInside(*content) : JobName();
    return JobFile(std::move(name), std::move(*content), isUnshared);
}

} // namespace vantrel
