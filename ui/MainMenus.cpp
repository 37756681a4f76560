#include "ui/MainMenus.h"

#include "app/CommandStates.h"
#include "lang/MessageTable.h"
#include "ui/MenuBarEntry.h"
#include "ui/dialogs/WxText.h"

#include <algorithm>
#include <span>

#include <wx/frame.h>
#include <wx/menu.h>

namespace vantrel {

namespace {

constexpr int entriesPerMenu = 16;
constexpr int separator = -1;

/// One line of a menu: an entry, or a separator by its index.
struct Line {
    Menu menu = Menu::mnuFile;
    int index = separator;
    const char* accelerator = "";
    wxItemKind kind = wxITEM_NORMAL;
};

struct Top {
    Menu menu;
    std::vector<Line> lines;
};

// Accelerators belong to the code, mnemonics to the texts. Keys of the lists (Del, Ctrl+A,
// Backspace, Enter) are no accelerators: they work in the lists only.
const std::vector<Top>& barTable() {
    static const std::vector<Top> table{
        {Menu::mnuFileMain,
         {{Menu::mnuFile, 0},
          {Menu::mnuFile, 1},
          {Menu::mnuFile, 2},
          {Menu::mnuFile, 3},
          {},
          {Menu::mnuFile, 5},
          {Menu::mnuFile, 6},
          {},
          {Menu::mnuEnd, 0, "Alt+F4"}}},
        {Menu::mnuDispMain,
         {{Menu::mnuDisp, 0, "", wxITEM_CHECK},
          {Menu::mnuDisp, 1, "", wxITEM_CHECK},
          {Menu::mnuDisp, 2, "", wxITEM_CHECK},
          {Menu::mnuDisp, 3, "", wxITEM_CHECK}}},
        {Menu::mnuTransMode,
         {{Menu::mnuModeHiSpeed, 0, "", wxITEM_CHECK}, {Menu::mnuModeBsc, 0, "", wxITEM_CHECK}}},
        {Menu::mnuSortMain,
         {{Menu::mnuSort, 0, "", wxITEM_CHECK},
          {Menu::mnuSort, 1, "", wxITEM_CHECK},
          {Menu::mnuSort, 2, "", wxITEM_CHECK}}},
        {Menu::mnuRefresh, {}}, // a command, not a menu
        {Menu::mnuOptMain,
         {{Menu::mnuOpt, 0},
          {},
          {Menu::mnuOpt, 2},
          {Menu::mnuOpt, 3},
          {Menu::mnuOpt, 4},
          {Menu::mnuOpt, 5},
          {},
          {Menu::mnuOpt, 7}}},
        {Menu::mnuHelpMain, {{Menu::mnuHelp, 0, "F1"}, {Menu::mnuVer, 0}}},
    };
    return table;
}

const std::vector<Line>& popUpTable() {
    static const std::vector<Line> table{{Menu::mnuRightFile, 0},
                                         {Menu::mnuRightFile, 1},
                                         {Menu::mnuRightFile, 2},
                                         {Menu::mnuRightFile, 3},
                                         {},
                                         {Menu::mnuRightRefresh, 0, "F5"}};
    return table;
}

const std::vector<Top>& popUpSubMenus() {
    static const std::vector<Top> table{
        {Menu::mnuFileDispMain,
         {{Menu::mnuFileDisp, 0, "", wxITEM_CHECK},
          {Menu::mnuFileDisp, 1, "", wxITEM_CHECK},
          {Menu::mnuFileDisp, 2, "", wxITEM_CHECK},
          {Menu::mnuFileDisp, 3, "", wxITEM_CHECK}}},
        {Menu::mnuSortIconMain,
         {{Menu::mnuSortIcon, 0, "", wxITEM_CHECK},
          {Menu::mnuSortIcon, 1, "", wxITEM_CHECK},
          {Menu::mnuSortIcon, 2, "", wxITEM_CHECK}}},
    };
    return table;
}

// A menu item needs a text from the start; the captions follow with the language.
constexpr const char* noCaptionYet = "-";

void appendLines(wxMenu& menu, const std::vector<Line>& lines) {
    for (const auto& line : lines) {
        if (line.index == separator)
            menu.AppendSeparator();
        else
            menu.Append(MainMenus::idOf({line.menu, line.index}), noCaptionYet, wxString(),
                        line.kind);
    }
}

std::vector<Line> allLines() {
    std::vector<Line> all = popUpTable();
    for (const auto* tops : {&barTable(), &popUpSubMenus()})
        for (const auto& top : *tops)
            all.insert(all.end(), top.lines.begin(), top.lines.end());
    return all;
}

} // namespace

int MainMenus::idOf(MenuItem item) {
    return wxID_HIGHEST + 1 + int(item.menu) * entriesPerMenu + item.index;
}

MainMenus::MainMenus(wxFrame& window) : window_(window), bar_(new wxMenuBar) {
    buildBar();
    buildPopUp();
    window_.SetMenuBar(bar_);
    buildCommands();
    window_.Bind(
        wxEVT_MENU,
        [this](wxCommandEvent& event) {
            const int number = event.GetId() - wxID_HIGHEST - 1;
            if (onChosen)
                onChosen({Menu(number / entriesPerMenu), number % entriesPerMenu});
        },
        wxID_HIGHEST + 1, wxID_HIGHEST + entriesPerMenu * (int(Menu::mnuSortIcon) + 1));
}

MainMenus::~MainMenus() = default;

void MainMenus::buildBar() {
    for (const auto& top : barTable()) {
        if (top.lines.empty())
            continue;
        auto* menu = new wxMenu;
        appendLines(*menu, top.lines);
        bar_->Append(menu, noCaptionYet);
        tops_.push_back({{top.menu, 0}, menu});
    }
}

/// After the window has its bar, to which these are added.
void MainMenus::buildCommands() {
    const auto place = std::ranges::find(barTable(), Menu::mnuRefresh, &Top::menu);
    refresh_ = std::make_unique<MenuBarEntry>(window_, int(place - barTable().begin()), [this] {
        // As an entry of a menu is chosen, so that what refuses those refuses this one.
        wxCommandEvent event(wxEVT_MENU, idOf({Menu::mnuRefresh, 0}));
        event.SetEventObject(&window_);
        window_.HandleWindowEvent(event);
    });
}

void MainMenus::buildPopUp() {
    popUp_ = std::make_unique<wxMenu>();
    appendLines(*popUp_, popUpTable());
    popUp_->AppendSeparator();
    for (const auto& top : popUpSubMenus()) {
        auto* menu = new wxMenu;
        appendLines(*menu, top.lines);
        popUp_->Append(idOf({top.menu, 0}), noCaptionYet, menu);
    }
}

wxMenuItem* MainMenus::find(MenuItem item) const {
    auto* inBar = bar_->FindItem(idOf(item));
    return inBar ? inBar : popUp_->FindItem(idOf(item));
}

void MainMenus::applyCaptions(const MessageTable& messages) {
    // The toolkit takes an empty caption for a mistake.
    const auto caption = [&messages](MenuItem item) {
        const auto text = messages.getMessage(menuMessage(item).value_or(-1));
        return text.empty() ? wxString(" ") : toWx(text);
    };
    for (std::size_t index = 0; index < tops_.size(); ++index)
        bar_->SetMenuLabel(index, caption(tops_[index].item));
    refresh_->setCaption(caption({Menu::mnuRefresh, 0}));
    for (const auto& top : popUpSubMenus())
        if (auto* entry = find({top.menu, 0}))
            entry->SetItemLabel(caption({top.menu, 0}));
    for (const auto& line : allLines()) {
        if (line.index == separator)
            continue;
        wxString label = caption({line.menu, line.index});
        if (*line.accelerator)
            label << '\t' << line.accelerator;
        find({line.menu, line.index})->SetItemLabel(label);
    }
}

void MainMenus::setState(MenuItem item, bool enabled, bool checked) {
    auto* entry = find(item);
    if (!entry)
        return;
    if (entry->IsEnabled() != enabled)
        entry->Enable(enabled);
    if (entry->IsCheckable())
        entry->Check(checked);
}

void MainMenus::applyStates(const CommandStates& states) {
    const auto apply = [this](Menu menu, std::span<const CommandState> entries) {
        for (std::size_t index = 0; index < entries.size(); ++index)
            setState({menu, int(index)}, entries[index].enabled, entries[index].checked);
    };
    apply(Menu::mnuFile, states.mnuFile);
    apply(Menu::mnuRightFile, states.mnuRightFile);
    apply(Menu::mnuDisp, states.mnuDisp);
    apply(Menu::mnuFileDisp, states.mnuFileDisp);
    apply(Menu::mnuSort, states.mnuSort);
    apply(Menu::mnuSortIcon, states.mnuSortIcon);
    apply(Menu::mnuOpt, states.mnuOpt);
    apply(Menu::mnuHelp, states.mnuHelp);
    const std::pair<Menu, CommandState> single[] = {{Menu::mnuModeHiSpeed, states.mnuModeHiSpeed},
                                                    {Menu::mnuModeBsc, states.mnuModeBsc},
                                                    {Menu::mnuRightRefresh, states.mnuRightRefresh},
                                                    {Menu::mnuVer, states.mnuVer},
                                                    {Menu::mnuEnd, states.mnuEnd}};
    for (const auto& [menu, state] : single)
        setState({menu, 0}, state.enabled, state.checked);
    for (std::size_t index = 0; index < tops_.size(); ++index)
        bar_->EnableTop(index, states.unlocked);
    refresh_->enable(states.unlocked && states.mnuRefresh.enabled);
}

void MainMenus::popUp(wxWindow& owner, const wxPoint& screenPosition) {
    owner.PopupMenu(popUp_.get(), owner.ScreenToClient(screenPosition));
}

} // namespace vantrel
