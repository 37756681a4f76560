#include "ui/MainMenus.h"

#include "lang/MessageTable.h"
#include "ui/NativeControls.h"
#include "ui/look/WxText.h"

#include <algorithm>

#include <wx/frame.h>
#include <wx/menu.h>

namespace vantrel {

namespace {

constexpr int firstId = wxID_HIGHEST + 1;
constexpr int mostEntries = 1000;

// A menu item needs a text from the start; the captions follow with the language.
constexpr const char* noCaptionYet = "-";

// The toolkit takes an empty caption for a mistake.
wxString caption(const MessageTable& messages, std::int32_t message) {
    const auto text = messages.getMessage(message);
    return text.empty() ? wxString(" ") : toWx(text);
}

} // namespace

MainMenus::MainMenus(wxFrame& window, std::span<const CommandRow> table)
    : window_(window), table_(table), bar_(new wxMenuBar) {
    buildBar();
    buildPopUp();
    window_.SetMenuBar(bar_);
    buildBarEntries();
    window_.Bind(
        wxEVT_MENU, [this](wxCommandEvent& event) { chosen(event.GetId() - firstId); }, firstId,
        firstId + mostEntries);
}

MainMenus::~MainMenus() = default;

void MainMenus::append(wxMenu& menu, CommandPlace place) {
    for (const CommandRow* command : commandsAt(table_, place)) {
        if (!command) {
            menu.AppendSeparator();
            continue;
        }
        const bool isChoice = command->indicator == CommandIndicator::Everywhere;
        auto* const item = menu.Append(firstId + int(entries_.size()), noCaptionYet, wxString(),
                                       isChoice ? wxITEM_CHECK : wxITEM_NORMAL);
        entries_.push_back({command, *offerAt(*command, place), item});
    }
}

void MainMenus::buildBar() {
    for (const MenuHead& head : menuBarHeads()) {
        auto* const menu = new wxMenu;
        append(*menu, head.place);
        bar_->Append(menu, noCaptionYet);
    }
}

void MainMenus::buildPopUp() {
    popUp_ = std::make_unique<wxMenu>();
    append(*popUp_, CommandPlace::mnuRightClick);
    popUp_->AppendSeparator();
    for (const MenuHead& head : popUpHeads()) {
        auto* const menu = new wxMenu;
        append(*menu, head.place);
        popUpHeads_.push_back(popUp_->AppendSubMenu(menu, noCaptionYet));
    }
    robotPopUp_ = std::make_unique<wxMenu>();
    append(*robotPopUp_, CommandPlace::mnuRobot);
}

/// After the window has its bar, to which these are added.
void MainMenus::buildBarEntries() {
    for (const CommandRow& command : table_) {
        const auto* const offer = offerAt(command, CommandPlace::menuBar);
        if (!offer)
            continue;
        const int id = firstId + int(entries_.size());
        entries_.push_back({&command, *offer, nullptr});
        barEntries_.push_back(std::make_unique<MenuBarEntry>(window_, offer->group, [this, id] {
            // As an entry of a menu is chosen, so that what refuses those refuses this one.
            wxCommandEvent event(wxEVT_MENU, id);
            event.SetEventObject(&window_);
            window_.HandleWindowEvent(event);
        }));
    }
}

void MainMenus::chosen(int number) {
    if (std::size_t(number) >= entries_.size())
        return;
    const Entry entry = entries_.at(std::size_t(number));
    if (onChosen)
        onChosen(*entry.command, entry.offer.place);
}

int MainMenus::idOf(std::string_view name) const {
    const auto entry = std::ranges::find_if(
        entries_, [&](const Entry& known) { return known.offer.name == name; });
    return entry == entries_.end() ? int(wxID_NONE) : firstId + int(entry - entries_.begin());
}

wxMenuItem* MainMenus::find(std::string_view name) const {
    const int id = idOf(name);
    return id == wxID_NONE ? nullptr : entries_[std::size_t(id - firstId)].item;
}

void MainMenus::applyCaptions(const MessageTable& messages) {
    auto barEntry = barEntries_.begin();
    for (const auto& [command, offer, item] : entries_) {
        wxString label = caption(messages, command->caption);
        if (!item) {
            (*barEntry++)->setCaption(label);
            continue;
        }
        if (!command->key.empty())
            label << '\t' << toWx(std::string(command->key));
        item->SetItemLabel(label);
    }
    for (std::size_t index = 0; index < menuBarHeads().size(); ++index)
        bar_->SetMenuLabel(index, caption(messages, menuBarHeads()[index].caption));
    for (std::size_t index = 0; index < popUpHeads_.size(); ++index)
        popUpHeads_[index]->SetItemLabel(caption(messages, popUpHeads()[index].caption));
}

void MainMenus::applyStates(const CommandInput& input) {
    auto barEntry = barEntries_.begin();
    for (const auto& [command, offer, item] : entries_) {
        const CommandState state = commandState(*command, offer.place, input);
        if (!item) {
            (*barEntry++)->enable(state.enabled);
            continue;
        }
        if (item->IsEnabled() != state.enabled)
            item->Enable(state.enabled);
        if (item->IsCheckable())
            item->Check(state.checked);
    }
    for (std::size_t index = 0; index < menuBarHeads().size(); ++index)
        bar_->EnableTop(index, !input.locked);
}

void MainMenus::popUp(CommandPlace place, wxWindow& owner, const wxPoint& screenPosition) {
    const auto& menu = place == CommandPlace::mnuRobot ? robotPopUp_ : popUp_;
    owner.PopupMenu(menu.get(), owner.ScreenToClient(screenPosition));
}

} // namespace vantrel
