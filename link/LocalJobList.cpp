#include "link/LocalJobList.h"

#include "base/PathRules.h"
#include "base/Text.h"
#include "base/TextCase.h"
#include "platform/Files.h"
#include "platform/TextEncoding.h"

#include <algorithm>

namespace vantrel {
namespace {

constexpr std::string_view fileName = "LocalJob.lst";
/// Bytes of the longest name that a file can have, and an extension added to it: no transfer takes
/// a longer one, so that patterns need not be tried on it.
constexpr std::size_t longestForm = 255 + 4;

std::string comparedForm(std::string_view entry) {
    std::string form = normalisedJobName(entry);
    if (form.find('.') == std::string::npos)
        form += ".JBI";
    return form;
}

} // namespace

void LocalJobList::read(const std::string& folder) {
    const std::string name = findIgnoringCase(folder, fileName);
    if (name.empty())
        return;
    const auto content = readFile(PathRules().join(folder, name));
    if (!content)
        return;
    *this = {};
    const DecodedText decoded = decodeText(*content);
    for (const std::string_view line : lines(decoded.text))
        if (const std::string_view entry = trimmed(line); !entry.empty())
            add(entry);
}

// Plain names, the usual case, are looked up; only patterns are tried one by one.
void LocalJobList::add(std::string_view entry) {
    entries_.emplace_back(entry);
    std::string form = comparedForm(entry);
    if (form.find_first_of("*?#[") == std::string::npos) {
        names_.insert(std::move(form));
        return;
    }
    WildcardPattern pattern(form);
    if (pattern.shortestMatch() <= longestForm)
        patterns_.push_back(std::move(pattern));
}

bool LocalJobList::contains(std::string_view entry) const {
    if (entries_.empty())
        return false;
    const std::string form = comparedForm(entry);
    if (names_.contains(form))
        return true;
    if (patterns_.empty() || form.size() > longestForm)
        return false;
    const std::u32string characters = codePoints(form);
    return std::any_of(
        patterns_.begin(), patterns_.end(),
        [&characters](const WildcardPattern& pattern) { return pattern.matches(characters); });
}

} // namespace vantrel
