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
    files_.reserve(names.size());
    for (const std::string& name : names)
        insert(name);
}

void JobNameSet::insert(const std::string& name) {
    files_.try_emplace(form_(name), name);
}

void JobNameSet::remove(std::string_view name) {
    files_.erase(form_(name));
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

std::string jobExtension(std::string_view fileName) {
    const std::size_t point = fileName.rfind('.');
    return point == std::string_view::npos ? std::string() : asciiUpper(fileName.substr(point));
}

std::string jobFileName(const std::string& nameInside) {
    return isJobFileName(nameInside) ? nameInside : nameInside + ".JBI";
}

bool isJobFileName(std::string_view fileName) {
    const std::string extension = jobExtension(fileName);
    return extension == ".JBI" || extension == ".JBR";
}

} // namespace vantrel
