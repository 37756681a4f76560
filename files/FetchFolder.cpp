#include "files/FetchFolder.h"

#include "base/PathRules.h"
#include "link/Snappy.h"
#include "platform/Files.h"

#include <string_view>
#include <utility>
#include <vector>

namespace vantrel {

FetchFolder::FetchFolder(Snappy& session, std::string path)
    : session_(session), path_(std::move(path)), before_(session.path) {
    session_.path = PathRules().withSeparator(path_);
}

FetchFolder::~FetchFolder() {
    session_.path = before_;
    // What cannot be removed is the system's to clear away, as everything in its place.
    std::vector<std::string> names;
    (void)visitNames(path_, [&names](std::string_view name) { names.emplace_back(name); });
    for (const std::string& name : names)
        (void)removeFile(PathRules().join(path_, name));
    (void)removeFolder(path_);
}

} // namespace vantrel
