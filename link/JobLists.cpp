#include "link/JobLists.h"

#include "base/PathRules.h"
#include "base/Text.h"
#include "base/TextCase.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "link/OperatorTalk.h"
#include "link/SessionErrorRecord.h"
#include "link/SessionServices.h"
#include "link/ShownText.h"
#include "platform/Files.h"
#include "platform/TextEncoding.h"

#include <algorithm>
#include <utility>

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

std::string EntryList::at(std::int32_t index) const {
    return has(index) ? entries_[static_cast<std::size_t>(index)] : std::string();
}

void EntryList::remove(std::int32_t index) {
    if (has(index))
        entries_.erase(entries_.begin() + index);
}

void EntryList::replace(std::int32_t index, std::string entry) {
    if (has(index))
        entries_[static_cast<std::size_t>(index)] = std::move(entry);
}

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

bool JobListStore::load(const std::string& file, bool unchecked) {
    if (!PathRules::isPlainName(file)) {
        tools_.error.set(session_code::nameRefused, "");
        return false;
    }
    const auto content = readFile(PathRules().join(tools_.properties.path, file));
    if (!content) {
        tools_.error.set(session_code::listFileNotOpened, "");
        tools_.error.systemReason = content.reason();
        return false;
    }
    entries_.clear();
    const DecodedText decoded = decodeText(*content);
    for (const std::string_view line : lines(decoded.text)) {
        const std::string name(trimmed(line));
        if (name.empty())
            continue;
        if (unchecked)
            entries_.add(name);
        else if (!addExisting(name))
            return false;
    }
    return true;
}

bool JobListStore::addExisting(const std::string& name) {
    const std::string path = PathRules().join(tools_.properties.path, name);
    if (PathRules::isPlainName(name) && isRegularFile(path)) {
        entries_.add(name);
        return true;
    }
    if (askGoOnWithout(name))
        return true;
    entries_.clear();
    tools_.error.set(session_code::cancelled, "");
    return false;
}

bool JobListStore::askGoOnWithout(const std::string& name) {
    if (!tools_.properties.DisplayMonitor)
        return true;
    const std::string text = tools_.messages.getMessage(message::jobFileHead) + bracketed(name) +
                             " " + tools_.messages.getMessage(message::jobFileMissing);
    return tools_.talk.askOkCancel(text, BoxIcon::Exclamation);
}

} // namespace vantrel
