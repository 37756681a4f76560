#include "link/JobNameSet.h"

#include "base/Text.h"
#include "base/TextCase.h"

namespace vantrel {
namespace {

/// Data files keep their extension: it is a part of what they are.
std::string_view baseName(std::string_view fileName) {
    return isJobFileName(fileName) ? fileName.substr(0, fileName.rfind('.')) : fileName;
}

/// A directory also lists data files, which never stand in a job's way.
bool namesAJob(std::string_view entry) {
    return isJobFileName(entry) || entry.find('.') == std::string_view::npos;
}

} // namespace

JobNameSet::JobNameSet() : JobNameSet(normalisedJobName) {}

void JobNameSet::assign(const std::vector<std::string>& names) {
    files_.clear();
    ambiguous_.clear();
    files_.reserve(names.size());
    for (const std::string& name : names) {
        const auto [known, isNew] = files_.try_emplace(form_(name), name);
        if (!isNew && known->second != name)
            ambiguous_.insert(known->first);
    }
}

void JobNameSet::insert(const std::string& name) {
    files_.try_emplace(form_(name), name);
}

void JobNameSet::remove(std::string_view name) {
    files_.erase(form_(name));
}

bool JobNameSet::isAmbiguous(std::string_view name) const {
    return !ambiguous_.empty() && ambiguous_.contains(form_(name));
}

bool JobNameSet::hasFile(std::string_view name) const {
    return files_.contains(form_(name));
}

std::string JobNameSet::jobEntry(std::string_view name) const {
    const std::string job = form_(baseName(name));
    for (const char* extension : {".JBI", ".JBR", ""}) {
        const auto found = files_.find(job + extension);
        if (found != files_.end() && namesAJob(found->second))
            return found->second;
    }
    return {};
}

std::string JobNameSet::entry(std::string_view name) const {
    if (isJobFileName(name))
        return jobEntry(name);
    const auto found = files_.find(form_(name));
    return found == files_.end() ? std::string() : found->second;
}

std::string jobExtension(std::string_view fileName) {
    const std::size_t point = fileName.rfind('.');
    return point == std::string_view::npos ? std::string() : asciiUpper(fileName.substr(point));
}

std::string jobFileName(const std::string& nameInside) {
    return isJobFileName(nameInside) ? nameInside : nameInside + ".JBI";
}

bool isSameJob(std::string_view left, std::string_view right) {
    return normalisedJobName(baseName(left)) == normalisedJobName(baseName(right));
}

bool isJobFileName(std::string_view fileName) {
    const std::string extension = jobExtension(fileName);
    return extension == ".JBI" || extension == ".JBR";
}

} // namespace vantrel
