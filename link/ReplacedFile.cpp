#include "link/ReplacedFile.h"

#include "base/PathRules.h"
#include "platform/Files.h"

namespace vantrel {
namespace {

/// A free name beside the file; not one that a job or a list could have.
std::string freePathBeside(const std::string& path) {
    int number = 1;
    std::string aside;
    do
        aside = path + ".replaced-" + std::to_string(number++);
    while (anythingExists(aside));
    return aside;
}

} // namespace

ReplacedFile::ReplacedFile(const std::string& folder, const std::string& name)
    : path_(PathRules().join(folder, name)) {
    if (!isRegularFile(path_))
        return;
    aside_ = freePathBeside(path_);
    ready_ = static_cast<bool>(renameFile(path_, aside_));
}

bool ReplacedFile::hasArrived() const {
    return isRegularFile(path_);
}

void ReplacedFile::keep() {
    kept_ = true;
    if (!aside_.empty())
        static_cast<void>(removeFile(aside_)); // a leftover beside a complete file does no harm
}

ReplacedFile::~ReplacedFile() {
    if (kept_ || !ready_)
        return;
    if (isRegularFile(path_))
        static_cast<void>(removeFile(path_));
    if (!aside_.empty())
        static_cast<void>(renameFile(aside_, path_)); // at worst it stays under the other name
}

} // namespace vantrel
