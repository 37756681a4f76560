#include "link/JobNameSet.h"

#include "base/Text.h"
#include "platform/TextCase.h"

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
    jobs_.clear();
    files_.reserve(names.size());
    jobs_.reserve(names.size());
    for (const std::string& name : names)
        insert(name);
}

void JobNameSet::insert(const std::string& name) {
    std::string file = form_(name);
    if (namesAJob(name))
        jobs_.try_emplace(std::string(baseName(file)), name);
    files_.insert(std::move(file));
}

void JobNameSet::remove(std::string_view name) {
    const std::string file = form_(name);
    files_.erase(file);
    if (namesAJob(name))
        jobs_.erase(std::string(baseName(file)));
}

bool JobNameSet::hasFile(std::string_view name) const {
    return files_.contains(form_(name));
}

std::string JobNameSet::jobEntry(std::string_view name) const {
    const auto found = jobs_.find(form_(baseName(name)));
    return found == jobs_.end() ? std::string() : found->second;
}

std::string jobExtension(std::string_view fileName) {
    const std::size_t point = fileName.rfind('.');
    return point == std::string_view::npos ? std::string() : asciiUpper(fileName.substr(point));
}

bool isJobFileName(std::string_view fileName) {
    const std::string extension = jobExtension(fileName);
    return extension == ".JBI" || extension == ".JBR";
}

} // namespace vantrel
