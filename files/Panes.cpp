#include "files/Panes.h"

#include "base/Text.h"
#include "files/ControllerModels.h"
#include "files/FolderScan.h"
#include "files/PaneWindow.h"
#include "files/TransferTable.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "link/Snappy.h"
#include "platform/Files.h"

#include <optional>
#include <unordered_set>
#include <utility>

namespace vantrel {

namespace {

/// The entries of `from`; the sort state of `to` stays, since it belongs to the pane.
void takeEntries(FolderListing& to, FolderListing&& from) {
    to.isRead = true;
    to.Path = std::move(from.Path);
    to.Count = from.Count;
    to.Names = std::move(from.Names);
    to.Sizes = std::move(from.Sizes);
    to.Dates = std::move(from.Dates);
}

bool hasSameEntries(const FolderListing& one, const FolderListing& other) {
    return one.Names == other.Names && one.Sizes == other.Sizes && one.Dates == other.Dates;
}

const ControllerModel& modelOf(ActiveSide side, const ApplicationState& state) {
    return side == ActiveSide::PC ? pcModel() : controllerModel(state.Controler);
}

} // namespace

Panes::Panes(ApplicationState& state, Snappy& session, const TransferTable& table,
             const MessageTable& messages, PaneWindow& window)
    : state_(state), session_(session), table_(table), messages_(messages), window_(window),
      pcRows_(state.PCListing), controllerRows_(state.CtrlListing) {}

bool Panes::scanPC(const std::string& folder) {
    // Asked for before the names are: what comes meanwhile is seen as a change.
    const std::int64_t changedAt = namesChangedAt(folder);
    Result<FolderListing> scanned = lookAt(folder);
    if (scanned && session_.settleInterruptedFetches(folder, scanned->Names))
        scanned = lookAt(folder);
    if (!scanned)
        return false;
    takeEntries(state_.PCListing, std::move(*scanned));
    pcRows_.clear();
    state_.PCPath = folder;
    session_.path = folder;
    pcNamesChangedAt_ = changedAt;
    return true;
}

bool Panes::hasPCChanged() const {
    return namesChangedAt(state_.PCPath) != pcNamesChangedAt_;
}

bool Panes::nameFilterHides(ActiveSide side, const std::string& name) const {
    return asciiUpper(name).find(asciiUpper(nameFilter_[std::size_t(side)])) == std::string::npos;
}

bool Panes::rescanPC() {
    const std::int64_t changedAt = namesChangedAt(state_.PCPath);
    Result<FolderListing> scanned = scanFolder(state_.PCPath);
    if (scanned && session_.settleInterruptedFetches(state_.PCPath, scanned->Names))
        scanned = scanFolder(state_.PCPath);
    if (!scanned)
        return false;
    pcNamesChangedAt_ = changedAt;
    if (hasSameEntries(*scanned, state_.PCListing))
        return false;
    const Choice kept = choice(ActiveSide::PC);
    takeEntries(state_.PCListing, std::move(*scanned));
    showChanged(ActiveSide::PC, kept);
    return true;
}

void Panes::filterNames(ActiveSide side, std::string text) {
    const Choice kept = choice(side);
    setNameFilter(side, std::move(text));
    showChanged(side, kept);
}

Panes::Choice Panes::choice(ActiveSide side) const {
    Choice choice{selectedNames(side), {}};
    if (const auto row = window_.list(side).selectedRow())
        choice.focused.push_back(rows(side).name(*row));
    return choice;
}

/// Without a yield, and so without another order than the one that is shown.
void Panes::showChanged(ActiveSide side, const Choice& kept) {
    fillRows(side);
    changeableRows(side).sort();
    const auto focused = rowsOf(side, kept.focused);
    window_.list(side).update(rows(side), rowsOf(side, kept.selected),
                              focused.empty() ? std::nullopt : std::optional(focused.front()));
    showCount(side);
}

Result<FolderListing> Panes::lookAt(const std::string& folder) {
    const BusyPointer busy(window_);
    return scanFolder(folder);
}

bool Panes::readController() {
    const BusyPointer busy(window_);
    session_.MonitorTitle = messages_.getMessage(message::title);
    std::vector<std::string> names;
    if (!session_.ReadDirectory(names))
        return false;
    FolderListing read;
    for (std::string& name : names)
        read.append(std::move(name), 0, DateText());
    for (std::string& name : table_.fixedNames(controllerModel(state_.Controler).bit))
        read.append(std::move(name), 0, DateText());
    takeEntries(state_.CtrlListing, std::move(read));
    controllerRows_.clear();
    return true;
}

void Panes::dropFromController(const std::vector<std::string>& names) {
    const std::unordered_set<std::string_view> gone(names.begin(), names.end());
    FolderListing kept;
    for (std::string& name : state_.CtrlListing.Names)
        if (!gone.contains(name))
            kept.append(std::move(name), 0, DateText());
    kept.Path = std::move(state_.CtrlListing.Path);
    takeEntries(state_.CtrlListing, std::move(kept));
    controllerRows_.clear();
}

void Panes::emptyController() {
    state_.CtrlListing.clear();
    state_.CtrlListing.Path.clear();
    controllerRows_.clear();
}

void Panes::showEmptyController() {
    emptyController();
    fill(ActiveSide::Controller);
}

bool Panes::fill(ActiveSide side) {
    const BusyPointer busy(window_);
    const bool isWhole = fillRows(side);
    sort(side);
    showCount(side);
    return isWhole;
}

bool Panes::fillRows(ActiveSide side) {
    const ControllerModel& model = modelOf(side, state_);
    return changeableRows(side).fill(
        [&model, index = window_.filterIndex(side)](std::string_view upperName) {
            return matchesFilter(upperName, index, model);
        },
        nameFilter_[std::size_t(side)]);
}

void Panes::setNameFilter(ActiveSide side, std::string text) {
    nameFilter_[std::size_t(side)] = std::move(text);
}

/// Events that the yield lets in may fill the pane anew: what is shown after it are the rows as
/// they are then.
void Panes::sort(ActiveSide side) {
    changeableRows(side).sort();
    if (listing(side).SortType != sort_column::size)
        window_.yield();
    window_.list(side).show(rows(side));
}

void Panes::showCount(ActiveSide side) {
    const auto start = side == ActiveSide::PC ? message::countPC : message::countController;
    const std::string selection = side == ActiveSide::PC ? selectionText() : std::string();
    window_.setStatus(side, messages_.getMessage(start) + std::to_string(rows(side).size()) +
                                messages_.getMessage(message::countEnd) + selection);
    isSelectionShown_ = !selection.empty();
}

void Panes::showSelection() {
    if (isSelectionShown_ || window_.list(ActiveSide::PC).selectedCount() > 1)
        showCount(ActiveSide::PC);
}

std::string Panes::selectionText() const {
    const PaneList& list = window_.list(ActiveSide::PC);
    const std::size_t count = list.selectedCount();
    if (count < 2)
        return {};
    std::uint64_t bytes = 0;
    for (const std::size_t row : list.selectedRows())
        bytes += rows(ActiveSide::PC).bytes(row);
    return messages_.getMessageWithInsertion(message::selectedItems, std::to_string(count),
                                             std::to_string(bytes));
}

void Panes::fillFilterChoices() {
    for (const ActiveSide side : {ActiveSide::PC, ActiveSide::Controller})
        window_.setFilterChoices(side, filterChoices(modelOf(side, state_)));
}

FolderListing& Panes::listing(ActiveSide side) {
    return side == ActiveSide::PC ? state_.PCListing : state_.CtrlListing;
}

PaneRows& Panes::changeableRows(ActiveSide side) {
    return side == ActiveSide::PC ? pcRows_ : controllerRows_;
}

const PaneRows& Panes::rows(ActiveSide side) const {
    return side == ActiveSide::PC ? pcRows_ : controllerRows_;
}

std::vector<std::string> Panes::selectedNames(ActiveSide side) const {
    std::vector<std::string> names;
    for (const std::size_t row : window_.list(side).selectedRows())
        if (row < rows(side).size())
            names.push_back(rows(side).name(row));
    return names;
}

void Panes::selectNames(ActiveSide side, const std::vector<std::string>& names) {
    const auto found = rowsOf(side, names);
    if (!found.empty())
        window_.list(side).select(found);
}

void Panes::selectOnly(ActiveSide side, const std::vector<std::string>& names) {
    window_.list(side).select(rowsOf(side, names));
}

std::vector<std::size_t> Panes::rowsOf(ActiveSide side,
                                       const std::vector<std::string>& names) const {
    const std::unordered_set<std::string_view> wanted(names.begin(), names.end());
    std::vector<std::size_t> found;
    for (std::size_t row = 0; row < rows(side).size(); ++row)
        if (wanted.contains(rows(side).name(row)))
            found.push_back(row);
    return found;
}

} // namespace vantrel
