#include "link/LocalJobList.h"

#include "base/PathRules.h"
#include "base/Text.h"
#include "base/Wildcard.h"
#include "platform/Files.h"
#include "platform/TextCase.h"
#include "platform/TextEncoding.h"

#include <algorithm>

namespace vantrel {
namespace {

constexpr std::string_view fileName = "LocalJob.lst";

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
    if (form.find_first_of("*?#[") == std::string::npos)
        names_.insert(std::move(form));
    else
        patterns_.push_back(std::move(form));
}

bool LocalJobList::contains(std::string_view entry) const {
    if (entries_.empty())
        return false;
    const std::string form = comparedForm(entry);
    const auto matches = [&form](const std::string& pattern) {
        return matchesWildcard(form, pattern);
    };
    return names_.contains(form) || std::any_of(patterns_.begin(), patterns_.end(), matches);
}

} // namespace vantrel
