#include "app/CommandStates.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace vantrel {
namespace {

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

template <typename Entries>
std::vector<int> checked(const Entries& entries) {
    std::vector<int> indexes;
    for (std::size_t index = 0; index < entries.size(); ++index)
        if (entries[index].checked)
            indexes.push_back(static_cast<int>(index));
    return indexes;
}

template <typename Entries>
std::string enabled(const Entries& entries) {
    std::string marks;
    for (const CommandState& entry : entries)
        marks += entry.enabled ? '+' : '-';
    return marks;
}

std::vector<std::string> pressedDisplayButtons(const CommandStates& states) {
    std::vector<std::string> keys;
    for (const char* key : {"DispBig", "DispSmall", "DispList", "DispDetail"})
        if (states.button(key).checked)
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
    const CommandStates states = commandStates(input);
    EXPECT_EQ(checked(states.mnuDisp), view.checkedEntries);
    EXPECT_EQ(checked(states.mnuFileDisp), view.checkedEntries);
    EXPECT_EQ(pressedDisplayButtons(states), view.pressed);
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
        EXPECT_EQ(checked(commandStates(input).mnuSort), GetParam().checkedEntries);
        EXPECT_EQ(checked(commandStates(input).mnuSortIcon), GetParam().checkedEntries);
    }
}

INSTANTIATE_TEST_SUITE_P(, SortStatesTest,
                         testing::Values(SortCase{"Name", 0, {0}}, SortCase{"Size", 1, {1}},
                                         SortCase{"Date", 2, {2}}, SortCase{"Other", 3, {}},
                                         SortCase{"Negative", -1, {}}),
                         [](const auto& test) { return test.param.name; });

TEST(CommandStatesTest, TheOtherPanesOrderIsNotShown) {
    CommandInput input = pcInput;
    input.ctrlSortType = 2;
    EXPECT_EQ(checked(commandStates(input).mnuSort), (std::vector<int>{0}));
}

TEST(CommandStatesTest, ThePCOffersDetailsViewerAndAllOrders) {
    const CommandStates states = commandStates(pcInput);
    EXPECT_TRUE(states.button("DispDetail").enabled);
    EXPECT_TRUE(states.button("FileDisp").enabled);
    EXPECT_TRUE(states.mnuFile[fileDisplay].enabled);
    EXPECT_EQ(enabled(states.mnuDisp), "++++");
    EXPECT_EQ(enabled(states.mnuFileDisp), "++++");
    EXPECT_EQ(enabled(states.mnuSort), "+++");
    EXPECT_EQ(enabled(states.mnuSortIcon), "+++");
}

TEST(CommandStatesTest, TheControllerOffersNoDetailsNoViewerAndNamesOnly) {
    const CommandStates states = commandStates(controllerInput);
    EXPECT_FALSE(states.button("DispDetail").enabled);
    EXPECT_FALSE(states.button("FileDisp").enabled);
    EXPECT_FALSE(states.mnuFile[fileDisplay].enabled);
    EXPECT_EQ(enabled(states.mnuDisp), "+++-");
    EXPECT_EQ(enabled(states.mnuFileDisp), "+++-");
    EXPECT_EQ(enabled(states.mnuSort), "+--");
    EXPECT_EQ(enabled(states.mnuSortIcon), "+--");
}

/// "cmd" in upper case where copy, move and delete are on.
struct FileCase {
    const char* name;
    CommandInput input;
    const char* fileMenu;
    const char* popUpMenu;
    const char* buttons;
};

std::string marks(bool copy, bool move, bool remove) {
    return std::string(copy ? "C" : "c") + (move ? "M" : "m") + (remove ? "D" : "d");
}

template <typename Entries>
std::string fileMarks(const Entries& entries) {
    return marks(entries[fileCopy].enabled, entries[fileMove].enabled, entries[fileDelete].enabled);
}

class FileStatesTest : public testing::TestWithParam<FileCase> {};

TEST_P(FileStatesTest, OfferWhatApplies) {
    const CommandStates states = commandStates(GetParam().input);
    EXPECT_EQ(fileMarks(states.mnuFile), GetParam().fileMenu);
    EXPECT_EQ(fileMarks(states.mnuRightFile), GetParam().popUpMenu);
    EXPECT_EQ(marks(states.button("FileCopy").enabled, states.button("FileMove").enabled,
                    states.button("FileDelete").enabled),
              GetParam().buttons);
    EXPECT_TRUE(states.mnuFile[fileSelectAll].enabled);
    EXPECT_TRUE(states.button("AllSelect").enabled);
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

TEST(CommandStatesTest, ThePCsItemDoesNotDecideForTheController) {
    CommandInput input = controllerInput;
    input.selectedKind = FileKind::Folder;
    EXPECT_EQ(fileMarks(commandStates(input).mnuRightFile), "CMD");
}

TEST(CommandStatesTest, TheControllersToolBarOffersWhatTheControllerDoes) {
    CommandInput input = pcInput;
    input.JBR = true;
    EXPECT_EQ(enabled(commandStates(input).tlbFile), "+-++");
    input.controllerFilter = 1;
    EXPECT_EQ(enabled(commandStates(input).tlbFile), "+--+");
}

TEST(CommandStatesTest, ModesAreChecked) {
    CommandInput input;
    CommandStates states = commandStates(input);
    EXPECT_EQ(states.mnuModeBsc, (CommandState{true, true}));
    EXPECT_EQ(states.mnuModeHiSpeed, (CommandState{true, false}));
    input.mode = TransferMode::HispeedLink;
    states = commandStates(input);
    EXPECT_EQ(states.button("modeBsc"), (CommandState{true, false}));
    EXPECT_EQ(states.button("modeHiSpeed"), (CommandState{true, true}));
}

TEST(CommandStatesTest, AnyModeButTheHighSpeedLinkIsShownAsBsc) {
    for (const int mode : {0, 2, 15, 17, -1, -32768, 32767}) {
        CommandInput input;
        input.mode = static_cast<TransferMode>(mode);
        const CommandStates states = commandStates(input);
        EXPECT_TRUE(states.mnuModeBsc.checked && states.button("modeBsc").checked) << mode;
        EXPECT_FALSE(states.mnuModeHiSpeed.checked || states.button("modeHiSpeed").checked) << mode;
    }
}

TEST(CommandStatesTest, HighSpeedIsOffForAModelWithoutIt) {
    CommandInput input;
    input.hispeedAvailable = false;
    const CommandStates states = commandStates(input);
    EXPECT_FALSE(states.mnuModeHiSpeed.enabled);
    EXPECT_FALSE(states.button("modeHiSpeed").enabled);
    EXPECT_TRUE(states.mnuModeBsc.enabled);
    EXPECT_TRUE(states.button("modeBsc").enabled);
}

TEST(CommandStatesTest, TheActivePanesButtonIsPressed) {
    EXPECT_TRUE(commandStates(pcInput).tlbPCButton.state.checked);
    EXPECT_FALSE(commandStates(pcInput).tlbCtrlButton.state.checked);
    EXPECT_FALSE(commandStates(controllerInput).tlbPCButton.state.checked);
    EXPECT_TRUE(commandStates(controllerInput).tlbCtrlButton.state.checked);
}

TEST(CommandStatesTest, WhileTheViewerIsShownItPrintsAndTheControllerCannotBecomeActive) {
    CommandInput input;
    EXPECT_FALSE(commandStates(input).mnuFile[filePrint].enabled);
    EXPECT_FALSE(commandStates(input).tlbPC[1].state.enabled);
    EXPECT_FALSE(commandStates(input).button("FileDisp").checked);
    input.viewerShown = true;
    const CommandStates states = commandStates(input);
    EXPECT_TRUE(states.mnuFile[filePrint].enabled);
    EXPECT_TRUE(states.tlbPC[1].state.enabled);
    EXPECT_TRUE(states.button("FileDisp").checked);
    EXPECT_FALSE(states.tlbCtrlButton.state.enabled);
    EXPECT_EQ(enabled(states.tlbFile), "----");
}

TEST(CommandStatesTest, LockedNothingIsOffered) {
    CommandInput input = onPC(FileKind::JobFile);
    input.locked = true;
    const CommandStates states = commandStates(input);
    EXPECT_FALSE(states.unlocked);
    EXPECT_EQ(enabled(states.mnuFile), "--------");
    EXPECT_EQ(enabled(states.mnuRightFile), "----");
    EXPECT_EQ(enabled(states.mnuDisp), "----");
    EXPECT_EQ(enabled(states.mnuFileDisp), "----");
    EXPECT_EQ(enabled(states.mnuSort), "---");
    EXPECT_EQ(enabled(states.mnuSortIcon), "---");
    EXPECT_EQ(enabled(states.mnuOpt), "--------");
    EXPECT_EQ(enabled(states.mnuHelp), "-");
    EXPECT_EQ(enabled(states.tlbFile), "----");
    for (const auto& button : states.tlbMain)
        EXPECT_FALSE(button.state.enabled) << button.key;
    for (const auto& button : states.tlbPC)
        EXPECT_FALSE(button.state.enabled) << button.key;
    for (const CommandState& state :
         {states.mnuModeHiSpeed, states.mnuModeBsc, states.mnuRefresh, states.mnuRightRefresh,
          states.mnuVer, states.mnuEnd, states.tlbPCButton.state, states.tlbCtrlButton.state})
        EXPECT_FALSE(state.enabled);
}

TEST(CommandStatesTest, LockingKeepsTheCheckMarks) {
    CommandInput input;
    input.locked = true;
    const CommandStates states = commandStates(input);
    EXPECT_TRUE(states.mnuModeBsc.checked);
    EXPECT_EQ(checked(states.mnuDisp), (std::vector<int>{1}));
}

TEST(CommandStatesTest, WhatNothingRulesIsAlwaysOffered) {
    for (const CommandInput& input : {pcInput, controllerInput}) {
        const CommandStates states = commandStates(input);
        EXPECT_TRUE(states.unlocked);
        EXPECT_EQ(enabled(states.mnuOpt), "++++++++");
        EXPECT_TRUE(states.mnuRefresh.enabled && states.mnuRightRefresh.enabled);
        EXPECT_TRUE(states.mnuVer.enabled && states.mnuEnd.enabled);
        EXPECT_TRUE(states.mnuHelp[0].enabled);
        EXPECT_TRUE(states.button("Refresh").enabled);
        EXPECT_TRUE(states.tlbPC[0].state.enabled);
    }
}

TEST(CommandStatesTest, TheMainToolBarHasItsKeysInOrder) {
    std::vector<std::string> keys;
    for (const auto& button : CommandStates().tlbMain)
        keys.emplace_back(button.key);
    EXPECT_EQ(keys, (std::vector<std::string>{"FileCopy", "FileMove", "FileDelete", "AllSelect",
                                              "Refresh", "modeHiSpeed", "modeBsc", "DispBig",
                                              "DispSmall", "DispList", "DispDetail", "FileDisp"}));
}

} // namespace
} // namespace vantrel
