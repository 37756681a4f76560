#include "app/robots/RobotListDraft.h"

#include "app/robots/RobotFile.h"
#include "base/ApplicationState.h"

#include <gmock/gmock.h>

namespace vantrel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

RobotRecord robotAt(const std::string& name, const std::string& last) {
    return {name, "10", "0", "0", last, "10.0.0." + last, "/robots/" + name};
}

std::vector<RobotRecord> three() {
    auto robots = emptyRobotList();
    robots.insert(robots.begin(), {robotAt("A", "1"), robotAt("B", "2"), robotAt("C", "3")});
    return robots;
}

const RobotRecord fresh{"NEW ROBOT", "", "", "", "", "", "/program"};

RobotListDraft draftOn(int current, const std::vector<RobotRecord>& robots = three()) {
    return {robots, current, fresh};
}

std::vector<std::string> namesOf(const RobotListDraft& draft) {
    std::vector<std::string> names;
    for (const auto& entry : draft.entries())
        names.push_back(entry.robot.Name);
    return names;
}

std::string currentName(const RobotListDraft& draft) {
    const auto place = draft.current();
    return place ? draft.entries()[*place].robot.Name : "none";
}

TEST(RobotListDraftTest, StartsWithTheRobotsUpToTheSentinelAndTheCurrentOneSelected) {
    const auto draft = draftOn(1);
    EXPECT_THAT(namesOf(draft), ElementsAre("A", "B", "C"));
    EXPECT_EQ(draft.selected(), 1U);
    EXPECT_EQ(draft.selectedRobot(), robotAt("B", "2"));
    EXPECT_FALSE(draft.isEdited());
    EXPECT_FALSE(draft.isChanged());
    EXPECT_EQ(draft.records(), three());
}

TEST(RobotListDraftTest, APlaceOutsideTheListIsTheFirst) {
    EXPECT_EQ(draftOn(3).selected(), 0U);
    EXPECT_EQ(draftOn(-1).selected(), 0U);
}

TEST(RobotListDraftTest, AnEmptyListHasNothingSelectedAndNoCurrentRobot) {
    auto draft = draftOn(0, emptyRobotList());
    EXPECT_EQ(draft.selected(), std::nullopt);
    EXPECT_EQ(draft.current(), std::nullopt);
    EXPECT_EQ(draft.selectedRobot(), RobotRecord());
    draft.rename("X");
    draft.setAddressPart(0, "1");
    draft.setFolder("/x");
    draft.remove();
    EXPECT_FALSE(draft.isEdited());
    EXPECT_THAT(draft.entries(), IsEmpty());
}

TEST(RobotListDraftTest, InsertsAfterTheSelectedOne) {
    auto draft = draftOn(0);
    draft.insertAfter();
    EXPECT_THAT(namesOf(draft), ElementsAre("A", "NEW ROBOT", "B", "C"));
    EXPECT_EQ(draft.selected(), 1U);
    EXPECT_EQ(draft.selectedRobot(), fresh);
    EXPECT_TRUE(draft.isEdited());
}

TEST(RobotListDraftTest, InsertsBeforeTheSelectedOne) {
    auto draft = draftOn(2);
    draft.insertBefore();
    EXPECT_THAT(namesOf(draft), ElementsAre("A", "B", "NEW ROBOT", "C"));
    EXPECT_EQ(draft.selected(), 2U);
}

TEST(RobotListDraftTest, InsertsIntoAnEmptyList) {
    for (const auto insert : {&RobotListDraft::insertAfter, &RobotListDraft::insertBefore}) {
        auto draft = draftOn(0, emptyRobotList());
        (draft.*insert)();
        EXPECT_THAT(namesOf(draft), ElementsAre("NEW ROBOT"));
        EXPECT_EQ(draft.selected(), 0U);
        EXPECT_EQ(currentName(draft), "NEW ROBOT");
    }
}

TEST(RobotListDraftTest, DeletingSelectsTheOneThatTakesThePlace) {
    auto draft = draftOn(0);
    draft.select(1);
    draft.remove();
    EXPECT_THAT(namesOf(draft), ElementsAre("A", "C"));
    EXPECT_EQ(draft.selected(), 1U);
    EXPECT_TRUE(draft.isEdited());
}

TEST(RobotListDraftTest, DeletingTheLastSelectsTheOneBefore) {
    auto draft = draftOn(2);
    draft.remove();
    EXPECT_EQ(draft.selected(), 1U);
    EXPECT_EQ(currentName(draft), "B");
}

TEST(RobotListDraftTest, DeletingAllLeavesNothingSelected) {
    auto draft = draftOn(0);
    for (int times = 0; times < 4; ++times)
        draft.remove();
    EXPECT_EQ(draft.selected(), std::nullopt);
    EXPECT_EQ(currentName(draft), "none");
    EXPECT_EQ(draft.records(), emptyRobotList());
}

TEST(RobotListDraftTest, TheCurrentRobotIsFoundAgain) {
    auto draft = draftOn(1);
    draft.select(0);
    draft.insertBefore();
    draft.insertAfter();
    EXPECT_EQ(draft.current(), 3U);
    draft.select(3);
    draft.rename("renamed");
    EXPECT_EQ(currentName(draft), "renamed");
    draft.select(0);
    draft.remove();
    EXPECT_EQ(draft.current(), 2U);
    EXPECT_EQ(currentName(draft), "renamed");
}

TEST(RobotListDraftTest, ARobotOfTheSameNameIsNotTakenForTheCurrentOne) {
    auto robots = three();
    robots[0].Name = robots[2].Name = "B";
    auto draft = draftOn(1, robots);
    draft.select(0);
    draft.remove();
    EXPECT_EQ(draft.current(), 0U);
    EXPECT_EQ(draft.entries()[0].robot.IPaddr, "10.0.0.2");
}

TEST(RobotListDraftTest, ADeletedCurrentRobotIsFollowedByItsNeighbour) {
    auto draft = draftOn(1);
    draft.remove();
    EXPECT_EQ(currentName(draft), "C");
    draft.remove();
    EXPECT_EQ(currentName(draft), "A");
    draft.remove();
    draft.insertAfter();
    EXPECT_EQ(currentName(draft), "NEW ROBOT");
}

TEST(RobotListDraftTest, TheFirstInsertedRobotOfAnEmptyListStaysTheCurrentOneAfterAnApply) {
    auto draft = draftOn(0, emptyRobotList());
    draft.insertAfter();
    draft.rename("ONE");
    draft.noteApplied();
    draft.insertBefore();
    EXPECT_EQ(currentName(draft), "ONE");
}

TEST(RobotListDraftTest, RenamingChangesTheSelectedOneOnly) {
    auto draft = draftOn(1);
    draft.rename("weld, left");
    EXPECT_THAT(namesOf(draft), ElementsAre("A", "weld, left", "C"));
    EXPECT_TRUE(draft.isEdited());
    EXPECT_TRUE(draft.isChanged());
}

TEST(RobotListDraftTest, SelectingIsNoEdit) {
    auto draft = draftOn(1);
    draft.select(2);
    draft.select(9);
    EXPECT_EQ(draft.selected(), 2U);
    EXPECT_FALSE(draft.isEdited());
}

TEST(RobotListDraftTest, AnAddressPartIsJoinedIntoTheAddress) {
    auto draft = draftOn(0);
    EXPECT_EQ(draft.setAddressPart(1, "168"), (TypedPart{"168", false}));
    EXPECT_EQ(draft.selectedRobot().IP2, "168");
    EXPECT_EQ(draft.selectedRobot().IPaddr, "10.168.0.1");
    EXPECT_TRUE(draft.isEdited());
}

TEST(RobotListDraftTest, ALetterClearsThePart) {
    auto draft = draftOn(0);
    EXPECT_EQ(draft.setAddressPart(3, "x"), (TypedPart{"", false}));
    EXPECT_EQ(draft.selectedRobot().IPaddr, "10.0.0.");
    EXPECT_TRUE(draft.isEdited());
}

TEST(RobotListDraftTest, APointAfterThePartMovesOn) {
    auto draft = draftOn(0);
    EXPECT_EQ(draft.setAddressPart(0, "192."), (TypedPart{"192", true}));
    EXPECT_EQ(draft.selectedRobot().IPaddr, "192.0.0.1");
}

TEST(RobotListDraftTest, AnEmptiedAddressIsEmpty) {
    auto draft = draftOn(0);
    for (std::size_t part = 0; part < 4; ++part)
        draft.setAddressPart(part, "");
    EXPECT_EQ(draft.selectedRobot().IPaddr, "");
    EXPECT_EQ(draft.records()[0].IPaddr, "0.0.0.0");
}

TEST(RobotListDraftTest, APartThatIsNoneChangesNothing) {
    auto draft = draftOn(0);
    draft.setAddressPart(4, "7");
    EXPECT_EQ(draft.selectedRobot(), robotAt("A", "1"));
}

TEST(RobotListDraftTest, AFolderIsStoredAtOnceAndTheSameOneIsNoEdit) {
    auto draft = draftOn(0);
    draft.setFolder("/robots/A");
    EXPECT_FALSE(draft.isEdited());
    draft.setFolder("/elsewhere");
    EXPECT_TRUE(draft.isEdited());
    EXPECT_EQ(draft.selectedRobot().Path, "/elsewhere");
}

TEST(RobotListDraftTest, StoresChangedAddressesTidiedAndOthersAsTheyStand) {
    auto robots = three();
    robots[1] = {"odd", "010", "0", "", "", "010.0", "/odd"};
    auto draft = draftOn(0, robots);
    draft.setAddressPart(0, "010");
    draft.setAddressPart(1, "000");
    const auto records = draft.records();
    EXPECT_EQ(records[0].IPaddr, "10.0.0.1");
    EXPECT_EQ(records[0].IP2, "0");
    EXPECT_EQ(records[1], robots[1]);
}

TEST(RobotListDraftTest, AnEditThatIsTakenBackIsNoChangeButWasAnEdit) {
    auto draft = draftOn(0);
    draft.rename("X");
    draft.rename("A");
    EXPECT_TRUE(draft.isEdited());
    EXPECT_FALSE(draft.isChanged());
    EXPECT_FALSE(draft.entries()[0].isChanged());
}

TEST(RobotListDraftTest, AfterAnApplyNothingIsEditedAndTheTidiedAddressIsShown) {
    auto draft = draftOn(0);
    draft.insertAfter();
    draft.setAddressPart(0, "007");
    draft.setAddressPart(1, "1");
    draft.setAddressPart(2, "1");
    draft.setAddressPart(3, "1");
    draft.noteApplied();
    EXPECT_FALSE(draft.isEdited());
    EXPECT_FALSE(draft.isChanged());
    EXPECT_EQ(draft.selectedRobot().IP1, "7");
    for (const auto& entry : draft.entries())
        EXPECT_FALSE(entry.isChanged());
}

TEST(RobotListDraftTest, NoMoreRobotsThanAPlaceCanCount) {
    std::vector<RobotRecord> robots(32767, robotAt("A", "1"));
    robots.push_back(emptyRobotList().front());
    auto draft = draftOn(0, robots);
    draft.insertAfter();
    EXPECT_EQ(draft.entries().size(), 32767U);
    EXPECT_FALSE(draft.isEdited());
}

TEST(RobotListDraftTest, AMarkGoesWithItsRobot) {
    auto draft = draftOn(1);
    draft.setMark("", "");
    EXPECT_FALSE(draft.isEdited()) << "as it was";
    draft.setMark("Red", "LIVE");
    EXPECT_TRUE(draft.isEdited());
    draft.rename("RENAMED");
    draft.insertBefore();
    EXPECT_EQ(draft.selectedRobot().Label, "");
    draft.select(0);
    draft.remove();
    const auto records = draft.records();
    ASSERT_EQ(records.size(), 4U);
    EXPECT_EQ(records[1].Name, "RENAMED");
    EXPECT_EQ(records[1].Colour, "Red");
    EXPECT_EQ(records[1].Label, "LIVE");
    EXPECT_EQ(records[2].Label, "");
}

/// An address that is no four numbers is the operator's, and not the mark's, to mend.
TEST(RobotListDraftTest, AMarkAloneLeavesTheAddressAsItWasRead) {
    auto robots = three();
    robots[0].IPaddr = "";
    robots[1].IPaddr = "010.0.0.8";
    robots[2].IPaddr = "cell3";
    RobotListDraft draft = draftOn(0, robots);
    for (const std::size_t place : {0u, 1u, 2u}) {
        draft.select(place);
        draft.setMark("Red", "LIVE");
    }
    const auto records = draft.records();
    for (const std::size_t place : {0u, 1u, 2u}) {
        EXPECT_EQ(records[place].IPaddr, robots[place].IPaddr);
        EXPECT_EQ(records[place].Colour, "Red");
    }
    EXPECT_FALSE(findRobotFault(draft.entries()));
    EXPECT_TRUE(draft.isChanged());
}

} // namespace
} // namespace vantrel
