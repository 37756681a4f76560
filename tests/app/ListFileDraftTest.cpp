#include "app/lists/ListFileDraft.h"

#include "base/ApplicationState.h"
#include "base/PathRules.h"
#include "link/SessionWorld.h"
#include "support/NamedRow.h"
#include "support/SystemReasons.h"

namespace vantrel::tests {
namespace {

namespace list_mode = list_file_mode;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class ListFileDraftTest : public testing::Test {
  public:
    ListFileDraftTest() {
        state.PCPath = world.pc.path();
        world.session->path = "/elsewhere";
        std::vector<MessageEntry> entries;
        for (const int number : {19, 20, 21, 22, 23, 24, 45, 53, 325, 326, 6559})
            entries.push_back({std::int16_t(number), "", "text " + std::to_string(number)});
        messages.replace(entries);
    }

    ListFileDraft draft(std::string_view mode) {
        return {state, *world.session, world.boxes, messages, mode};
    }
    /// The draft after the operator typed the name and pressed OK.
    ListFileDraft confirmed(std::string_view mode, const std::string& name) {
        auto result = draft(mode);
        result.setName(name);
        result.confirm();
        return result;
    }
    std::vector<std::string> jobList() const {
        std::vector<std::string> entries;
        entries.reserve(std::size_t(world.session->JobListCount()));
        for (int index = 0; index < world.session->JobListCount(); ++index)
            entries.push_back(world.session->JobList(index));
        return entries;
    }

    SessionWorld world;
    ApplicationState state;
    MessageTable messages;
};

struct CaptionRow : NamedRow {
    std::string_view mode;
    const char* title;
    const char* field;
};

class ListFileCaptions : public ListFileDraftTest,
                         public testing::WithParamInterface<CaptionRow> {};

TEST_P(ListFileCaptions, FollowTheMode) {
    const auto captioned = draft(GetParam().mode);
    EXPECT_EQ(captioned.title(), GetParam().title);
    EXPECT_EQ(captioned.fieldLabel(), GetParam().field);
    EXPECT_EQ(captioned.hint(), "text 45");
}

INSTANTIATE_TEST_SUITE_P(
    Modes, ListFileCaptions,
    testing::Values(CaptionRow{{"SaveJobs"}, list_mode::saveJobs, "text 19", "text 23"},
                    CaptionRow{{"LoadJobs"}, list_mode::loadJobs, "text 20", "text 23"},
                    CaptionRow{{"SaveVariables"}, list_mode::saveVariables, "text 21", "text 24"},
                    CaptionRow{{"LoadVariables"}, list_mode::loadVariables, "text 22", "text 24"}),
    rowName);

struct NameRow : NamedRow {
    const char* typed;
    bool accepted;
    const char* completed;
};

class ListFileName : public ListFileDraftTest, public testing::WithParamInterface<NameRow> {};

TEST_P(ListFileName, IsCompletedAndJudged) {
    auto typed = draft(list_mode::loadJobs);
    typed.setName(GetParam().typed);
    EXPECT_EQ(typed.canConfirm(), GetParam().accepted);
    if (GetParam().accepted) {
        EXPECT_EQ(typed.completedName(), GetParam().completed);
    }
}

INSTANTIATE_TEST_SUITE_P(Names, ListFileName,
                         testing::Values(NameRow{{"WithoutAPoint"}, "jobs", true, "jobs.lst"},
                                         NameRow{{"WithAPoint"}, "jobs.txt", true, "jobs.txt"},
                                         NameRow{{"PointAtTheEnd"}, "jobs.", false, ""},
                                         NameRow{{"OuterBlanks"}, " jobs ", true, "jobs.lst"},
                                         NameRow{{"Japanese"}, "一覧", true, "一覧.lst"},
                                         NameRow{{"Empty"}, "", false, ""},
                                         NameRow{{"BlanksOnly"}, "  ", false, ""},
                                         NameRow{{"Asterisk"}, "*.LST", false, ""},
                                         NameRow{{"QuestionMark"}, "job?.lst", false, ""},
                                         NameRow{{"FolderBelow"}, "sub/jobs.lst", false, ""},
                                         NameRow{{"FolderAbove"}, "../jobs.lst", false, ""},
                                         NameRow{{"WindowsPath"}, "C:\\jobs.lst", false, ""},
                                         NameRow{{"DeviceName"}, "con.lst", false, ""}),
                         rowName);

struct PresetRow : NamedRow {
    std::string_view mode;
    const char* jobListFile;
    const char* varListFile;
    const char* preset;
};

class ListFilePreset : public ListFileDraftTest, public testing::WithParamInterface<PresetRow> {};

TEST_P(ListFilePreset, IsTheLastListFileUnlessAPattern) {
    state.JobListFile = GetParam().jobListFile;
    state.VarListFile = GetParam().varListFile;
    EXPECT_EQ(draft(GetParam().mode).name(), GetParam().preset);
}

INSTANTIATE_TEST_SUITE_P(
    Modes, ListFilePreset,
    testing::Values(
        PresetRow{{"Jobs"}, list_mode::saveJobs, "jobs.lst", "vars.lst", "jobs.lst"},
        PresetRow{{"Variables"}, list_mode::loadVariables, "jobs.lst", "vars.lst", "vars.lst"},
        PresetRow{{"JobPattern"}, list_mode::loadJobs, "*.LST", "vars.lst", ""},
        PresetRow{{"VariablePattern"}, list_mode::saveVariables, "jobs.lst", "v?.lst", ""}),
    rowName);

TEST_F(ListFileDraftTest, ButtonsHaveACaptionInEveryLanguage) {
    EXPECT_EQ(draft(list_mode::saveJobs).okCaption(), "text 325");
    EXPECT_EQ(draft(list_mode::saveJobs).cancelCaption(), "text 326");
    messages.replace({});
    EXPECT_EQ(draft(list_mode::saveJobs).okCaption(), "OK");
    EXPECT_EQ(draft(list_mode::saveJobs).cancelCaption(), "ｷｬﾝｾﾙ(&C)");
}

TEST_F(ListFileDraftTest, ShowsALongFolderShortenedAndKnowsTheWholeOne) {
    state.PCPath = "/" + std::string(60, 'a') + "/robot jobs";
    EXPECT_EQ(draft(list_mode::saveJobs).shownFolder(), PathRules().shorten(state.PCPath, 48));
    EXPECT_LT(draft(list_mode::saveJobs).shownFolder().size(), 30U);
    EXPECT_EQ(draft(list_mode::saveJobs).folder(), state.PCPath);
}

TEST_F(ListFileDraftTest, TheResultSaysNotReadUntilAListWasRead) {
    EXPECT_EQ(draft(list_mode::loadJobs).result(), "0");
}

TEST_F(ListFileDraftTest, ReadsTheListFromThePaneFolder) {
    world.pc.write("jobs.lst", "A.JBI\n");
    world.pc.write("A.JBI", SessionWorld::job("A"));
    const auto done = confirmed(list_mode::loadJobs, "jobs");
    EXPECT_EQ(done.result(), "1");
    EXPECT_EQ(world.session->path, world.pc.path());
    EXPECT_THAT(jobList(), ElementsAre("A.JBI"));
    EXPECT_THAT(world.boxes.shown, IsEmpty());
}

TEST_F(ListFileDraftTest, JobsToBeFetchedNeedNotBeOnThePC) {
    world.pc.write("jobs.lst", "FAR.JBI\n");
    EXPECT_EQ(confirmed(list_mode::saveJobs, "jobs").result(), "1");
    EXPECT_THAT(jobList(), ElementsAre("FAR.JBI"));
    EXPECT_THAT(world.boxes.shown, IsEmpty());
}

TEST_F(ListFileDraftTest, JobsToBeSentHaveToBeOnThePC) {
    world.pc.write("jobs.lst", "FAR.JBI\n");
    world.boxes.answers = {true};
    confirmed(list_mode::loadJobs, "jobs");
    EXPECT_THAT(jobList(), IsEmpty());
    EXPECT_THAT(world.boxes.texts(), ElementsAre(HasSubstr("[FAR.JBI]")));
}

TEST_F(ListFileDraftTest, AListThatTheOperatorLeftIsNotReported) {
    world.pc.write("jobs.lst", "FAR.JBI\n");
    const auto left = confirmed(list_mode::loadJobs, "jobs");
    EXPECT_EQ(left.result(), "0");
    EXPECT_EQ(world.boxes.shown.size(), 1U) << "only the question about the missing file";
}

TEST_F(ListFileDraftTest, ReadsVariableListsInBothVariableModes) {
    world.pc.write("vars.lst", "B005=12\n");
    for (const auto mode : {list_mode::saveVariables, list_mode::loadVariables}) {
        world.session->VarListClear();
        EXPECT_EQ(confirmed(mode, "vars").result(), "1");
        EXPECT_EQ(world.session->VarList(0), "B005=12");
    }
    EXPECT_EQ(state.VarListFile, "vars.lst");
    EXPECT_EQ(state.JobListFile, "");
}

TEST_F(ListFileDraftTest, AFileThatCannotBeReadIsNamedWithTheReason) {
    const auto failed = confirmed(list_mode::saveJobs, "nowhere");
    EXPECT_EQ(failed.result(), "0");
    ASSERT_EQ(world.boxes.shown.size(), 1U);
    EXPECT_THAT(world.boxes.shown[0].text, HasSubstr("text 53[nowhere.lst] " + noSuchFile()));
    EXPECT_EQ(world.boxes.shown[0].icon, BoxIcon::Exclamation);
}

/// Puts the list file there once the session has given up on it.
class LateFile : public ProgressView {
  public:
    explicit LateFile(const TemporaryFolder& folder) : folder_(folder) {}
    void refresh(const ProgressPanel& panel) override {
        if (!panel.isVisible())
            folder_.write("late.lst", "A.JBI\n");
    }
    void yield() override {}
    void unload() override {}

  private:
    const TemporaryFolder& folder_;
};

TEST_F(ListFileDraftTest, TheReasonIsThatOfTheSessionsOwnTry) {
    LateFile late(world.pc);
    world.panel.attach(&late);
    world.panel.show("shown, so that the end of the operation can be seen");
    EXPECT_EQ(confirmed(list_mode::saveJobs, "late").result(), "0");
    ASSERT_TRUE(world.pc.has("late.lst"));
    ASSERT_EQ(world.boxes.shown.size(), 1U);
    EXPECT_THAT(world.boxes.shown[0].text, HasSubstr("[late.lst] " + noSuchFile()));
    world.panel.attach(nullptr);
}

TEST_F(ListFileDraftTest, AVeryLongNameIsNamedShortened) {
    confirmed(list_mode::saveJobs, std::string(240, 'x'));
    ASSERT_EQ(world.boxes.shown.size(), 1U);
    EXPECT_THAT(world.boxes.shown[0].text, HasSubstr("[" + std::string(200, 'x') + "\u2026] "));
}

TEST_F(ListFileDraftTest, AFolderOfThatNameIsNamedToo) {
    world.pc.makeFolder("vars.lst");
    EXPECT_EQ(confirmed(list_mode::loadVariables, "vars").result(), "0");
    ASSERT_EQ(world.boxes.shown.size(), 1U);
    EXPECT_THAT(world.boxes.shown[0].text, HasSubstr("[vars.lst]"));
}

TEST_F(ListFileDraftTest, KeepsTheLastNameThatWorked) {
    world.pc.write("jobs.lst", "A.JBI\n");
    confirmed(list_mode::saveJobs, "jobs");
    confirmed(list_mode::saveJobs, "nowhere");
    EXPECT_EQ(state.JobListFile, "jobs.lst");
}

TEST_F(ListFileDraftTest, AbandoningReadsNothing) {
    world.pc.write("jobs.lst", "A.JBI\n");
    auto left = draft(list_mode::saveJobs);
    left.setName("jobs");
    left.abandon();
    EXPECT_EQ(left.result(), "0");
    EXPECT_THAT(jobList(), IsEmpty());
    EXPECT_EQ(world.session->path, "/elsewhere");
}

TEST_F(ListFileDraftTest, AWildcardIsNotConfirmedWhateverAsksForIt) {
    EXPECT_EQ(confirmed(list_mode::saveJobs, "*.lst").result(), "0");
    EXPECT_EQ(world.session->path, "/elsewhere");
    EXPECT_THAT(world.boxes.shown, IsEmpty());
}

class OfferedListFiles : public ListFileDraftTest {
  protected:
    OfferedListFiles() {
        auto& listing = state.PCListing;
        for (const char* name : {"weld.lst", "A.JBI", "Door.LST", "LocalJob.lst", "localjob.LST",
                                 "door2.lst", ".lst", "lst", "vars.lst.txt"})
            listing.append(name, 7, {});
        listing.append("folder.lst", FolderListing::folderSize, {});
    }

    /// What the arrow key brings after this was typed.
    std::optional<std::string> after(const std::string& typed, int step) {
        auto typing = draft(list_mode::loadJobs);
        typing.setName(typed);
        return typing.neighbour(step);
    }
};

TEST_F(OfferedListFiles, AreThoseOfThePaneByName) {
    for (const auto mode : {list_mode::saveJobs, list_mode::loadVariables})
        EXPECT_THAT(draft(mode).offered(), ElementsAre("Door.LST", "door2.lst", "weld.lst"));
    EXPECT_EQ(draft(list_mode::saveJobs).offeredLabel(), "text 6559");
    EXPECT_EQ(draft(list_mode::saveJobs).name(), "") << "offered is not chosen";
}

TEST_F(OfferedListFiles, AreWalkedThroughByTheArrowKeys) {
    EXPECT_EQ(after("", 1), "Door.LST");
    EXPECT_EQ(after("Door.LST", 1), "door2.lst");
    EXPECT_EQ(after("door2", 1), "weld.lst") << "completed as it is when it is confirmed";
    EXPECT_EQ(after("weld.lst", 1), "weld.lst");
    EXPECT_EQ(after("weld.lst", -1), "door2.lst");
    EXPECT_EQ(after("Door.LST", -1), "Door.LST");
}

TEST_F(OfferedListFiles, CompleteTheBeginningOfAName) {
    EXPECT_EQ(after("W", 1), "weld.lst");
    EXPECT_EQ(after("w", -1), "weld.lst");
    EXPECT_EQ(after("dOOR", 1), "Door.LST");
    EXPECT_EQ(after("x", 1), std::nullopt);
    state.PCListing.clear();
    EXPECT_EQ(after("", 1), std::nullopt);
}

TEST_F(OfferedListFiles, TellWhichOneIsNamed) {
    auto typing = draft(list_mode::loadJobs);
    typing.setName("we");
    EXPECT_EQ(typing.nearest(), 2U);
    EXPECT_FALSE(typing.isOffered(2));
    typing.setName(" weld ");
    EXPECT_EQ(typing.nearest(), 2U);
    EXPECT_TRUE(typing.isOffered(2));
    EXPECT_FALSE(typing.isOffered(1));
    typing.setName("elsewhere");
    EXPECT_EQ(typing.nearest(), std::nullopt);
}

TEST_F(OfferedListFiles, EachKindKeepsTheNameThatWasReadLast) {
    world.pc.write("weld.lst", "A.JBI\n");
    world.pc.write("vars.lst", "B001=1\n");
    EXPECT_EQ(confirmed(list_mode::saveJobs, "weld").result(), "1");
    EXPECT_EQ(confirmed(list_mode::loadVariables, "vars").result(), "1");
    EXPECT_EQ(draft(list_mode::loadJobs).name(), "weld.lst");
    EXPECT_EQ(draft(list_mode::saveVariables).name(), "vars.lst");
}

} // namespace
} // namespace vantrel::tests
