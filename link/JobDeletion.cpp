#include "link/JobDeletion.h"

#include "base/TextCase.h"
#include "link/LinkConnection.h"
#include "link/SessionProgress.h"
#include "link/Zurolink.h"

namespace vantrel {

bool JobDeletion::remove(const std::string& name, const std::function<bool()>& mayBegin) {
    progress_.show(progress_.deleting(name));
    const auto libraryName = link_.libraryFileName(normalisedJobName(name), "BscSelectJob");
    return libraryName && removeOver(*libraryName, mayBegin);
}

bool JobDeletion::removeOver(const std::string& libraryName,
                             const std::function<bool()>& mayBegin) {
    const std::int16_t handle = link_.connect();
    if (handle < 0)
        return false;
    if (mayBegin && !mayBegin()) {
        link_.disconnect(handle);
        return false;
    }
    const std::int16_t selected = link_.library().BscSelectJob(handle, libraryName.c_str());
    if (selected != 0)
        return link_.finish(handle, selected, "BscSelectJob");
    const std::int16_t deleted = link_.library().BscDeleteJob(handle);
    link_.finish(handle, deleted, "BscDeleteJob");
    return deleted == 0;
}

} // namespace vantrel
