#include "SimulatorFixture.h"
#include "simulator/ControllerFileName.h"
#include "simulator/ControllerFolder.h"
#include "simulator/VariableStore.h"
#include "simulator/WorkingFolder.h"

#include <filesystem>

#include <sys/stat.h>

namespace vantrel::simulator {
namespace {

TEST(WorkingFolder, NeverWaitsForAPipe) {
    const tests::TemporaryFolder folder;
    ASSERT_EQ(mkfifo(folder.path("A.JBI").c_str(), 0600), 0);

    EXPECT_EQ(WorkingFolder(folder.path()).read("A.JBI").code(), code::pcFileNotFound);
}

TEST(VariableStore, RefusesALink) {
    const tests::TemporaryFolder folder;
    folder.write("outside.txt", "B001=1\r\n");
    std::filesystem::create_symlink(folder.path("outside.txt"), folder.path("variables.txt"));
    VariableStore store(folder.path("variables.txt"));

    EXPECT_FALSE(store.load());
    EXPECT_FALSE(store.save());
    EXPECT_EQ(folder.read("outside.txt"), "B001=1\r\n");
}

TEST(PlainFiles, LinksAndPipesAreNone) {
    const tests::TemporaryFolder folder;
    folder.write("file", "x");
    std::filesystem::create_symlink(folder.path("file"), folder.path("link"));
    ASSERT_EQ(mkfifo(folder.path("pipe").c_str(), 0600), 0);

    EXPECT_FALSE(isPlainFile(folder.path("link")));
    EXPECT_FALSE(isPlainFile(folder.path("pipe")));
    EXPECT_FALSE(isFreeOrPlainFile(folder.path("link")));
}

TEST(PlainFiles, WritingNeverGoesThroughALink) {
    const tests::TemporaryFolder folder;
    folder.write("outside", "old");
    folder.makeFolder("inside");
    std::filesystem::create_symlink(folder.path("outside"), folder.path("inside/link"));
    std::filesystem::create_symlink(folder.path("nothing"), folder.path("inside/dangling"));

    EXPECT_FALSE(writePlainFile(folder.path("inside/link"), "new"));
    EXPECT_FALSE(writePlainFile(folder.path("inside/dangling"), "new"));
    EXPECT_EQ(folder.read("outside"), "old");
    EXPECT_FALSE(folder.has("nothing"));
}

TEST(ControllerFolder, ALinkIsNeitherListedNorReached) {
    const tests::TemporaryFolder folder;
    std::filesystem::create_symlink("/etc/passwd", folder.path("LINK.JBI"));
    const auto name = *controllerFileName("LINK.JBI");

    const ControllerFolder controller(folder.path());
    EXPECT_TRUE(controller.list()->empty());
    EXPECT_EQ(controller.read(name).code(), code::notFound);
    EXPECT_EQ(controller.store(name, "x"), code::controllerFault);
    EXPECT_EQ(controller.remove(name), code::notFound);
    EXPECT_TRUE(folder.has("LINK.JBI"));
}

class HostileLinks : public SimulatorFixture {};

TEST_F(HostileLinks, ALinkOnTheControllerLeadsNowhere) {
    folder.write("outside/KEEP.JBI", "//NAME KEEP\r\n");
    folder.write("pc/X.JBI", "//NAME LINK\r\n");
    folder.write("pc/LINK.DAT", "new");
    for (const char* link : {"robot/LINK.JBI", "robot/LINK.DAT"})
        std::filesystem::create_symlink(folder.path("outside/KEEP.JBI"), folder.path(link));
    const auto handle = connected();

    EXPECT_TRUE(directory(handle).empty());
    EXPECT_NE(library.BscDownLoad(handle, "X.JBI"), 0);
    EXPECT_NE(library.BscDownLoad(handle, "LINK.DAT"), 0);
    EXPECT_NE(library.BscUpLoad(handle, "LINK.JBI"), 0);
    EXPECT_NE(library.BscSelectJob(handle, "LINK"), 0);
    EXPECT_EQ(folder.read("outside/KEEP.JBI"), "//NAME KEEP\r\n");
    EXPECT_FALSE(folder.has("pc/LINK.JBI"));
}

TEST_F(HostileLinks, ALinkInTheWorkingFolderIsNotWrittenThrough) {
    folder.write("outside.txt", "mine");
    folder.write("robot/A.JBI", "//NAME A\r\n");
    std::filesystem::create_symlink(folder.path("outside.txt"), folder.path("pc/A.JBI"));

    EXPECT_EQ(library.BscUpLoad(connected(), "A.JBI"), code::pcFolderNotAccessible);
    EXPECT_EQ(folder.read("outside.txt"), "mine");
}

TEST_F(HostileLinks, AVariablesFileThatIsALinkIsLeftAlone) {
    folder.write("outside.txt", "mine");
    std::filesystem::create_symlink(folder.path("outside.txt"), folder.path("robot/variables.txt"));
    const std::array<double, 10> values{1};

    EXPECT_EQ(library.BscPutVarData(connected(), 0, 1, values.data()), code::controllerFault);
    EXPECT_EQ(folder.read("outside.txt"), "mine");
}

} // namespace
} // namespace vantrel::simulator
