#include "SimulatorFixture.h"

#include <map>

namespace vantrel::simulator {
namespace {

/// Every file below the folder with its content.
std::map<std::string, std::string> everything(const tests::TemporaryFolder& folder) {
    std::map<std::string, std::string> found;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder.path())) {
        const auto name = std::filesystem::relative(entry.path(), folder.path()).string();
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

TEST_F(HostileFiles, AJobCannotNameItselfOutOfTheFolder) {
    for (const char* name : {"../OUT", "/tmp/OUT", "inner/OUT", "..\\OUT", "C:OUT", "NUL", ".."}) {
        folder.write("pc/X.JBI", "//NAME " + std::string(name) + "\r\n");
        EXPECT_EQ(library.BscDownLoad(connected(), "X.JBI"), code::nameInvalid) << name;
    }
    EXPECT_TRUE(std::filesystem::is_empty(folder.path("robot")));
}

} // namespace
} // namespace vantrel::simulator
