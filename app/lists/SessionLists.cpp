#include "app/lists/SessionLists.h"

#include "base/Text.h"
#include "link/Snappy.h"
#include "link/VariableEntry.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>

namespace vantrel {
namespace {

bool holdsValues(std::string_view entry) {
    const auto sign = entry.find('=');
    return sign != entry.npos && !trimmed(entry.substr(sign + 1)).empty();
}

bool isSameVariable(const std::string& left, const std::string& right) {
    const auto one = VariableEntry::parse(left), other = VariableEntry::parse(right);
    return one && other ? *one == *other : left == right;
}

} // namespace

std::vector<std::string> jobNames(const Snappy& session) {
    std::vector<std::string> names;
    names.reserve(std::size_t(session.JobListCount()));
    for (std::int32_t index = 0; index < session.JobListCount(); ++index)
        names.push_back(session.JobList(index));
    return names;
}

std::vector<std::string> variablesOf(const Snappy& session) {
    std::vector<std::string> entries;
    for (std::int32_t index = 0; index < session.VarListCount(); ++index)
        if (std::string entry = session.VarList(index); !trimmed(entry).empty())
            entries.push_back(std::move(entry));
    return entries;
}

bool losesValues(const std::vector<std::string>& before, const std::vector<std::string>& after) {
    return !std::ranges::equal(before, after, [](const auto& old, const auto& refreshed) {
        return !holdsValues(old) || isSameVariable(old, refreshed);
    });
}

} // namespace vantrel
