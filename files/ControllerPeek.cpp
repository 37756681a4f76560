#include "files/ControllerPeek.h"

#include "base/ApplicationState.h"
#include "base/PathRules.h"
#include "files/AmbiguousNames.h"
#include "files/CommandScopes.h"
#include "files/ControllerPlace.h"
#include "files/FetchFolder.h"
#include "files/TransferReports.h"
#include "files/ViewerText.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "link/Snappy.h"
#include "platform/Files.h"

#include <utility>
#include <vector>

namespace vantrel {

std::optional<std::string> peekAtController(const TransferServices& with, const std::string& name) {
    // The other one of that name could come.
    if (withoutAmbiguousNames(with, {{name, false}}).empty())
        return std::nullopt;
    const TransferReports reports(with);
    const auto notShown = [&](const std::string& reason) {
        reports.aboutFile(name, message::notViewed, reason);
        return std::nullopt;
    };
    const auto path = createTemporaryFolder();
    if (!path)
        return notShown(path.reason());
    const FetchFolder folder(with.session, *path);
    CommandProgress progress(with, with.messages.getMessage(message::transferTitle),
                             with.messages.resourceMessage(message::resource::transferring),
                             fromController(with.state));
    with.session.DisplayMonitor = false;
    if (!progress.next(name, 0, 1))
        return std::nullopt;
    if (!with.session.JobUpLoad(name, false)) {
        if (!operatorKnows(with.session))
            reports.transferFailed(name);
        return std::nullopt;
    }
    auto text = readViewerText(PathRules().join(*path, name), with.state.Headder);
    if (!text)
        return notShown(text.reason());
    return std::move(*text);
}

} // namespace vantrel
