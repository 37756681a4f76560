#include "app/settings/SettingDraft.h"

#include "AppFakes.h"
#include "app/robots/RobotFile.h"

#include <gtest/gtest.h>

namespace vantrel {
namespace {

class SettingDraftTest : public testing::Test {
  protected:
    SettingDraftTest() {
        state.RobotList = emptyRobotList();
        state.RobotList.insert(state.RobotList.begin(),
                               {{"A", "10", "0", "0", "1", "10.0.0.1", "/a"},
                                {"B", "10", "0", "0", "2", "10.0.0.2", "/b"}});
        state.CurrentRobotIndex = 1;
        state.CurrentRobot = state.RobotList[1];
    }
    SettingDraft draft() const { return {state, messages, "/program/"}; }

    ApplicationState state;
    MessageTable messages = tests::numberedMessages();
};

TEST_F(SettingDraftTest, StartsUneditedWithWhatIsStored) {
    state.JBR = true;
    state.SyncroRobotDir = 0;
    const auto fresh = draft();
    EXPECT_FALSE(fresh.isEdited());
    EXPECT_EQ(fresh.controler(), 4);
    EXPECT_TRUE(fresh.isOn(SettingOption::JBR));
    EXPECT_FALSE(fresh.isOn(SettingOption::SyncroRobotDir));
    EXPECT_FALSE(fresh.isOn(SettingOption::Headder));
    EXPECT_FALSE(fresh.isOn(SettingOption::NoSave));
    EXPECT_EQ(fresh.fault(), std::nullopt);
}

TEST_F(SettingDraftTest, TakenUneditedGivesBackWhatIsStored) {
    state.Port = 300;
    state.Parity = 7;
    state.DataLen = 5;
    state.StopBit = -1;
    state.Controler = 9;
    state.Headder = true;
    const auto values = draft().take();
    EXPECT_EQ(values.Port, 300);
    EXPECT_EQ(values.Baudrate, 9600);
    EXPECT_EQ(values.Parity, 7);
    EXPECT_EQ(values.DataLen, 5);
    EXPECT_EQ(values.StopBit, -1);
    EXPECT_EQ(values.Controler, 9);
    EXPECT_EQ(values.SyncroRobotDir, 1);
    EXPECT_TRUE(values.Headder);
    EXPECT_FALSE(values.JBR || values.NoSave);
    EXPECT_FALSE(values.robotsChanged);
    EXPECT_EQ(values.RobotList, state.RobotList);
    EXPECT_EQ(values.CurrentRobot, 1U);
}

TEST_F(SettingDraftTest, AStoredSynchronisationThatIsNeitherStaysUntilItIsChanged) {
    state.SyncroRobotDir = 2;
    auto edited = draft();
    EXPECT_FALSE(edited.isOn(SettingOption::SyncroRobotDir));
    edited.set(SettingOption::JBR, true);
    EXPECT_EQ(edited.take().SyncroRobotDir, 2);
    edited.set(SettingOption::SyncroRobotDir, true);
    EXPECT_EQ(edited.take().SyncroRobotDir, 1);
    edited.set(SettingOption::SyncroRobotDir, false);
    EXPECT_EQ(edited.take().SyncroRobotDir, 0);
}

TEST_F(SettingDraftTest, ARateThatIsNotOfferedBecomesTheOneThatIsShown) {
    state.Baudrate = 38400;
    EXPECT_EQ(draft().take().Baudrate, 9600);
}

TEST_F(SettingDraftTest, EveryKindOfEditCounts) {
    const std::vector<std::function<void(SettingDraft&)>> edits{
        [](SettingDraft& edited) { edited.chooseControler(1); },
        [](SettingDraft& edited) { edited.set(SettingOption::NoSave, true); },
        [](SettingDraft& edited) { edited.set(SettingOption::JBR, true); },
        [](SettingDraft& edited) { edited.set(SettingOption::Headder, true); },
        [](SettingDraft& edited) { edited.set(SettingOption::SyncroRobotDir, false); },
        [](SettingDraft& edited) { edited.serial().setPort(2); },
        [](SettingDraft& edited) { edited.serial().choose(SerialList::Baudrate, 0); },
        [](SettingDraft& edited) { edited.serial().choose(SerialList::Parity, 0); },
        [](SettingDraft& edited) { edited.serial().choose(SerialList::DataLen, 0); },
        [](SettingDraft& edited) { edited.serial().choose(SerialList::StopBit, 1); },
        [](SettingDraft& edited) { edited.serial().restoreDefaults(); },
        [](SettingDraft& edited) { edited.robots().insertAfter(); },
        [](SettingDraft& edited) { edited.robots().insertBefore(); },
        [](SettingDraft& edited) { edited.robots().remove(); },
        [](SettingDraft& edited) { edited.robots().setAddressPart(0, "11"); },
        [](SettingDraft& edited) { edited.robots().setFolder("/elsewhere"); },
        [](SettingDraft& edited) { edited.robots().rename("X"); }};
    for (const auto& edit : edits) {
        auto edited = draft();
        edit(edited);
        EXPECT_TRUE(edited.isEdited());
        (void)edited.take();
        EXPECT_FALSE(edited.isEdited());
    }
}

TEST_F(SettingDraftTest, TheValueThatIsSetAlreadyIsNoEdit) {
    auto same = draft();
    same.chooseControler(4);
    same.set(SettingOption::SyncroRobotDir, true);
    EXPECT_FALSE(same.isEdited());
}

TEST_F(SettingDraftTest, EachCheckBoxIsItsOwnSetting) {
    const auto taken = [this](SettingOption option) {
        auto edited = draft();
        edited.set(SettingOption::SyncroRobotDir, false);
        edited.set(option, true);
        const auto values = edited.take();
        return std::vector<int>{values.SyncroRobotDir, values.JBR, values.Headder, values.NoSave};
    };
    EXPECT_EQ(taken(SettingOption::SyncroRobotDir), (std::vector<int>{1, 0, 0, 0}));
    EXPECT_EQ(taken(SettingOption::JBR), (std::vector<int>{0, 1, 0, 0}));
    EXPECT_EQ(taken(SettingOption::Headder), (std::vector<int>{0, 0, 1, 0}));
    EXPECT_EQ(taken(SettingOption::NoSave), (std::vector<int>{0, 0, 0, 1}));
}

TEST_F(SettingDraftTest, AnInsertedRobotHasTheNewNameAndTheProgramsFolder) {
    auto edited = draft();
    edited.robots().insertAfter();
    EXPECT_EQ(edited.robots().selectedRobot(),
              (RobotRecord{"m193", "", "", "", "", "", "/program"}));
}

TEST_F(SettingDraftTest, AFaultForbidsAndIsNamed) {
    auto edited = draft();
    edited.robots().rename("a");
    const auto fault = edited.fault();
    ASSERT_TRUE(fault);
    EXPECT_EQ(fault->kind, RobotFault::Kind::NameTaken);
    EXPECT_EQ(edited.textOf(*fault), "[a]m331");
}

TEST_F(SettingDraftTest, TheWorkingListLeavesTheStoredOneAlone) {
    auto edited = draft();
    edited.robots().remove();
    edited.robots().rename("X");
    EXPECT_EQ(state.RobotList[0].Name, "A");
    EXPECT_EQ(robotCount(state.RobotList), 2U);
    const auto values = edited.take();
    EXPECT_TRUE(values.robotsChanged);
    EXPECT_EQ(robotCount(values.RobotList), 1U);
    EXPECT_EQ(values.CurrentRobot, 0U);
}

} // namespace
} // namespace vantrel
