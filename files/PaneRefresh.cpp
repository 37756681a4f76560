#include "files/PaneRefresh.h"

#include "files/Panes.h"
#include "files/TransferReports.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "link/Snappy.h"

namespace vantrel {

PaneRefresh::PaneRefresh(const TransferServices& services)
    : with_(services), selectedOnPC_(with_.panes.selectedNames(ActiveSide::PC)),
      selectedOnController_(with_.panes.selectedNames(ActiveSide::Controller)) {}

bool PaneRefresh::refreshPC() const {
    if (!with_.panes.scanPC(with_.state.PCPath)) {
        TransferReports(with_).tell(folderNotRead);
        return false;
    }
    return fill(ActiveSide::PC, selectedOnPC_);
}

/// The old list stays when the directory cannot be read, and the operator is told so even when the
/// command has reported a failure already: what is shown may be out of date.
bool PaneRefresh::refreshController() const {
    if (!with_.panes.readController()) {
        TransferReports(with_).controllerNotRead();
        return false;
    }
    return fill(ActiveSide::Controller, selectedOnController_);
}

void PaneRefresh::refreshTouched(const CommandOutcome& outcome,
                                 const std::function<void()>& controllerRead) const {
    if (!(outcome.controllerTouched && refreshController()))
        dropFromController(outcome.goneFromController);
    if (controllerRead)
        controllerRead();
    if (outcome.pcTouched)
        refreshPC();
}

/// The old list stays where the new one could not be read, but not with jobs that are known to be
/// gone.
void PaneRefresh::dropFromController(const std::vector<std::string>& names) const {
    if (names.empty())
        return;
    with_.panes.dropFromController(names);
    fill(ActiveSide::Controller, selectedOnController_);
}

bool PaneRefresh::fill(ActiveSide side, const std::vector<std::string>& selected) const {
    const bool isFilled = with_.panes.fill(side);
    if (!isFilled)
        TransferReports(with_).tell(listNotShown);
    with_.panes.selectNames(side, selected);
    return isFilled;
}

} // namespace vantrel
