#include "SessionWorld.h"
#include "support/NamedRow.h"

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <tuple>

namespace vantrel {
namespace {

using tests::SessionWorld;

/// One public operation in a world where it has all kinds of work: jobs to be replaced, local jobs,
/// a partly known list.
struct Scenario : tests::NamedRow {
    bool (*run)(SessionWorld&);
    bool isList;         ///< a failure records the entry's index
    bool readsDirectory; ///< over the first link
};

bool readDirectory(SessionWorld& world) {
    std::vector<std::string> list;
    return world.session->ReadDirectory(list);
}

bool addJobs(SessionWorld& world) {
    for (const char* name : {"A.JBI", "LOCAL.JBI", "B.JBI"})
        world.session->AddJobList(name);
    return true;
}

bool addVariables(SessionWorld& world) {
    for (const char* entry : {"B1=5", "", "P2=1,2,3"})
        world.session->AddVarList(entry);
    return true;
}

bool readVariable(SessionWorld& world) {
    std::string entry = "B1=0";
    return world.session->VarUpLoad(entry);
}

const Scenario scenarios[] = {
    {"ReadDirectory", readDirectory, false, true},
    {"JobDownLoad", [](SessionWorld& world) { return world.session->JobDownLoad("A.JBI", true); },
     false, true},
    {"JobUpLoad", [](SessionWorld& world) { return world.session->JobUpLoad("B.JBI", true); },
     false, false},
    {"JobDelete", [](SessionWorld& world) { return world.session->JobDelete("A.JBI"); }, false,
     false},
    {"JobListDownLoad",
     [](SessionWorld& world) { return addJobs(world) && world.session->JobListDownLoad(); }, true,
     true},
    {"JobListUpLoad",
     [](SessionWorld& world) { return addJobs(world) && world.session->JobListUpLoad(); }, true,
     false},
    {"VarDownLoad", [](SessionWorld& world) { return world.session->VarDownLoad("B1=5"); }, false,
     false},
    {"VarUpLoad", readVariable, false, false},
    {"VarListDownLoad",
     [](SessionWorld& world) { return addVariables(world) && world.session->VarListDownLoad(); },
     true, false},
    {"VarListUpLoad",
     [](SessionWorld& world) { return addVariables(world) && world.session->VarListUpLoad(); },
     true, false},
};

struct Fault : tests::NamedRow {
    bool fromThereOn;
    bool doNothing;
    std::int16_t code;
};

constexpr Fault faults[] = {
    {"OnceNegative", false, false, -7},   {"OncePositive", false, false, 4711},
    {"OnceDoingNothing", false, true, 0}, {"EverNegative", true, false, -7},
    {"EverPositive", true, false, 4711},  {"EverDoingNothing", true, true, 0},
};

constexpr std::int32_t indexBefore = 99;
constexpr const char* address = "10.0.0.1";

/// The places of the entries that a list really transfers: between them stands a local job or a
/// blank line.
constexpr std::int32_t entryIndexes[] = {0, 2};

tests::FakeController& controllerOf(SessionWorld& world) {
    return world.library.at(world.mode == TransferMode::Bsc ? "COM1" : address);
}

void fill(SessionWorld& world, TransferMode mode) {
    world.mode = mode;
    world.session->IPaddress = address;
    world.question.answers.assign(20, Answer::Yes);
    world.boxes.answers.assign(20, true);
    for (const char* name : {"A", "B"}) {
        world.pc.write(std::string(name) + ".JBI", SessionWorld::job(name, "PC"));
        controllerOf(world).put(std::string(name) + ".JBI", SessionWorld::job(name, "ROBOT"));
    }
    world.pc.write("LOCAL.JBI", SessionWorld::job("LOCAL"));
    world.pc.write("LocalJob.lst", "LOCAL\n");
    controllerOf(world).variables[{0, 1}] = {5};
    // A record with an index that no step of the runs gives.
    for (std::int32_t i = 0; i < indexBefore; ++i)
        world.session->AddVarList("");
    world.session->AddVarList("no entry");
    world.session->VarListDownLoad();
    world.session->VarListClear();
}

/// The name under which the session records a library function.
std::string stepOf(const std::string& function) {
    return function.starts_with("BscFind") ? "BscFind" : function;
}

using Call = tests::FakeZurolink::Call;
using Calls = std::vector<Call>;

bool isClosing(const Call& call) {
    return call.function == "BscDisConnect" || call.function == "BscClose";
}

bool transfersAnEntry(const Call& call) {
    return call.function == "BscDownLoad" || call.function == "BscUpLoad" ||
           call.function == "BscGetVarData" || call.function == "BscPutVarData";
}

/// The closing of a link over which a job was deleted: the job is gone, whatever comes of it.
bool closesADeletion(const Calls& calls, Calls::const_iterator call) {
    if (!isClosing(*call))
        return false;
    const auto work = std::find_if_not(std::make_reverse_iterator(call), calls.rend(), isClosing);
    return work != calls.rend() && work->function == "BscDeleteJob" && !work->disturbed;
}

class FaultLoopTest : public testing::TestWithParam<std::tuple<Scenario, Fault, TransferMode>> {
  protected:
    const Scenario& scenario() const { return std::get<0>(GetParam()); }
    const Fault& fault() const { return std::get<1>(GetParam()); }

    /// Runs the scenario with call `n` disturbed; false when no call was, because there are fewer.
    bool runWithCall(int n) {
        SessionWorld world;
        fill(world, std::get<2>(GetParam()));
        world.library.disturb({.function = "",
                               .call = n,
                               .fromThereOn = fault().fromThereOn,
                               .doNothing = fault().doNothing,
                               .code = fault().code});
        world.panel.show("command");
        const bool result = scenario().run(world);
        EXPECT_FALSE(world.panel.isVisible());
        checkLinks(world);
        checkSources(world);
        if (!fault().doNothing)
            checkRecord(world, result);
        return world.library.callCount() >= n;
    }

    /// Every link that was opened is closed, unless it would not disconnect or close.
    void checkLinks(const SessionWorld& world) const {
        int open = 0;
        bool left = false;
        for (const auto& call : world.library.calls()) {
            if (call.function == "BscOpen" && call.result >= 0) {
                EXPECT_TRUE(open == 0 || left);
                open = 1;
                left = false;
            }
            if (call.function == "BscDisConnect" && call.result != 1)
                left = true;
            if (call.function == "BscClose") {
                EXPECT_FALSE(left) << "closed although it would not disconnect";
                open = 0;
            }
        }
        EXPECT_TRUE(open == 0 || left);
    }

    /// Whatever was to be copied is still where it came from, whole.
    void checkSources(SessionWorld& world) const {
        for (const char* name : {"A", "B"}) {
            const std::string file = std::string(name) + ".JBI";
            const std::string onPC = world.pc.read(file);
            EXPECT_TRUE(onPC == SessionWorld::job(name, "PC") ||
                        onPC == SessionWorld::job(name, "ROBOT"))
                << file << " is damaged on the PC";
            const bool deletes = world.library.callCount("BscDeleteJob") > 0;
            EXPECT_TRUE(deletes || controllerOf(world).has(file));
        }
        const std::filesystem::directory_iterator files(world.pc.path());
        EXPECT_EQ(std::distance(begin(files), end(files)), 4) << "something is left over";
    }

    /// The disturbed call that makes the operation fail; the end when none does. A positive handle
    /// that the library does not know fails at the step after it.
    Calls::const_iterator decisive(const Calls& calls) const {
        auto call = calls.begin();
        while (call != calls.end() && (!call->disturbed || closesADeletion(calls, call)))
            ++call;
        const bool strangeHandle =
            call != calls.end() && call->function == "BscOpen" && call->result >= 0;
        return strangeHandle ? std::next(call) : call;
    }

    void checkRecord(const SessionWorld& world, bool result) const {
        const Calls& calls = world.library.calls();
        const auto failed = decisive(calls);
        if (failed == calls.end()) {
            EXPECT_TRUE(result);
            checkHarmless(world);
            return;
        }
        EXPECT_FALSE(result) << failed->text;
        EXPECT_EQ(world.session->ErrorFunction(), stepOf(failed->function));
        EXPECT_EQ(world.session->ErrorCode(), failed->result);
        EXPECT_EQ(world.session->ErrorIndex(), expectedIndex(calls, failed)) << failed->text;
    }

    /// Without a decisive call the record is as it was, or tells of the closing that failed.
    void checkHarmless(const SessionWorld& world) const {
        const Calls& calls = world.library.calls();
        const auto last = std::find_if(calls.rbegin(), calls.rend(),
                                       [](const Call& call) { return call.disturbed; });
        EXPECT_EQ(world.error(), last == calls.rend()
                                     ? " 22 99"
                                     : last->function + " " + std::to_string(last->result) + " 99");
    }

    std::int32_t expectedIndex(const Calls& calls, Calls::const_iterator failed) const {
        const auto link = linkOf(calls, failed);
        const bool inDirectory =
            scenario().readsDirectory && link == std::find_if(calls.begin(), calls.end(), opens);
        if (scenario().isList && !inDirectory)
            return entryIndexes[std::count_if(calls.begin(), link, transfersAnEntry)];
        if (failed->function.starts_with("BscFind"))
            return static_cast<std::int32_t>(std::count_if(calls.begin(), failed, findsAnEntry));
        const bool keepsIndex = isClosing(*failed) || failed->function == "BscSelectJob" ||
                                failed->function == "BscDeleteJob" ||
                                failed->function == "BscGetVarData" ||
                                failed->function == "BscPutVarData";
        return keepsIndex ? indexBefore : 0;
    }

    static bool opens(const Call& call) { return call.function == "BscOpen"; }
    static bool findsAnEntry(const Call& call) {
        return call.function.starts_with("BscFind") && call.result == 0;
    }
    /// The opening of the link to which a call belongs.
    static Calls::const_iterator linkOf(const Calls& calls, Calls::const_iterator call) {
        while (call != calls.begin() && !opens(*call))
            --call;
        return call;
    }
};

TEST_P(FaultLoopTest, EveryCallFailsOnceAndNothingIsLostOrLeftOpen) {
    int n = 1;
    while (runWithCall(n) && !HasFailure())
        ++n;
    RecordProperty("runs", n);
    EXPECT_GT(n, 5);
}

INSTANTIATE_TEST_SUITE_P(Operations, FaultLoopTest,
                         testing::Combine(testing::ValuesIn(scenarios), testing::ValuesIn(faults),
                                          testing::Values(TransferMode::Bsc,
                                                          TransferMode::HispeedLink)),
                         [](const auto& row) {
                             const bool serial = std::get<2>(row.param) == TransferMode::Bsc;
                             return std::string(std::get<0>(row.param).name) + "_" +
                                    std::get<1>(row.param).name + (serial ? "_Serial" : "_Hispeed");
                         });

} // namespace
} // namespace vantrel
