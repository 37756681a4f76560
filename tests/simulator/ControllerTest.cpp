#include "simulator/Controller.h"

#include "simulator/ResultCodes.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

namespace vantrel::simulator {
namespace {

using testing::ElementsAre;

constexpr const char* job = "/JOB\r\n//NAME WELD1\r\n/STEPS\r\nbegin\r\nfinish\r\n";
constexpr const char* newerJob = "/JOB\r\n//NAME WELD1\r\n/STEPS\r\nbegin\r\n  rest 1 s\r\n";

class ControllerTest : public testing::Test {
  protected:
    ControllerTest() { settings.folder = folder.path(); }
    Controller controller() const { return Controller(settings); }

    tests::TemporaryFolder folder;
    ControllerSettings settings;
};

TEST_F(ControllerTest, KeepsAJobUnderTheNameThatStandsInIt) {
    EXPECT_EQ(controller().receive("OTHER.JBI", job), code::done);

    EXPECT_EQ(folder.read("WELD1.JBI"), job);
    EXPECT_FALSE(folder.has("OTHER.JBI"));
}

TEST_F(ControllerTest, RefusesAJobThatExistsAndKeepsIt) {
    folder.write("WELD1.JBI", job);

    EXPECT_EQ(controller().receive("WELD1.JBI", newerJob), code::jobExists);
    EXPECT_EQ(folder.read("WELD1.JBI"), job);
}

TEST_F(ControllerTest, ASetOfRelatedJobsReplacesTheJob) {
    folder.write("WELD1.JBI", job);

    EXPECT_EQ(controller().receive("WELD1.JBR", newerJob), code::done);
    EXPECT_EQ(folder.read("WELD1.JBI"), newerJob);
    EXPECT_FALSE(folder.has("WELD1.JBR"));
}

TEST_F(ControllerTest, ASetOfRelatedJobsReplacesNoProtectedOrRunningJob) {
    folder.write("WELD1.JBI", job);
    settings.protectedJobs = {"WELD1"};
    EXPECT_EQ(controller().receive("WELD1.JBR", newerJob), code::jobProtected);
    settings.protectedJobs = {};
    settings.runningJobs = {"WELD1"};
    EXPECT_EQ(controller().receive("WELD1.JBR", newerJob), code::jobRunning);
    EXPECT_EQ(folder.read("WELD1.JBI"), job);
}

TEST_F(ControllerTest, ReplacesDataFiles) {
    folder.write("TOOL.CND", "old");

    EXPECT_EQ(controller().receive("tool.cnd", "new"), code::done);
    EXPECT_EQ(folder.read("TOOL.CND"), "new");
}

TEST_F(ControllerTest, RefusesWhatIsNoFileOfAController) {
    EXPECT_EQ(controller().receive("A.JBI", "/JOB\r\n"), code::headerMissing);
    EXPECT_EQ(controller().receive("A.TXT", job), code::unknownFileKind);
    EXPECT_EQ(controller().receive("variables.txt", "B001=1"), code::unknownFileKind);
    EXPECT_EQ(controller().receive("../A.DAT", "x"), code::nameInvalid);
    EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
}

TEST_F(ControllerTest, HandsOutByteForByteWhatItWasSent) {
    std::string bytes = "//NAME BYTES\r\n";
    for (int byte = 0; byte < 256; ++byte)
        bytes += static_cast<char>(byte);
    ASSERT_EQ(controller().receive("BYTES.JBI", bytes), code::done);

    EXPECT_EQ(*controller().deliver("BYTES.JBI"), bytes);
    EXPECT_EQ(*controller().deliver("bytes.jbr"), bytes);
    EXPECT_EQ(*controller().deliver("BYTES"), bytes);
    EXPECT_EQ(controller().deliver("OTHER.JBI").code(), code::notFound);
}

TEST_F(ControllerTest, HidesFilesThatCanStillBeReceived) {
    folder.write("ALLPARA.PRM", "x");
    folder.write("LIMIT.PRM", "x");
    settings.hidden = {"ALLPARA.PRM"};

    EXPECT_THAT(*controller().directory(), ElementsAre("LIMIT.PRM"));
    EXPECT_EQ(*controller().deliver("ALLPARA.PRM"), "x");
}

TEST_F(ControllerTest, FindsAJobWithAndWithoutItsExtension) {
    folder.write("αWELD.JBI", job);
    folder.write("A.DAT", "x");

    EXPECT_EQ(*controller().findJob("αweld"), "αWELD");
    EXPECT_EQ(*controller().findJob("αWELD.jbi"), "αWELD");
    EXPECT_EQ(controller().findJob("ΑWELD").code(), code::notFound) << "upper-case alpha";
    EXPECT_EQ(controller().findJob("A.DAT").code(), code::notFound);
    EXPECT_EQ(controller().findJob("../A").code(), code::nameInvalid);
    EXPECT_EQ(controller().findJob("").code(), code::nameInvalid);
}

TEST_F(ControllerTest, DeletesAJobUnlessItIsProtectedOrRunning) {
    for (const char* name : {"A.JBI", "B.JBI", "C.JBI"})
        folder.write(name, job);
    settings.protectedJobs = {"A"};
    settings.runningJobs = {"B"};

    EXPECT_EQ(controller().deleteJob("A"), code::jobProtected);
    EXPECT_EQ(controller().deleteJob("B"), code::jobRunning);
    EXPECT_EQ(controller().deleteJob("C"), code::done);
    EXPECT_EQ(controller().deleteJob("C"), code::notFound);
    EXPECT_THAT(*controller().directory(), ElementsAre("A.JBI", "B.JBI"));
}

TEST_F(ControllerTest, RefusesWhatItsMemoryDoesNotHold) {
    settings.memory = 10;

    EXPECT_EQ(controller().receive("A.DAT", "12345678"), code::done);
    EXPECT_EQ(controller().receive("B.DAT", "123"), code::memoryFull);
    EXPECT_EQ(controller().receive("B.DAT", "12"), code::done);
    settings.memory = 5;
    EXPECT_EQ(controller().receive("C.DAT", ""), code::memoryFull);
    EXPECT_FALSE(folder.has("C.DAT"));
}

TEST_F(ControllerTest, KeepsVariables) {
    EXPECT_EQ(*controller().variable(0, 5), VariableValues{});
    EXPECT_EQ(controller().setVariable(0, 5, {12}), code::done);
    EXPECT_EQ(*controller().variable(0, 5), VariableValues{12});
    EXPECT_EQ(folder.read("variables.txt"), "B005=12\r\n");
}

TEST_F(ControllerTest, RefusesVariablesThatItDoesNotHave) {
    EXPECT_EQ(controller().variable(7, 0).code(), code::variableKind);
    EXPECT_EQ(controller().variable(0, 1000).code(), code::variableNumber);
    EXPECT_EQ(controller().setVariable(7, 0, {}), code::variableKind);
    EXPECT_EQ(controller().setVariable(0, -1, {}), code::variableNumber);
    EXPECT_EQ(controller().setVariable(0, 5, {256}), code::variableValue);
    EXPECT_FALSE(folder.has("variables.txt"));
}

TEST_F(ControllerTest, VariablesThatCannotBeReadAreItsOwnFault) {
    folder.makeFolder("variables.txt");

    EXPECT_EQ(controller().variable(0, 5).code(), code::controllerFault);
    EXPECT_EQ(controller().setVariable(0, 5, {1}), code::controllerFault);
}

} // namespace
} // namespace vantrel::simulator
