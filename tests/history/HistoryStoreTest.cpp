#include "history/HistoryStore.h"

#include "HistoryFixture.h"
#include "platform/Files.h"
#include "platform/HeldFile.h"

#include <atomic>
#include <cstdlib>
#include <thread>

namespace vantrel::tests {
namespace {

using namespace std::string_literals;

class HistoryStoreTest : public HistoryFixture {};

TEST_F(HistoryStoreTest, KeepsEveryFileByteForByte) {
    const Files files{{"WELD.JBI", "/JOB\r\n//NAME WELD\r\nEND\r\n"},
                      {"溶接.JBI", "\x83\x5C\x97n\n\r\n"},
                      {"EMPTY.DAT", ""},
                      {"BYTES.DAT", "\0\xFF\x1A\r"s}};
    auto store = open();
    const auto recorded = record(store, "LINE1 WELD", files);
    EXPECT_EQ(recorded.end, Recorded::End::Committed);
    EXPECT_EQ(recorded.changes.added.size(), 4U);
    EXPECT_EQ(filesIn(store, "LINE1 WELD"), files);
    EXPECT_EQ(filesIn(store, "LINE1 WELD", recorded.version), files);
    auto later = open();
    EXPECT_EQ(filesIn(later, "LINE1 WELD"), files);
    for (const auto& [name, content] : files)
        EXPECT_EQ(folder.read("history/LINE1 WELD/" + name), content) << name;
}

TEST_F(HistoryStoreTest, WritesNothingWhenNothingHasChanged) {
    auto store = open();
    const auto first = record(store, "LINE1", {{"A.JBI", "1"}});
    const auto again = record(store, "LINE1", {{"A.JBI", "1"}});
    EXPECT_EQ(again.end, Recorded::End::Unchanged);
    EXPECT_EQ(again.version, first.version);
    EXPECT_TRUE(again.changes.none());
    EXPECT_EQ(store.log({})->size(), 1U);
}

TEST_F(HistoryStoreTest, AnEmptyRobotIsNoEntry) {
    auto store = open();
    EXPECT_EQ(record(store, "LINE1", {}).end, Recorded::End::Unchanged);
    EXPECT_TRUE(store.log({})->empty());
    EXPECT_TRUE(store.robots()->empty());
}

TEST_F(HistoryStoreTest, TellsWhatHasChanged) {
    auto store = open();
    record(store, "LINE1", {{"SAME", "1"}, {"B", "1"}, {"A", "1"}, {"GONE", "1"}});
    const auto recorded =
        record(store, "LINE1", {{"SAME", "1"}, {"B", "2"}, {"A", "2"}, {"NEW", "1"}});
    const StateChanges expected{.changed = {"A", "B"}, .added = {"NEW"}, .gone = {"GONE"}};
    EXPECT_EQ(recorded.changes, expected);
    EXPECT_EQ(*store.changes(recorded.version, "LINE1"), expected);
    EXPECT_FALSE(folder.has("history/LINE1/GONE"));
    EXPECT_EQ(folder.read("history/LINE1/A"), "2");
}

TEST_F(HistoryStoreTest, TheMessageIsMadeFromWhatHasChanged) {
    auto store = open();
    ASSERT_TRUE(store.record(stateOf("LINE1", {{"A", "1"}}), by, [](const Recorded& entry) {
        return "LINE1: " + std::to_string(entry.changes.added.size()) + " new\n\nRobot: LINE1\n";
    }));
    const auto entries = store.log({});
    ASSERT_EQ(entries->size(), 1U);
    EXPECT_EQ(entries->front().message, "LINE1: 1 new\n\nRobot: LINE1\n");
    EXPECT_EQ(entries->front().by, by);
    EXPECT_TRUE(entries->front().before.empty());
}

TEST_F(HistoryStoreTest, AFileThatCouldNotBeFetchedKeepsItsLastVersion) {
    auto store = open();
    record(store, "LINE1", {{"A", "1"}, {"B", "1"}});
    auto state = stateOf("LINE1", {{"B", "2"}});
    state.unfetched = {"A", "NEVER SEEN"};
    EXPECT_EQ(record(store, state).changes, StateChanges{.changed = {"B"}});
    EXPECT_EQ(filesIn(store, "LINE1"), (Files{{"A", "1"}, {"B", "2"}}));
}

TEST_F(HistoryStoreTest, NothingIsGoneWithoutAWholeDirectory) {
    auto store = open();
    record(store, "LINE1", {{"A", "1"}, {"B", "1"}});
    auto state = stateOf("LINE1", {{"C", "1"}});
    state.isDirectoryWhole = false;
    EXPECT_EQ(record(store, state).changes, StateChanges{.added = {"C"}});
    EXPECT_EQ(filesIn(store, "LINE1"), (Files{{"A", "1"}, {"B", "1"}, {"C", "1"}}));
}

TEST_F(HistoryStoreTest, ARobotWhoseLastFileIsGoneHasNoFolder) {
    auto store = open();
    record(store, "LINE2", {{"A", "1"}});
    record(store, "LINE1", {{"A", "1"}});
    EXPECT_EQ(record(store, "LINE1", {}).changes, StateChanges{.gone = {"A"}});
    EXPECT_EQ(*store.robots(), std::vector<std::string>{"LINE2"});
    EXPECT_FALSE(folder.has("history/LINE1"));
    EXPECT_EQ(filesIn(store, "LINE2"), (Files{{"A", "1"}}));
}

TEST_F(HistoryStoreTest, OneRobotsEntryLeavesTheOthersAlone) {
    auto store = open();
    record(store, "LINE1", {{"A", "1"}});
    record(store, "LINE2", {{"A", "2"}});
    record(store, "LINE1", {{"A", "3"}});
    EXPECT_EQ(filesIn(store, "LINE2"), (Files{{"A", "2"}}));
    EXPECT_EQ(*store.robots(), (std::vector<std::string>{"LINE1", "LINE2"}));
}

TEST_F(HistoryStoreTest, AnyNameComesBackAsItWas) {
    const Files files{{".git", "1"},      {"..", "2"},           {"CON.JBI", "3"},
                      {"A:B", "4"},       {"a:b", "5"},          {"x/../../y", "6"},
                      {"END. ", "7"},     {"GIT~1", "8"},        {"Weld.JBI", "9"},
                      {"WELD.JBI", "10"}, {".gitmodules", "11"}, {"\x83\x5C", "12"},
                      {"%41", "13"},      {"A", "14"},           {"\n", "15"}};
    const std::string robot = "../LINE:1";
    auto store = open();
    record(store, robot, files);
    EXPECT_EQ(filesIn(store, robot), files);
    EXPECT_EQ(*store.robots(), std::vector<std::string>{robot});
    EXPECT_FALSE(folder.has("LINE:1"));
    EXPECT_EQ(folder.read("history/%2E.%2FLINE%3A1/%57eld.JBI") +
                  folder.read("history/%2E.%2FLINE%3A1/WELD.JBI"),
              "910");
    EXPECT_EQ(record(store, robot, files).end, Recorded::End::Unchanged);
}

TEST_F(HistoryStoreTest, ANameThatNoDiskHoldsIsToldAndTheRestIsStored) {
    const std::string longName(250, 'X');
    auto store = open();
    const auto recorded = record(store, "LINE1", {{longName, "1"}, {"A", "1"}});
    ASSERT_EQ(recorded.notStored.size(), 1U);
    EXPECT_EQ(recorded.notStored[0].name, longName);
    EXPECT_EQ(recorded.notStored[0].reason, "");
    EXPECT_EQ(recorded.changes, StateChanges{.added = {"A"}});
}

TEST_F(HistoryStoreTest, ANameThatAControllerShowsTwiceIsOneFile) {
    auto store = open();
    auto state = stateOf("LINE1", {{"A", "1"}});
    state.files.push_back(state.files.front());
    EXPECT_EQ(record(store, state).changes, StateChanges{.added = {"A"}});
}

TEST_F(HistoryStoreTest, AFetchedFileThatCannotBeReadKeepsItsLastVersion) {
    auto store = open();
    record(store, "LINE1", {{"A", "1"}, {"B", "1"}});
    auto state = stateOf("LINE1", {{"A", "2"}});
    state.files.push_back({"B", folder.path("fetched/none")});
    std::size_t told = 0;
    const auto recorded = store.record(state, by, [&told](const Recorded& entry) {
        told = entry.notStored.size();
        return "x";
    });
    ASSERT_TRUE(recorded);
    ASSERT_EQ(recorded->notStored.size(), 1U);
    EXPECT_EQ(recorded->notStored[0].name, "B");
    EXPECT_NE(recorded->notStored[0].reason, "");
    EXPECT_EQ(told, 1U);
    EXPECT_EQ(filesIn(store, "LINE1"), (Files{{"A", "2"}, {"B", "1"}}));
}

TEST_F(HistoryStoreTest, ReadsEveryOlderVersion) {
    auto store = open();
    std::vector<std::string> versions;
    for (const char* content : {"1", "2", "3"})
        versions.push_back(record(store, "LINE1", {{"A", content}}).version);
    for (std::size_t at = 0; at < versions.size(); ++at)
        EXPECT_EQ(filesIn(store, "LINE1", versions[at]), (Files{{"A", std::to_string(at + 1)}}));
    EXPECT_EQ(*store.read("LINE1", "B"), std::nullopt);
    EXPECT_EQ(*store.read("LINE2", "A"), std::nullopt);
    EXPECT_FALSE(store.read("LINE1", "A", "nothing"));
    EXPECT_FALSE(store.read("LINE1", "A", std::string(40, '1')));
}

TEST_F(HistoryStoreTest, ListsTheLatestEntryFirst) {
    auto store = open();
    message = "first";
    const auto first = record(store, "LINE1", {{"A", "1"}});
    message = "second";
    record(store, "LINE2", {{"A", "1"}});
    const auto entries = *store.log({});
    ASSERT_EQ(entries.size(), 2U);
    EXPECT_EQ(entries[0].message, "second");
    EXPECT_EQ(entries[0].before, std::vector<std::string>{first.version});
    EXPECT_EQ(entries[1].version, first.version);
    EXPECT_EQ(store.log({.most = 1})->front().message, "second");
}

TEST_F(HistoryStoreTest, ListsWhatConcernsOneRobotOrFileOrTime) {
    auto store = open();
    const auto a1 = record(store, "LINE1", {{"A", "1"}}).version;
    const auto other = record(store, "LINE2", {{"A", "1"}}).version;
    const auto b1 = record(store, "LINE1", {{"A", "1"}, {"B", "1"}}).version;
    const auto a2 = record(store, "LINE1", {{"A", "2"}, {"B", "1"}}).version;
    const auto gone = record(store, "LINE1", {{"B", "1"}}).version;
    const auto list = [&](const HistoryFilter& filter) {
        std::vector<std::string> versions;
        const auto entries = store.log(filter);
        for (const auto& entry : *entries)
            versions.push_back(entry.version);
        return versions;
    };
    using Versions = std::vector<std::string>;
    EXPECT_EQ(list({.robot = "LINE1"}), (Versions{gone, a2, b1, a1}));
    EXPECT_EQ(list({.robot = "LINE2"}), Versions{other});
    EXPECT_EQ(list({.robot = "LINE1", .file = "A"}), (Versions{gone, a2, a1}));
    EXPECT_EQ(list({.robot = "LINE1", .file = "B"}), Versions{b1});
    EXPECT_EQ(list({.robot = "LINE1", .file = "C"}), Versions{});
    EXPECT_EQ(list({.robot = "LINE3"}), Versions{});
    EXPECT_EQ(list({.since = by.time - 60}), (Versions{gone, a2}));
    EXPECT_EQ(list({.until = by.time - 180}), (Versions{other, a1}));
    EXPECT_EQ(list({.robot = "LINE1", .most = 2}), (Versions{gone, a2}));
}

TEST_F(HistoryStoreTest, FindsAVersionByItsFirstDigits) {
    auto store = open();
    const auto version = record(store, "LINE1", {{"A", "1"}}).version;
    EXPECT_EQ(*store.version(version.substr(0, 4)), version);
    EXPECT_EQ(*store.version(version), version);
    for (const std::string& wrong : {std::string(), version.substr(0, 3), std::string("zzzzz"),
                                     version + "0", std::string(10, '0')})
        EXPECT_FALSE(store.version(wrong)) << wrong;
}

TEST_F(HistoryStoreTest, NeverUsesARepositoryAboveItsFolder) {
    open();
    EXPECT_FALSE(HistoryStore::open(folder.path("history/inside")));
    ASSERT_TRUE(HistoryStore::openOrMake(folder.path("history/inside")));
    EXPECT_TRUE(folder.has("history/inside/.git"));
}

TEST_F(HistoryStoreTest, RefusesAFolderWithAnythingElseInIt) {
    folder.write("history/mine.txt", "mine");
    EXPECT_FALSE(HistoryStore::openOrMake(place()));
    EXPECT_FALSE(folder.has("history/.git"));
    folder.write("file", "mine");
    EXPECT_FALSE(HistoryStore::openOrMake(folder.path("file")));
}

TEST_F(HistoryStoreTest, CompletesARepositoryWhoseMakingWasCutOff) {
    folder.makeFolder("history/.git/objects");
    auto store = open();
    EXPECT_EQ(record(store, "LINE1", {{"A", "1"}}).end, Recorded::End::Committed);
}

TEST_F(HistoryStoreTest, SeveralProgramsMayBeginWithItAtOnce) {
    constexpr int programs = 4;
    std::vector<std::thread> running;
    running.reserve(programs);
    std::atomic<int> opened = 0;
    for (int program = 0; program < programs; ++program)
        running.emplace_back([&] { opened += HistoryStore::openOrMake(place()) ? 1 : 0; });
    for (auto& one : running)
        one.join();
    EXPECT_EQ(opened, programs);
    auto store = open();
    EXPECT_EQ(record(store, "LINE1", {{"A", "1"}}).end, Recorded::End::Committed);
}

TEST_F(HistoryStoreTest, MakesTheFoldersAboveIt) {
    ASSERT_TRUE(HistoryStore::openOrMake(folder.path("a/b/c")));
    EXPECT_TRUE(folder.has("a/b/c/.git/HEAD"));
}

TEST_F(HistoryStoreTest, ReadingMakesNothing) {
    EXPECT_FALSE(HistoryStore::open(place()));
    EXPECT_FALSE(folder.has("history"));
}

TEST_F(HistoryStoreTest, WhatACutAtItsBeginningHasLeftIsMended) {
    record(*std::make_unique<HistoryStore>(open()), "LINE1", {{"A", "1"}});
    folder.write("history/.git/HEAD", "");
    folder.write("history/.git/config.lock", "half");
    folder.write("history/.git/config",
                 "[core]\n\trepositoryformatversion = 0\n\tautocrlf = true\n");
    auto store = open();
    EXPECT_EQ(record(store, "LINE1", {{"A", "2"}}).end, Recorded::End::Committed);
    EXPECT_EQ(folder.read("history/.git/HEAD"), "ref: refs/heads/main\n");
    EXPECT_THAT(folder.read("history/.git/config"), testing::HasSubstr("autocrlf = false"));
    EXPECT_EQ(store.log({})->size(), 2U);
}

TEST_F(HistoryStoreTest, ALockThatACrashHasLeftStopsNobody) {
    auto store = open();
    record(store, "LINE1", {{"A", "1"}});
    folder.write("history/.git/refs/heads/main.lock", "half");
    folder.write("history/.git/vantrel-index.lock", "half");
    folder.write("history/.git/vantrel.lock", "");
    store.patience = std::chrono::milliseconds(0);
    EXPECT_EQ(record(store, "LINE1", {{"A", "2"}}).end, Recorded::End::Committed);
    EXPECT_FALSE(folder.has("history/.git/refs/heads/main.lock"));
}

TEST_F(HistoryStoreTest, TwoProgramsDoNotWriteAtOnce) {
    auto store = open();
    const auto other = HeldFile::lock(folder.path("history/.git/vantrel.lock"));
    ASSERT_TRUE(other && *other);
    store.writerPatience = std::chrono::milliseconds(0);
    EXPECT_EQ(record(store, "LINE1", {{"A", "1"}}).end, Recorded::End::InUse);
    EXPECT_TRUE(store.log({})->empty());
}

TEST_F(HistoryStoreTest, TheBranchIsFollowedWhoeverHasMovedIt) {
    auto store = open();
    auto other = open();
    record(store, "LINE1", {{"A", "1"}});
    record(other, "LINE2", {{"A", "1"}});
    record(store, "LINE1", {{"A", "2"}});
    EXPECT_EQ(store.log({})->size(), 3U);
    EXPECT_EQ(filesIn(store, "LINE2"), (Files{{"A", "1"}}));
}

TEST_F(HistoryStoreTest, PlainFilesThatACrashHasLeftBehindAreBroughtUpToDate) {
    auto store = open();
    const auto first = record(store, "LINE1", {{"A", "1"}, {"B", "1"}});
    record(store, "LINE1", {{"A", "2"}});
    folder.write("history/.git/vantrel-shown", first.version + "\n");
    folder.write("history/LINE1/A", "1");
    folder.write("history/LINE1/B", "1");
    EXPECT_EQ(record(store, "LINE1", {{"A", "2"}}).end, Recorded::End::Unchanged);
    EXPECT_EQ(folder.read("history/LINE1/A"), "2");
    EXPECT_FALSE(folder.has("history/LINE1/B"));
}

TEST_F(HistoryStoreTest, PlainFilesComeBackWhenNobodyKnowsWhatTheyShow) {
    auto store = open();
    record(store, "LINE1", {{"A", "1"}});
    folder.write("history/.git/vantrel-shown", "damaged");
    std::filesystem::remove(folder.path("history/LINE1/A"));
    record(store, "LINE1", {{"A", "1"}});
    EXPECT_EQ(folder.read("history/LINE1/A"), "1");
}

TEST_F(HistoryStoreTest, APlainFileThatSomebodyHasChangedIsKeptUnderAnotherName) {
    auto store = open();
    record(store, "LINE1", {{"A", "1"}, {"B", "1"}});
    folder.write("history/LINE1/A", "mine");
    folder.write("history/LINE1/B", "mine too");
    folder.write("history/LINE1/C", "and mine");
    const auto recorded = record(store, "LINE1", {{"A", "2"}, {"C", "1"}});
    EXPECT_EQ(recorded.setAside.size(), 3U);
    EXPECT_EQ(folder.read("history/LINE1/A"), "2");
    EXPECT_EQ(folder.read("history/LINE1/A.kept-1"), "mine");
    EXPECT_FALSE(folder.has("history/LINE1/B"));
    EXPECT_EQ(folder.read("history/LINE1/B.kept-1"), "mine too");
    EXPECT_EQ(folder.read("history/LINE1/C"), "1");
    EXPECT_EQ(folder.read("history/LINE1/C.kept-1"), "and mine");
}

TEST_F(HistoryStoreTest, ARobotOfASpecialNameTakesNobodysPlace) {
    auto store = open();
    record(store, ".gitattributes", {{"A", "1"}});
    EXPECT_EQ(folder.read("history/.gitattributes"), "* -text\n");
    EXPECT_EQ(filesIn(store, ".gitattributes"), (Files{{"A", "1"}}));
    EXPECT_EQ(*store.robots(), std::vector<std::string>{".gitattributes"});
}

TEST_F(HistoryStoreTest, WhatSomebodyElseHasPutBesideTheFilesStays) {
    auto store = open();
    record(store, "LINE1", {{"A", "1"}, {"B", "1"}});
    folder.write("history/LINE1/notes.txt", "mine");
    record(store, "LINE1", {});
    EXPECT_EQ(folder.read("history/LINE1/notes.txt"), "mine");
    EXPECT_FALSE(folder.has("history/LINE1/A"));
}

#ifndef _WIN32
int git(const TemporaryFolder& folder, const std::string& command) {
    return std::system(("git -c safe.directory='*' -C '" + folder.path("history") + "' " + command +
                        " >'" + folder.path("git.txt") + "' 2>&1")
                           .c_str());
}

TEST_F(HistoryStoreTest, AnyGitProgramReadsIt) {
    auto store = open();
    record(store, "LINE1", {{"A.JBI", "1\r\n"}, {"..", "x"}, {"CON", "y"}, {".git", "z"}});
    record(store, "LINE1", {{"A.JBI", "2\r\n"}});
    EXPECT_EQ(git(folder, "fsck --full --strict"), 0) << folder.read("git.txt");
    EXPECT_EQ(folder.read("git.txt"), "");
    EXPECT_EQ(git(folder, "status --porcelain"), 0);
    EXPECT_EQ(folder.read("git.txt"), "");
    EXPECT_EQ(git(folder, "show main~1:LINE1/A.JBI"), 0);
    EXPECT_EQ(folder.read("git.txt"), "1\r\n");
    EXPECT_EQ(git(folder, "log --format=%an,%ae,%s,%ad --date=iso"), 0);
    EXPECT_THAT(folder.read("git.txt"),
                testing::HasSubstr("Operator,operator@pc,LINE1: changed,2023-"));
    EXPECT_THAT(folder.read("git.txt"), testing::HasSubstr("+0900"));
}

TEST_F(HistoryStoreTest, GoesOnAfterAnotherGitProgramHasPackedIt) {
    auto store = open();
    record(store, "LINE1", {{"A", "1"}});
    record(store, "LINE1", {{"A", "2"}});
    ASSERT_EQ(git(folder, "gc --quiet --prune=now"), 0) << folder.read("git.txt");
    ASSERT_EQ(git(folder, "pack-refs --all"), 0) << folder.read("git.txt");
    const auto recorded = record(store, "LINE1", {{"A", "3"}});
    EXPECT_EQ(recorded.changes, StateChanges{.changed = {"A"}});
    EXPECT_EQ(store.log({})->size(), 3U);
    EXPECT_EQ(git(folder, "fsck --full --strict"), 0) << folder.read("git.txt");
}

TEST_F(HistoryStoreTest, ALinkInPlaceOfAFileIsNotFollowed) {
    auto store = open();
    record(store, "LINE1", {{"A", "1"}});
    folder.write("elsewhere", "mine");
    for (const char* name : {"history/LINE1/A", "history/.git/vantrel-shown"}) {
        std::filesystem::remove(folder.path(name));
        std::filesystem::create_symlink(folder.path("elsewhere"), folder.path(name));
    }
    record(store, "LINE1", {{"A", "2"}});
    EXPECT_EQ(folder.read("elsewhere"), "mine");
    EXPECT_EQ(folder.read("history/LINE1/A"), "2");
}

TEST_F(HistoryStoreTest, ATreeOfSomebodyElseWritesNothingIntoTheRepository) {
    auto store = open();
    record(store, "LINE1", {{"A", "1"}});
    ASSERT_EQ(git(folder, "config user.email a@b && git -c safe.directory='*' -C '" + place() +
                              "' config user.name a"),
              0);
    folder.write("history/GIT~1/config", "hostile");
    folder.write("history/LINE1/link", "");
    std::filesystem::remove(folder.path("history/LINE1/link"));
    std::filesystem::create_symlink(folder.path("elsewhere"), folder.path("history/LINE1/link"));
    ASSERT_EQ(git(folder, "-c core.protectNTFS=false add -A"), 0) << folder.read("git.txt");
    ASSERT_EQ(git(folder, "commit -q -m hostile"), 0) << folder.read("git.txt");
    std::filesystem::remove_all(folder.path("history/GIT~1"));
    folder.write("history/.git/vantrel-shown", "unknown");
    record(store, "LINE1", {{"A", "2"}, {"link", "1"}});
    EXPECT_FALSE(folder.has("history/GIT~1"));
    EXPECT_FALSE(folder.has("elsewhere"));
    EXPECT_EQ(folder.read("history/LINE1/A"), "2");
    EXPECT_EQ(filesIn(store, "LINE1"), (Files{{"A", "2"}, {"link", "1"}}));
}

TEST_F(HistoryStoreTest, ALinkInPlaceOfARobotsFolderIsNotFollowed) {
    auto store = open();
    record(store, "LINE1", {{"A", "1"}});
    folder.makeFolder("elsewhere");
    std::filesystem::remove_all(folder.path("history/LINE1"));
    std::filesystem::create_directory_symlink(folder.path("elsewhere"),
                                              folder.path("history/LINE1"));
    const auto recorded = store.record(stateOf("LINE1", {{"A", "2"}, {"B", "1"}}), by,
                                       [](const Recorded&) { return "x"; });
    ASSERT_TRUE(recorded);
    EXPECT_EQ(recorded->end, Recorded::End::Committed);
    EXPECT_THAT(recorded->treeProblem, testing::HasSubstr("LINE1"));
    EXPECT_TRUE(std::filesystem::is_empty(folder.path("elsewhere")));
}
#endif

} // namespace
} // namespace vantrel::tests
