#include "app/settings/SettingCommands.h"

#include "MainCommandsFixture.h"
#include "app/robots/RobotFile.h"
#include "app/robots/RobotRegistry.h"
#include "app/settings/SettingDraft.h"
#include "platform/Files.h"

#include <algorithm>

namespace vantrel::tests {
namespace {

class BoxOfNames final : public RobotBox {
  public:
    void clear() override {
        names.clear();
        selected = -1;
        ++fills;
    }
    void add(const std::string& name) override { names.push_back(name); }
    void select(int index) override { selected = index; }

    std::vector<std::string> names;
    int selected = -1;
    int fills = 0;
};

class SettingCommandsTest : public MainCommandsTest {
  protected:
    static constexpr std::int16_t aster = 1;

    SettingCommandsTest() {
        state.RobotList = emptyRobotList();
        state.RobotList.insert(state.RobotList.begin(),
                               {robotAt("A", "1"), robotAt("B", "2"), robotAt("C", "3")});
        state.CurrentRobotIndex = 1;
        state.CurrentRobot = state.RobotList[1];
        session.IPaddress = "10.0.0.2";
        pcJob("MINE");
        robotJob("THEIRS");
        showPanes();
        commandsBefore = library.calls().size();
    }
    static RobotRecord robotAt(const std::string& name, const std::string& last) {
        return {name, "10", "0", "0", last, "10.0.0." + last, "/robots/" + name};
    }
    SettingDraft newDraft() const { return {state, messages, "/program"}; }
    void apply(const std::function<void(SettingDraft&)>& edit) {
        auto draft = newDraft();
        edit(draft);
        ASSERT_EQ(draft.fault(), std::nullopt);
        settings.apply(draft);
    }
    std::vector<std::string> listed() const {
        std::vector<std::string> names;
        for (const auto& robot : state.RobotList)
            names.push_back(robot.Name);
        return names;
    }
    bool connected() const { return library.calls().size() != commandsBefore; }

    BoxOfNames box;
    RobotRegistry registry{state, messages, boxes, program.path()};
    SettingCommands settings{{state, session, panes, registry, box, view, main}};
    std::size_t commandsBefore = 0;
};

TEST_F(SettingCommandsTest, EveryValueBecomesTheProgramsAndTheSessions) {
    apply([](SettingDraft& draft) {
        draft.serial().setPort(7);
        draft.serial().choose(SerialList::Baudrate, 4);
        draft.serial().choose(SerialList::Parity, 1);
        draft.serial().choose(SerialList::DataLen, 0);
        draft.serial().choose(SerialList::StopBit, 2);
        draft.set(SettingOption::SyncroRobotDir, false);
        draft.set(SettingOption::JBR, true);
        draft.set(SettingOption::Headder, true);
        draft.set(SettingOption::NoSave, true);
        draft.chooseControler(5);
        draft.robots().setAddressPart(3, "77");
    });
    EXPECT_EQ(state.Port, 7);
    EXPECT_EQ(state.Baudrate, 19200);
    EXPECT_EQ(state.Parity, 1);
    EXPECT_EQ(state.DataLen, 7);
    EXPECT_EQ(state.StopBit, 2);
    EXPECT_EQ(state.SyncroRobotDir, 0);
    EXPECT_TRUE(state.JBR && state.Headder && state.NoSave);
    EXPECT_EQ(state.Controler, 5);
    EXPECT_EQ(state.CurrentRobot.IPaddr, "10.0.0.77");
    EXPECT_EQ(session.port, 7);
    EXPECT_EQ(session.Baudrate, 19200);
    EXPECT_EQ(session.parity, 1);
    EXPECT_EQ(session.DataLen, 7);
    EXPECT_EQ(session.StopBit, 2);
    EXPECT_EQ(session.IPaddress, "10.0.0.77");
    EXPECT_FALSE(connected());
}

TEST_F(SettingCommandsTest, AnInsertionMovesTheCurrentRobotsPlace) {
    apply([](SettingDraft& draft) {
        draft.robots().select(0);
        draft.robots().insertBefore();
        draft.robots().rename("NEW");
    });
    EXPECT_EQ(listed(), (std::vector<std::string>{"NEW", "A", "B", "C", "@END@"}));
    EXPECT_EQ(state.CurrentRobotIndex, 2);
    EXPECT_EQ(state.CurrentRobot.Name, "B");
    EXPECT_EQ(box.names.size(), 4U);
    EXPECT_EQ(box.selected, 2);
    EXPECT_EQ(view.address, "10.0.0.2");
}

TEST_F(SettingCommandsTest, ARenamedCurrentRobotIsTheOneThatIsWrittenAsBootRobot) {
    apply([](SettingDraft& draft) { draft.robots().rename("RENAMED"); });
    EXPECT_EQ(state.CurrentRobot.Name, "RENAMED");
    EXPECT_EQ(box.names[1], "RENAMED");
    ASSERT_TRUE(registry.write());
    EXPECT_TRUE(program.read("robot.ini").starts_with("[Boot]\r\nName=RENAMED\r\n"));
}

TEST_F(SettingCommandsTest, ADeletedCurrentRobotIsFollowedByItsNeighbour) {
    apply([](SettingDraft& draft) { draft.robots().remove(); });
    EXPECT_EQ(state.CurrentRobotIndex, 1);
    EXPECT_EQ(state.CurrentRobot.Name, "C");
    EXPECT_EQ(session.IPaddress, "10.0.0.3");
    EXPECT_EQ(view.address, "10.0.0.3");
    EXPECT_EQ(box.selected, 1);
}

TEST_F(SettingCommandsTest, WithoutAnyRobotTheCurrentOneIsEmpty) {
    apply([](SettingDraft& draft) {
        for (int times = 0; times < 3; ++times)
            draft.robots().remove();
    });
    EXPECT_EQ(state.RobotList, emptyRobotList());
    EXPECT_EQ(state.CurrentRobot, RobotRecord());
    EXPECT_EQ(state.CurrentRobotIndex, 0);
    EXPECT_EQ(session.IPaddress, "");
    EXPECT_EQ(view.address, "");
    EXPECT_TRUE(box.names.empty());
}

TEST_F(SettingCommandsTest, AListThatWasNotEditedIsLeftAlone) {
    state.CurrentRobot = {"of the settings file", "", "", "", "", "", "/there"};
    apply([](SettingDraft& draft) { draft.serial().setPort(2); });
    EXPECT_EQ(state.CurrentRobot.Name, "of the settings file");
    EXPECT_EQ(box.fills, 0);
}

TEST_F(SettingCommandsTest, ARegistryThatWasNotReadIsRewrittenOnlyAfterAnEditOfTheList) {
    // A folder in the file's place cannot be read.
    program.makeFolder("robot.ini");
    registry.read(box);
    state.RobotList = emptyRobotList();
    apply([](SettingDraft& draft) { draft.serial().setPort(2); });
    ASSERT_TRUE(registry.write());
    EXPECT_TRUE(isFolder(program.path("robot.ini")));
    apply([](SettingDraft& draft) {
        draft.robots().insertAfter();
        draft.robots().rename("NEW");
    });
    ASSERT_TRUE(registry.write());
    EXPECT_TRUE(isRegularFile(program.path("robot.ini")));
}

struct MachineRow {
    const char* name;
    TransferMode mode;
    std::function<void(SettingDraft&)> edit;
    bool empties;
};

TEST_F(SettingCommandsTest, OnlyAnotherMachineEmptiesTheControllerPane) {
    const auto port = [](SettingDraft& draft) { draft.serial().setPort(9); };
    const auto address = [](SettingDraft& draft) { draft.robots().setAddressPart(3, "9"); };
    const auto name = [](SettingDraft& draft) { draft.robots().rename("X"); };
    const auto other = [](SettingDraft& draft) {
        draft.robots().select(0);
        draft.robots().setAddressPart(3, "9");
    };
    const auto remove = [](SettingDraft& draft) { draft.robots().remove(); };
    using enum TransferMode;
    const MachineRow rows[] = {
        {"port in BSC mode", Bsc, port, true},
        {"address in BSC mode", Bsc, address, false},
        {"deleted in BSC mode", Bsc, remove, false},
        {"port in high-speed mode", HispeedLink, port, false},
        {"address in high-speed mode", HispeedLink, address, true},
        {"name in high-speed mode", HispeedLink, name, false},
        {"another robot's address", HispeedLink, other, false},
        {"deleted in high-speed mode", HispeedLink, remove, true},
    };
    const ApplicationState stored = state;
    for (const auto& row : rows) {
        state = stored;
        state.TransMode = row.mode;
        panes.fill(ActiveSide::Controller);
        ASSERT_FALSE(window.controller.names.empty());
        apply(row.edit);
        EXPECT_EQ(window.controller.names.empty(), row.empties) << row.name;
        EXPECT_EQ(state.CtrlListing.Count == 0, row.empties) << row.name;
        EXPECT_FALSE(connected()) << row.name;
    }
}

TEST_F(SettingCommandsTest, AnotherModelRebuildsFiltersPanesAndCounts) {
    pc.write("LATER.JBI", "");
    window.pcFilter = allFiles;
    window.controllerFilter = 2;
    window.pcStatus = window.controllerStatus = "";
    apply([](SettingDraft& draft) { draft.chooseControler(aster); });
    EXPECT_EQ(window.controllerChoices, (std::vector<std::string>{"*.JBI", "*.DAT"}));
    EXPECT_EQ(window.pcFilter, 0);
    EXPECT_EQ(window.controllerFilter, 0);
    EXPECT_EQ(window.pcStatus, "PC: 1 items") << "the folder is not read anew";
    EXPECT_EQ(window.controllerStatus, "Controller: 1 items");
}

TEST_F(SettingCommandsTest, TheSameModelLeavesTheFiltersAsTheyAre) {
    window.pcFilter = allFiles;
    window.controllerFilter = 2;
    const int shows = window.pc.shows;
    apply([](SettingDraft& draft) { draft.set(SettingOption::JBR, true); });
    EXPECT_EQ(window.pcFilter, allFiles);
    EXPECT_EQ(window.controllerFilter, 2);
    EXPECT_EQ(window.pc.shows, shows);
}

TEST_F(SettingCommandsTest, AnEditDuringTheRefillBelongsToTheNextApply) {
    auto draft = newDraft();
    draft.chooseControler(aster);
    window.onYield = [&draft] { draft.robots().rename("MEANWHILE"); };
    settings.apply(draft);
    window.onYield = {};
    EXPECT_EQ(state.RobotList[1].Name, "B");
    EXPECT_TRUE(draft.isEdited());
}

TEST_F(SettingCommandsTest, AModelWithoutTheHighSpeedLinkLeavesItAfterwards) {
    state.TransMode = TransferMode::HispeedLink;
    apply([](SettingDraft& draft) { draft.chooseControler(aster); });
    settings.showSettings();
    EXPECT_EQ(state.TransMode, TransferMode::Bsc);
    EXPECT_FALSE(shown("mnuModeHiSpeed").enabled);
    EXPECT_TRUE(shown("mnuModeBsc").checked);
    EXPECT_TRUE(window.controller.names.empty());
    EXPECT_TRUE(view.mode.showsSerialLine);
}

TEST_F(SettingCommandsTest, AnotherLanguageLeavesEvenAModeAloneThatTheModelLacks) {
    state.TransMode = TransferMode::HispeedLink;
    state.Controler = aster;
    view.log.clear();
    settings.recaption();
    EXPECT_EQ(state.TransMode, TransferMode::HispeedLink);
    EXPECT_FALSE(window.controller.names.empty());
    EXPECT_NE(std::ranges::find(view.log, "captions"), view.log.end());
    EXPECT_EQ(window.pcStatus, "PC: 1 items");
}

TEST_F(SettingCommandsTest, AfterwardsLabelCaptionsCountsAndStatesFollow) {
    apply([](SettingDraft& draft) { draft.serial().setPort(3); });
    view.log.clear();
    view.input.selectedKind.reset(); // offers no copy
    window.pcStatus.clear();
    settings.showSettings();
    const auto at = [this](const std::string& entry) {
        return std::ranges::find_if(
            view.log, [&](const std::string& line) { return line.starts_with(entry); });
    };
    ASSERT_NE(at("serial"), view.log.end());
    EXPECT_EQ(*at("serial"), "serial COM3: 9600bps DataLength:8  Parity:EVEN  StopBit:1");
    EXPECT_LT(at("serial"), at("captions"));
    EXPECT_NE(at("captions"), view.log.end());
    EXPECT_EQ(window.pcStatus, "PC: 1 items");
    EXPECT_TRUE(shown("mnuFile(0)").enabled);
}

TEST_F(SettingCommandsTest, AMarkIsTakenForTheRobotInForceAndWritten) {
    RobotRecord marked = state.CurrentRobot;
    settings.takeMark(marked);
    EXPECT_FALSE(registry.hasUnwrittenEdit()) << "nothing has changed";
    marked.Colour = "Red";
    marked.Label = "LIVE";
    settings.takeMark(marked);
    EXPECT_EQ(state.RobotList[1], marked);
    EXPECT_EQ(state.CurrentRobot, marked);
    EXPECT_EQ(state.RobotList[0].Label, "");
    EXPECT_EQ(view.mark.text, "LIVE");
    EXPECT_TRUE(registry.hasUnwrittenEdit());
}

TEST_F(SettingCommandsTest, WithoutARobotThereIsNothingToMark) {
    state.RobotList = emptyRobotList();
    main.updateStates();
    EXPECT_FALSE(shown("mnuTools(2)").enabled);
    RobotRecord marked = state.CurrentRobot;
    marked.Label = "LIVE";
    settings.takeMark(marked);
    EXPECT_EQ(state.CurrentRobot.Label, "");
    EXPECT_EQ(state.RobotList, emptyRobotList());
}

TEST_F(SettingCommandsTest, AnAppliedMarkIsShown) {
    apply([](SettingDraft& draft) { draft.robots().setMark("Blue", "TEST"); });
    EXPECT_EQ(state.CurrentRobot.Label, "TEST");
    EXPECT_EQ(view.mark.text, "TEST");
    EXPECT_TRUE(view.mark.colour);
}

} // namespace
} // namespace vantrel::tests
