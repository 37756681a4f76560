#include "SessionWorld.h"
#include "link/SessionErrorRecord.h"
#include "link/SessionOperations.h"
#include "support/NamedRow.h"

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <iterator>
#include <set>
#include <tuple>

namespace vantrel {
namespace {

using tests::SessionWorld;

/// One public operation, first in the name, in a world where it has all kinds of work: jobs to be
/// replaced, local jobs, a partly known list.
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
    {"JobDownLoad_Asked", [](SessionWorld& world) { return world.session->JobDownLoad("A.JBI"); },
     false, true},
    {"JobDownLoad_OfWhatWasAsked",
     [](SessionWorld& world) { return world.session->replaceJobs("A.JBI", {"A.JBI"}); }, false,
     true},
    {"JobDownLoad_New", [](SessionWorld& world) { return world.session->JobDownLoad("NEW.JBI"); },
     false, true},
    {"JobDownLoad_NamedInside",
     [](SessionWorld& world) { return world.session->JobDownLoad("COPY.JBI", true); }, false, true},
    {"JobDownLoad_Related",
     [](SessionWorld& world) { return world.session->JobDownLoad("A.JBR", true); }, false, true},
    {"JobUpLoad", [](SessionWorld& world) { return world.session->JobUpLoad("B.JBI", true); },
     false, false},
    {"JobUpLoad_New", [](SessionWorld& world) { return world.session->JobUpLoad("FAR.JBI"); },
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

/// 1, 0 and -1 are success for one function or another and failure for the rest.
constexpr Fault faults[] = {
    {"OnceNegative", false, false, -7},   {"OncePositive", false, false, 4711},
    {"OnceDoingNothing", false, true, 0}, {"EverNegative", true, false, -7},
    {"EverPositive", true, false, 4711},  {"EverDoingNothing", true, true, 0},
    {"OnceOne", false, false, 1},         {"OnceZero", false, false, 0},
    {"OnceMinusOne", false, false, -1},   {"EverOne", true, false, 1},
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
    for (const char* name : {"NEW", "LOCAL"})
        world.pc.write(std::string(name) + ".JBI", SessionWorld::job(name));
    for (const char* file : {"COPY.JBI", "A.JBR"})
        world.pc.write(file, SessionWorld::job("A", "COPY"));
    world.pc.write("LocalJob.lst", "LOCAL\n");
    controllerOf(world).put("FAR.JBI", SessionWorld::job("FAR"));
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

bool isSuccess(const Call& call) {
    if (call.function == "BscOpen")
        return call.result >= 0;
    if (call.function.starts_with("BscFind"))
        return call.result == 0 || call.result == -1;
    const bool isStep = call.function.starts_with("BscSet") || call.function == "BscConnect" ||
                        call.function == "BscDisConnect";
    return call.result == (isStep ? 1 : 0);
}

/// The library's word for it, which the disk belies.
bool bringsNothing(const Call& call) {
    return call.function == "BscUpLoad" && call.disturbed && isSuccess(call);
}

std::int16_t codeOf(const Call& call) {
    return bringsNothing(call) ? session_code::fileDidNotArrive : call.result;
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
    return work != calls.rend() && work->function == "BscDeleteJob" && isSuccess(*work);
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
        ++runs_;
        EXPECT_FALSE(world.panel.isVisible());
        checkLinks(world);
        checkSources(world, result);
        checkRecord(world, result);
        return world.library.callCount() >= n;
    }

    static void SetUpTestSuite() { runs_ = 0; }
    static void TearDownTestSuite() {
        RecordProperty("runs", runs_);
        std::cout << "fault loop: " << runs_ << " runs\n";
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

    /// Whatever was to be copied is still where it came from, whole, and nothing half is left over.
    void checkSources(SessionWorld& world, bool result) const {
        const bool mayBeNew =
            world.library.callCount("BscUpLoad") > 0 && (scenario().isList || result);
        for (const char* name : {"A", "B"}) {
            const std::string file = std::string(name) + ".JBI";
            const std::string onPC = world.pc.read(file);
            EXPECT_TRUE(onPC == SessionWorld::job(name, "PC") ||
                        (mayBeNew && onPC == SessionWorld::job(name, "ROBOT")))
                << file << " is damaged on the PC";
            const bool deletes = world.library.callCount("BscDeleteJob") > 0;
            EXPECT_TRUE(deletes || controllerOf(world).has(file));
        }
        EXPECT_EQ(world.pc.read("FAR.JBI"),
                  world.pc.has("FAR.JBI") ? SessionWorld::job("FAR") : "");
        EXPECT_TRUE(world.pc.has("FAR.JBI") ==
                    (std::string(scenario().name) == "JobUpLoad_New" && result));
        const std::set<std::string> known{"A.JBI",    "B.JBI", "NEW.JBI",      "LOCAL.JBI",
                                          "COPY.JBI", "A.JBR", "LocalJob.lst", "FAR.JBI"};
        for (const auto& entry : std::filesystem::directory_iterator(world.pc.path()))
            EXPECT_TRUE(known.contains(entry.path().filename().string())) << entry.path();
    }

    /// The call that makes the operation fail; the end when none does. One that does nothing, or
    /// gives a handle that the library does not know, may fail only a later one.
    static Calls::const_iterator decisive(const Calls& calls) {
        auto call = calls.begin();
        while (call != calls.end() &&
               ((isSuccess(*call) && !bringsNothing(*call)) || closesADeletion(calls, call)))
            ++call;
        return call;
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
        EXPECT_EQ(world.session->ErrorCode(), codeOf(*failed)) << failed->text;
        EXPECT_EQ(world.session->ErrorIndex(), expectedIndex(calls, failed)) << failed->text;
    }

    /// Without a decisive call the record is as it was, or tells of the closing that failed.
    static void checkHarmless(const SessionWorld& world) {
        const Calls& calls = world.library.calls();
        const auto last = std::find_if(calls.rbegin(), calls.rend(),
                                       [](const Call& call) { return !isSuccess(call); });
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

  private:
    inline static int runs_ = 0; ///< of the whole suite
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

/// Whether an operation called by its name reaches the library.
bool reachesTheLibrary(const std::string& name) {
    SessionWorld world;
    fill(world, TransferMode::Bsc);
    addJobs(world);
    world.session->AddVarList("B1=5");
    const bool isVariable = name.starts_with("Var");
    std::vector<SessionValue> arguments{std::string(isVariable ? "B1=5" : "A.JBI"), 1.0};
    if (!SessionOperations(*world.session).call(name, arguments)) {
        arguments = {1.0};
        EXPECT_TRUE(SessionOperations(*world.session).call(name, arguments)) << name;
    }
    return world.library.callCount() > 0;
}

TEST(FaultLoopScenariosTest, HoldEveryOperationThatReachesTheLibrary) {
    std::set<std::string> inTheLoop;
    for (const Scenario& scenario : scenarios) {
        const std::string name = scenario.name;
        inTheLoop.insert(name.substr(0, name.find('_')));
    }
    for (const std::string& name : SessionOperations::names())
        EXPECT_EQ(reachesTheLibrary(name), inTheLoop.contains(name)) << name;
}

} // namespace
} // namespace vantrel
