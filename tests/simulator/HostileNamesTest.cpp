#include "SimulatorFixture.h"

#include <map>

namespace vantrel::simulator {
namespace {

/// Every file below the folder with its content, links told by where they lead.
std::map<std::string, std::string> everything(const tests::TemporaryFolder& folder) {
    std::map<std::string, std::string> found;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder.path())) {
        const auto name = std::filesystem::relative(entry.path(), folder.path()).string();
        if (entry.is_symlink())
            found[name] = "-> " + std::filesystem::read_symlink(entry.path()).string();
        else
            found[name] = entry.is_directory() ? "" : folder.read(name);
    }
    return found;
}

class HostileName : public SimulatorFixture, public testing::WithParamInterface<std::string> {
  protected:
    HostileName() {
        folder.write("secret.JBI", "//NAME SECRET\r\n");
        folder.write("robot/A.JBI", "//NAME A\r\n");
        folder.write("robot/inner/B.JBI", "//NAME B\r\n");
        folder.write("pc/A.JBI", "//NAME NEW\r\n");
        folder.write("pc/inner/C.DAT", "data");
    }
};

TEST_P(HostileName, ChangesNothingAnywhere) {
    const auto before = everything(folder);
    const auto handle = connected();
    const auto* name = GetParam().c_str();

    EXPECT_NE(library.BscUpLoad(handle, name), 0);
    EXPECT_NE(library.BscDownLoad(handle, name), 0);
    EXPECT_NE(library.BscSelectJob(handle, name), 0);
    EXPECT_NE(library.BscDeleteJob(handle), 0);
    EXPECT_EQ(everything(folder), before);
}

const std::string hostileNames[] = {
    "",
    ".",
    "..",
    "../secret.JBI",
    "..\\secret.JBI",
    "/etc/passwd",
    "/tmp/x.DAT",
    "inner/B.JBI",
    "inner\\B.JBI",
    "inner/C.DAT",
    "C:A.JBI",
    "C:\\A.JBI",
    "A.JBI/",
    "A.JBI/.",
    "A.JBI ",
    "A.JBI.",
    "A.JBI:stream",
    "A.JBI:stream.DAT",
    "*.JBI",
    "?.JBI",
    "A\n.JBI",
    "NUL.JBI",
    "COM1.DAT",
    ".JBI",
    "variables.txt",
    "../simulator.ini",
    "%s%s%n.JBI",
    "\x80\xa0\xfd\xfe\xff.JBI",
    "\x83",
    std::string(300, 'A') + ".JBI",
    std::string(1'000'000, '/'),
};

INSTANTIATE_TEST_SUITE_P(Names, HostileName, testing::ValuesIn(hostileNames),
                         [](const auto& each) { return "Name" + std::to_string(each.index); });

class HostileFiles : public SimulatorFixture {};

TEST_F(HostileFiles, ALinkOnTheControllerLeadsNowhere) {
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

TEST_F(HostileFiles, ALinkInTheWorkingFolderIsNotWrittenThrough) {
    folder.write("outside.txt", "mine");
    folder.write("robot/A.JBI", "//NAME A\r\n");
    std::filesystem::create_symlink(folder.path("outside.txt"), folder.path("pc/A.JBI"));

    EXPECT_EQ(library.BscUpLoad(connected(), "A.JBI"), code::pcFolderNotAccessible);
    EXPECT_EQ(folder.read("outside.txt"), "mine");
}

TEST_F(HostileFiles, AVariablesFileThatIsALinkIsLeftAlone) {
    folder.write("outside.txt", "mine");
    std::filesystem::create_symlink(folder.path("outside.txt"), folder.path("robot/variables.txt"));
    const std::array<double, 10> values{1};

    EXPECT_EQ(library.BscPutVarData(connected(), 0, 1, values.data()), code::controllerFault);
    EXPECT_EQ(folder.read("outside.txt"), "mine");
}

TEST_F(HostileFiles, AJobCannotNameItselfOutOfTheFolder) {
    for (const char* name : {"../OUT", "/tmp/OUT", "inner/OUT", "..\\OUT", "C:OUT", "NUL", ".."}) {
        folder.write("pc/X.JBI", "//NAME " + std::string(name) + "\r\n");
        EXPECT_EQ(library.BscDownLoad(connected(), "X.JBI"), code::nameInvalid) << name;
    }
    EXPECT_TRUE(std::filesystem::is_empty(folder.path("robot")));
}

} // namespace
} // namespace vantrel::simulator
