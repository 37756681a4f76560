#include "files/ControllerPeek.h"

#include "base/ApplicationState.h"
#include "base/PathRules.h"
#include "files/AmbiguousNames.h"
#include "files/CommandScopes.h"
#include "files/ControllerPlace.h"
#include "files/TransferReports.h"
#include "files/ViewerText.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "link/Snappy.h"
#include "platform/Files.h"

#include <utility>
#include <vector>

namespace vantrel {
namespace {

/// An empty folder for the session to fetch into. It goes with whatever is in it then, and the
/// session works in its own folder again.
class PeekFolder {
  public:
    PeekFolder(Snappy& session, std::string path)
        : session_(session), path_(std::move(path)), before_(session.path) {
        session_.path = PathRules().withSeparator(path_);
    }
    ~PeekFolder() {
        session_.path = before_;
        // What cannot be removed is the system's to clear away, as everything in its place.
        std::vector<std::string> names;
        (void)visitNames(path_, [&names](std::string_view name) { names.emplace_back(name); });
        for (const std::string& name : names)
            (void)removeFile(PathRules().join(path_, name));
        (void)removeFolder(path_);
    }
    PeekFolder(const PeekFolder&) = delete;
    PeekFolder& operator=(const PeekFolder&) = delete;

  private:
    Snappy& session_;
    std::string path_, before_;
};

} // namespace

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
    const PeekFolder folder(with.session, *path);
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
