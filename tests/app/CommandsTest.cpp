#include "app/commands/Commands.h"

#include "app/commands/CommandRunner.h"
#include "support/NamedCommands.h"

#include <set>
#include <string>
#include <vector>

#include <gmock/gmock.h>

namespace vantrel::tests {
namespace {

using enum CommandPlace;
using testing::ElementsAre;

constexpr CommandInput pcInput{};
constexpr CommandInput controllerInput{.active = ActiveSide::Controller};

CommandInput onPC(std::optional<FileKind> kind) {
    CommandInput input = pcInput;
    input.selectedKind = kind;
    return input;
}

CommandInput onController(int filter, bool jbr) {
    CommandInput input = controllerInput;
    input.controllerFilter = filter;
    input.JBR = jbr;
    return input;
}

std::vector<const CommandRow*> offered(CommandPlace place) {
    auto commands = commandsAt(commandTable(), place);
    std::erase(commands, nullptr);
    return commands;
}

/// By their places from 0.
std::vector<int> checked(CommandPlace place, const CommandInput& input) {
    std::vector<int> indexes;
    const auto commands = offered(place);
    for (std::size_t index = 0; index < commands.size(); ++index)
        if (commandState(*commands[index], place, input).checked)
            indexes.push_back(int(index));
    return indexes;
}

std::string enabled(CommandPlace place, const CommandInput& input) {
    std::string states;
    for (const CommandRow* command : offered(place))
        states += commandState(*command, place, input).enabled ? '+' : '-';
    return states;
}

std::vector<std::string> pressedDisplayButtons(const CommandInput& input) {
    std::vector<std::string> keys;
    for (const char* key : {"DispBig", "DispSmall", "DispList", "DispDetail"})
        if (stateOf("tlbMain " + std::string(key), input).checked)
            keys.emplace_back(key);
    return keys;
}

struct ViewCase {
    const char* name;
    ActiveSide side;
    std::int16_t type;
    std::vector<int> checkedEntries;
    std::vector<std::string> pressed;
};

class ViewStatesTest : public testing::TestWithParam<ViewCase> {};

TEST_P(ViewStatesTest, FollowTheActivePane) {
    const ViewCase& view = GetParam();
    CommandInput input;
    input.active = view.side;
    input.pcDispType = view.side == ActiveSide::PC ? view.type : std::int16_t{0};
    input.ctrlDispType = view.side == ActiveSide::PC ? std::int16_t{0} : view.type;
    EXPECT_EQ(checked(mnuDispMain, input), view.checkedEntries);
    EXPECT_EQ(checked(mnuFileDispMain, input), view.checkedEntries);
    EXPECT_EQ(pressedDisplayButtons(input), view.pressed);
}

INSTANTIATE_TEST_SUITE_P(
    , ViewStatesTest,
    testing::Values(ViewCase{"PCBig", ActiveSide::PC, 0, {0}, {"DispBig"}},
                    ViewCase{"PCSmall", ActiveSide::PC, 1, {1}, {"DispSmall"}},
                    ViewCase{"PCList", ActiveSide::PC, 2, {2}, {"DispList"}},
                    ViewCase{"PCDetails", ActiveSide::PC, 3, {3}, {"DispDetail"}},
                    ViewCase{"PCFour", ActiveSide::PC, 4, {}, {}},
                    ViewCase{"PCNegative", ActiveSide::PC, -1, {}, {}},
                    ViewCase{"ControllerBig", ActiveSide::Controller, 0, {0}, {"DispBig"}},
                    ViewCase{"ControllerSmall", ActiveSide::Controller, 1, {1}, {"DispSmall"}},
                    ViewCase{"ControllerList", ActiveSide::Controller, 2, {2}, {"DispList"}},
                    ViewCase{
                        "ControllerDetailsPressesNothing", ActiveSide::Controller, 3, {3}, {}}),
    [](const auto& test) { return test.param.name; });

struct SortCase {
    const char* name;
    std::int16_t type;
    std::vector<int> checkedEntries;
};

class SortStatesTest : public testing::TestWithParam<SortCase> {};

TEST_P(SortStatesTest, CheckTheActivePanesOrder) {
    CommandInput pc = pcInput;
    pc.pcSortType = GetParam().type;
    CommandInput controller = controllerInput;
    controller.ctrlSortType = GetParam().type;
    for (const CommandInput& input : {pc, controller}) {
        EXPECT_EQ(checked(mnuSortMain, input), GetParam().checkedEntries);
        EXPECT_EQ(checked(mnuSortIconMain, input), GetParam().checkedEntries);
    }
}

INSTANTIATE_TEST_SUITE_P(, SortStatesTest,
                         testing::Values(SortCase{"Name", 0, {0}}, SortCase{"Size", 1, {1}},
                                         SortCase{"Date", 2, {2}}, SortCase{"Other", 3, {}},
                                         SortCase{"Negative", -1, {}}),
                         [](const auto& test) { return test.param.name; });

TEST(CommandsTest, TheOtherPanesOrderIsNotShown) {
    CommandInput input = pcInput;
    input.ctrlSortType = 2;
    EXPECT_EQ(checked(mnuSortMain, input), (std::vector<int>{0}));
}

TEST(CommandsTest, ThePCOffersDetailsViewerAndAllOrders) {
    EXPECT_TRUE(stateOf("tlbMain DispDetail", pcInput).enabled);
    EXPECT_TRUE(stateOf("tlbMain FileDisp", pcInput).enabled);
    EXPECT_TRUE(stateOf("mnuFile(5)", pcInput).enabled);
    EXPECT_EQ(enabled(mnuDispMain, pcInput), "++++");
    EXPECT_EQ(enabled(mnuFileDispMain, pcInput), "++++");
    EXPECT_EQ(enabled(mnuSortMain, pcInput), "+++");
    EXPECT_EQ(enabled(mnuSortIconMain, pcInput), "+++");
}

TEST(CommandsTest, TheControllerOffersNoDetailsNoViewerAndNamesOnly) {
    EXPECT_FALSE(stateOf("tlbMain DispDetail", controllerInput).enabled);
    EXPECT_FALSE(stateOf("tlbMain FileDisp", controllerInput).enabled);
    EXPECT_FALSE(stateOf("mnuFile(5)", controllerInput).enabled);
    EXPECT_EQ(enabled(mnuDispMain, controllerInput), "+++-");
    EXPECT_EQ(enabled(mnuFileDispMain, controllerInput), "+++-");
    EXPECT_EQ(enabled(mnuSortMain, controllerInput), "+--");
    EXPECT_EQ(enabled(mnuSortIconMain, controllerInput), "+--");
}

/// "cmd" in upper case where copy, move and delete are on.
struct FileCase {
    const char* name;
    CommandInput input;
    const char* fileMenu;
    const char* popUpMenu;
    const char* buttons;
};

/// Of copy, move and delete, which open each of these places.
std::string fileStates(CommandPlace place, const CommandInput& input) {
    std::string states = enabled(place, input).substr(0, 3);
    for (std::size_t index = 0; index < states.size(); ++index)
        states[index] = (states[index] == '+' ? "CMD" : "cmd")[index];
    return states;
}

class FileStatesTest : public testing::TestWithParam<FileCase> {};

TEST_P(FileStatesTest, OfferWhatApplies) {
    const CommandInput& input = GetParam().input;
    EXPECT_EQ(fileStates(mnuFileMain, input), GetParam().fileMenu);
    EXPECT_EQ(fileStates(mnuRightClick, input), GetParam().popUpMenu);
    EXPECT_EQ(fileStates(tlbMain, input), GetParam().buttons);
    EXPECT_TRUE(stateOf("mnuFile(3)", input).enabled);
    EXPECT_TRUE(stateOf("tlbMain AllSelect", input).enabled);
}

INSTANTIATE_TEST_SUITE_P(
    , FileStatesTest,
    testing::Values(FileCase{"JobKindOnPC", onPC(FileKind::JobFile), "CMD", "CMD", "CMD"},
                    FileCase{"PlainFileOnPC", onPC(FileKind::PlainFile), "cmD", "cmD", "cmD"},
                    FileCase{"NothingOnPC", onPC({}), "cmD", "cmD", "cmD"},
                    FileCase{"FolderOnPC", onPC(FileKind::Folder), "cmD", "cmd", "cmd"},
                    FileCase{"JobsOnController", onController(0, false), "CMD", "CMD", "CMD"},
                    FileCase{"RelatedJobsOnController", onController(0, true), "CmD", "CmD", "CmD"},
                    FileCase{"DataOnController", onController(1, false), "Cmd", "Cmd", "Cmd"},
                    FileCase{"DataWithJBR", onController(1, true), "Cmd", "Cmd", "Cmd"},
                    FileCase{"NoFilterOnController", onController(-1, false), "Cmd", "Cmd", "Cmd"}),
    [](const auto& test) { return test.param.name; });

TEST(CommandsTest, ThePCsItemDoesNotDecideForTheController) {
    CommandInput input = controllerInput;
    input.selectedKind = FileKind::Folder;
    EXPECT_EQ(fileStates(mnuRightClick, input), "CMD");
}

TEST(CommandsTest, TheControllersToolBarOffersWhatTheControllerDoes) {
    CommandInput input = pcInput;
    input.JBR = true;
    EXPECT_EQ(enabled(tlbFile, input), "+-++");
    input.controllerFilter = 1;
    EXPECT_EQ(enabled(tlbFile, input), "+--+");
}

TEST(CommandsTest, ModesAreChecked) {
    CommandInput input;
    EXPECT_EQ(stateOf("mnuModeBsc", input), (CommandState{true, true}));
    EXPECT_EQ(stateOf("mnuModeHiSpeed", input), (CommandState{true, false}));
    input.mode = TransferMode::HispeedLink;
    EXPECT_EQ(stateOf("tlbMain modeBsc", input), (CommandState{true, false}));
    EXPECT_EQ(stateOf("tlbMain modeHiSpeed", input), (CommandState{true, true}));
}

TEST(CommandsTest, AnyModeButTheHighSpeedLinkIsShownAsBsc) {
    for (const int mode : {0, 2, 15, 17, -1, -32768, 32767}) {
        CommandInput input;
        input.mode = static_cast<TransferMode>(mode);
        for (const char* bsc : {"mnuModeBsc", "tlbMain modeBsc"})
            EXPECT_TRUE(stateOf(bsc, input).checked) << bsc << mode;
        for (const char* hispeed : {"mnuModeHiSpeed", "tlbMain modeHiSpeed"})
            EXPECT_FALSE(stateOf(hispeed, input).checked) << hispeed << mode;
    }
}

TEST(CommandsTest, HighSpeedIsOffForAModelWithoutIt) {
    CommandInput input;
    input.hispeedAvailable = false;
    for (const char* hispeed : {"mnuModeHiSpeed", "tlbMain modeHiSpeed"})
        EXPECT_FALSE(stateOf(hispeed, input).enabled) << hispeed;
    for (const char* bsc : {"mnuModeBsc", "tlbMain modeBsc"})
        EXPECT_TRUE(stateOf(bsc, input).enabled) << bsc;
}

TEST(CommandsTest, TheActivePanesButtonIsPressed) {
    EXPECT_TRUE(stateOf("tlbPCButton PCButton", pcInput).checked);
    EXPECT_FALSE(stateOf("tlbCtrlButton CTRLButton", pcInput).checked);
    EXPECT_FALSE(stateOf("tlbPCButton PCButton", controllerInput).checked);
    EXPECT_TRUE(stateOf("tlbCtrlButton CTRLButton", controllerInput).checked);
}

TEST(CommandsTest, WhileTheViewerIsShownItPrintsAndTheControllerCannotBecomeActive) {
    CommandInput input;
    for (const char* print : {"mnuFile(6)", "tlbPC Print"})
        EXPECT_FALSE(stateOf(print, input).enabled) << print;
    EXPECT_FALSE(stateOf("tlbMain FileDisp", input).checked);
    input.viewerShown = true;
    for (const char* print : {"mnuFile(6)", "tlbPC Print"})
        EXPECT_TRUE(stateOf(print, input).enabled) << print;
    EXPECT_TRUE(stateOf("tlbMain FileDisp", input).checked);
    EXPECT_FALSE(stateOf("mnuFile(5)", input).checked) << "no entry to be checked";
    EXPECT_FALSE(stateOf("tlbCtrlButton CTRLButton", input).enabled);
    EXPECT_EQ(enabled(tlbFile, input), "----");
}

TEST(CommandsTest, LockedNothingIsOffered) {
    CommandInput input = onPC(FileKind::JobFile);
    input.locked = true;
    for (const CommandRow& command : commandTable())
        for (const CommandOffer& offer : command.offers)
            EXPECT_FALSE(commandState(command, offer.place, input).enabled)
                << offer.name << command.icon;
}

TEST(CommandsTest, LockingKeepsTheCheckMarks) {
    CommandInput input;
    input.locked = true;
    EXPECT_TRUE(stateOf("mnuModeBsc", input).checked);
    EXPECT_EQ(checked(mnuDispMain, input), (std::vector<int>{1}));
}

TEST(CommandsTest, WhatNothingRulesIsAlwaysOffered) {
    for (const CommandInput& input : {pcInput, controllerInput}) {
        EXPECT_EQ(enabled(mnuOptMain, input), "++++++");
        EXPECT_EQ(enabled(mnuHelpMain, input), "++");
        for (const char* name : {"mnuRefresh", "mnuRightRefresh", "mnuEnd", "tlbMain Refresh",
                                 "tlbPC UpFolder", "tlbPCButton PCButton"})
            EXPECT_TRUE(stateOf(name, input).enabled) << name;
    }
}

/// The names of a place's entries or the keys of its buttons, "-" for a line.
std::vector<std::string> contents(CommandPlace place) {
    std::vector<std::string> names;
    for (const CommandRow* command : commandsAt(commandTable(), place)) {
        const bool isButton = command && isToolBar(place);
        names.emplace_back(!command   ? "-"
                           : isButton ? command->icon
                                      : offerAt(*command, place)->name);
    }
    return names;
}

TEST(CommandsTest, EachMenuHasItsEntriesInOrder) {
    EXPECT_THAT(contents(mnuFileMain),
                ElementsAre("mnuFile(0)", "mnuFile(1)", "mnuFile(2)", "mnuFile(3)", "-",
                            "mnuFile(5)", "mnuFile(6)", "-", "mnuEnd"));
    EXPECT_THAT(contents(mnuDispMain),
                ElementsAre("mnuDisp(0)", "mnuDisp(1)", "mnuDisp(2)", "mnuDisp(3)"));
    EXPECT_THAT(contents(mnuTransMode), ElementsAre("mnuModeHiSpeed", "mnuModeBsc"));
    EXPECT_THAT(contents(mnuSortMain), ElementsAre("mnuSort(0)", "mnuSort(1)", "mnuSort(2)"));
    EXPECT_THAT(contents(menuBar), ElementsAre("mnuRefresh"));
    EXPECT_THAT(contents(mnuOptMain), ElementsAre("mnuOpt(0)", "-", "mnuOpt(2)", "mnuOpt(3)",
                                                  "mnuOpt(4)", "mnuOpt(5)", "-", "mnuOpt(7)"));
    EXPECT_THAT(contents(mnuHelpMain), ElementsAre("mnuHelp(0)", "mnuVer"));
    EXPECT_THAT(contents(mnuRobot), ElementsAre("mnuRobot(0)", "mnuRobot(1)"));
    EXPECT_THAT(contents(mnuToolsMain),
                ElementsAre("mnuTools(0)", "-", "mnuTools(1)", "mnuTools(2)", "mnuTools(3)", "-",
                            "mnuNewFolder", "mnuRename", "mnuViewOnController", "mnuLineNumbers",
                            "-", "mnuGoToFolder", "mnuBack", "mnuForward", "-", "mnuQuickFilter",
                            "mnuOtherPane"));
    EXPECT_THAT(contents(mnuRightTools),
                ElementsAre("mnuRightNewFolder", "mnuRightRename", "mnuRightViewOnController", "-",
                            "mnuRightSaveSelection", "-", "mnuRightQuickFilter"));
    EXPECT_THAT(contents(mnuRightClick),
                ElementsAre("mnuRightFile(0)", "mnuRightFile(1)", "mnuRightFile(2)",
                            "mnuRightFile(3)", "-", "mnuRightRefresh"));
    EXPECT_THAT(contents(mnuFileDispMain), ElementsAre("mnuFileDisp(0)", "mnuFileDisp(1)",
                                                       "mnuFileDisp(2)", "mnuFileDisp(3)"));
    EXPECT_THAT(contents(mnuSortIconMain),
                ElementsAre("mnuSortIcon(0)", "mnuSortIcon(1)", "mnuSortIcon(2)"));
}

TEST(CommandsTest, EachToolBarHasItsButtonsInOrder) {
    EXPECT_THAT(contents(tlbMain),
                ElementsAre("FileCopy", "FileMove", "FileDelete", "AllSelect", "Refresh", "-",
                            "modeHiSpeed", "modeBsc", "-", "DispBig", "DispSmall", "DispList",
                            "DispDetail", "-", "FileDisp"));
    EXPECT_THAT(contents(tlbPC), ElementsAre("UpFolder", "Print"));
    EXPECT_THAT(contents(tlbFile), ElementsAre("FileCopy", "FileMove", "FileDelete", "AllSelect"));
    EXPECT_THAT(contents(tlbPCButton), ElementsAre("PCButton"));
    EXPECT_THAT(contents(tlbCtrlButton), ElementsAre("CTRLButton"));
}

std::vector<std::int32_t> captions(CommandPlace place) {
    std::vector<std::int32_t> numbers;
    for (const CommandRow* command : offered(place))
        numbers.push_back(command->caption);
    return numbers;
}

TEST(CommandsTest, CaptionsFollowTheMenuBarInItsOrder) {
    std::vector<std::int32_t> bar;
    for (const MenuHead& head : menuBarHeads()) {
        bar.push_back(head.caption);
        for (const auto number : captions(head.place))
            bar.push_back(number);
    }
    EXPECT_THAT(bar, ElementsAre(101, 102, 103, 104, 105, 106, 107, 108, 109, 110, 111, 112, 113,
                                 130, 131, 132, 114, 115, 116, 117, 119, 120, 121, 122, 123, 124,
                                 125, 126, 128, 129, 411, 412, 6491, 6509, 6548, 440, 441, 447, 462,
                                 442, 443, 444, 445, 446));
    EXPECT_THAT(captions(menuBar), ElementsAre(118));
}

TEST(CommandsTest, ThePopUpMenuRepeatsTheMenuBarsTexts) {
    EXPECT_THAT(captions(mnuRightClick), ElementsAre(102, 103, 104, 105, 118));
    EXPECT_EQ(captions(mnuFileDispMain), captions(mnuDispMain));
    EXPECT_EQ(captions(mnuSortIconMain), captions(mnuSortMain));
    ASSERT_EQ(popUpHeads().size(), 3U);
    EXPECT_EQ(popUpHeads()[0].caption, 109);
    EXPECT_EQ(popUpHeads()[1].caption, 114);
    EXPECT_EQ(popUpHeads()[2].caption, 411) << "what goes beyond the others is the last";
}

TEST(CommandsTest, EachButtonHasItsTip) {
    std::set<std::pair<std::string, std::int32_t>> tips;
    for (const CommandRow& command : commandTable())
        if (!command.icon.empty())
            tips.emplace(command.icon, command.tip);
    EXPECT_EQ(tips, (std::set<std::pair<std::string, std::int32_t>>{{"FileCopy", 140},
                                                                    {"FileMove", 141},
                                                                    {"FileDelete", 142},
                                                                    {"AllSelect", 143},
                                                                    {"Refresh", 145},
                                                                    {"modeHiSpeed", 190},
                                                                    {"modeBsc", 191},
                                                                    {"DispBig", 146},
                                                                    {"DispSmall", 147},
                                                                    {"DispList", 148},
                                                                    {"DispDetail", 149},
                                                                    {"FileDisp", 150},
                                                                    {"UpFolder", 151},
                                                                    {"Print", 152},
                                                                    {"PCButton", 214},
                                                                    {"CTRLButton", 215}}));
}

TEST(CommandsTest, EachRowIsWhole) {
    for (const CommandRow& command : commandTable()) {
        ASSERT_FALSE(command.offers.empty());
        EXPECT_TRUE(command.run);
        EXPECT_EQ(command.indicator != CommandIndicator::None, command.isInForce != nullptr);
        for (const CommandOffer& offer : command.offers) {
            const bool isButton = isToolBar(offer.place);
            const auto name = isButton ? command.icon : offer.name;
            EXPECT_NE(name.empty(), offer.place != stsFileInf) << command.caption;
            EXPECT_NE(isButton ? command.tip : command.caption, 0) << offer.name << command.icon;
        }
    }
}

TEST(CommandsTest, EachEntryHasOneName) {
    std::set<std::string> names;
    for (const CommandRow& command : commandTable())
        for (const CommandOffer& offer : command.offers) {
            const bool isNew = offer.name.empty() || names.emplace(offer.name).second;
            EXPECT_TRUE(isNew) << offer.name;
        }
}

} // namespace
} // namespace vantrel::tests
