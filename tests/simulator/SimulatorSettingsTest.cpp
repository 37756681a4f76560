#include "simulator/SimulatorSettings.h"

#include "base/PathRules.h"

#include <gtest/gtest.h>

namespace vantrel::simulator {
namespace {

constexpr const char* folder = "/program";

std::string below(const std::string& way) {
    return PathRules().join(folder, way);
}

TEST(SimulatorSettings, ReadsAController) {
    const auto settings = parseSettings("[Controller1]\r\n"
                                        "Name=Line 1\r\n"
                                        "Model=Eridan\r\n"
                                        "Folder=controllers/line1\r\n"
                                        "Port=1\r\n"
                                        "Address=192.168.0.11\r\n"
                                        "HiddenFiles=allpara.prm, SYSTEM.SYS,,\r\n"
                                        "ProtectedJobs=home.jbi,MAIN\r\n"
                                        "RunningJobs=Run\r\n"
                                        "Memory=5000\r\n",
                                        folder);

    ASSERT_EQ(settings.controllers.size(), 1u);
    const auto& controller = settings.controllers[0];
    EXPECT_EQ(controller.folder, below("controllers/line1"));
    EXPECT_EQ(controller.port, 1);
    EXPECT_EQ(controller.address, "192.168.0.11");
    EXPECT_EQ(controller.hidden, (std::set<std::string>{"ALLPARA.PRM", "SYSTEM.SYS"}));
    EXPECT_EQ(controller.protectedJobs, (std::set<std::string>{"HOME", "MAIN"}));
    EXPECT_EQ(controller.runningJobs, (std::set<std::string>{"RUN"}));
    EXPECT_EQ(controller.memory, 5000u);
}

TEST(SimulatorSettings, FoldersAreBelowTheLibraryOrAbsolute) {
    const auto settings = parseSettings("[Controller1]\nFolder=a\\b\\\n"
                                        "[Controller2]\nFolder=/srv/robot/\n",
                                        folder);

    ASSERT_EQ(settings.controllers.size(), 2u);
    EXPECT_EQ(settings.controllers[0].folder, below(PathRules().join("a", "b")));
    EXPECT_EQ(settings.controllers[1].folder, "/srv/robot");
}

TEST(SimulatorSettings, FindsAControllerByPortOrAddress) {
    const auto settings = parseSettings("[Controller1]\nFolder=a\nPort=1\nAddress=10.0.0.1\n"
                                        "[Controller2]\nFolder=b\nPort=1\nAddress=10.0.0.2\n",
                                        folder);

    EXPECT_EQ(settings.find(SerialLine{1}), &settings.controllers[0]) << "the first one answers";
    EXPECT_EQ(settings.find(EthernetLine{"10.0.0.2"}), &settings.controllers[1]);
    EXPECT_EQ(settings.find(SerialLine{2}), nullptr);
    EXPECT_EQ(settings.find(EthernetLine{"10.0.0.3"}), nullptr);
}

TEST(SimulatorSettings, AnEmptyAddressLeadsNowhere) {
    const auto settings = parseSettings("[Controller1]\nFolder=a\n", folder);

    EXPECT_EQ(settings.find(EthernetLine{""}), nullptr);
    EXPECT_EQ(settings.find(SerialLine{0}), nullptr);
}

TEST(SimulatorSettings, AModelWithoutHispeedLinkHasNoAddress) {
    const auto settings =
        parseSettings("[Controller1]\nFolder=a\nPort=4\nModel=aster\nAddress=10.0.0.1\n", folder);

    EXPECT_EQ(settings.find(EthernetLine{"10.0.0.1"}), nullptr);
    EXPECT_NE(settings.find(SerialLine{4}), nullptr);
}

TEST(SimulatorSettings, NumbersThatAreNoneCountAsMissing) {
    const auto settings = parseSettings("[Controller1]\nFolder=a\nPort=COM1\nMemory=-1\n", folder);

    EXPECT_EQ(settings.controllers[0].port, std::nullopt);
    EXPECT_EQ(settings.controllers[0].memory, ControllerSettings::unlimited);
}

TEST(SimulatorSettings, ReadsTheScriptsRowsInOrder) {
    const auto settings =
        parseSettings("[script]\n1=BscOpen 1 fail 5\n1=BscOpen 2 nothing\n;3=x\n", folder);

    EXPECT_EQ(settings.scriptRows,
              (std::vector<std::string>{"BscOpen 1 fail 5", "BscOpen 2 nothing"}));
}

TEST(SimulatorSettings, ReadsTheCodePageToo) {
    const auto settings = parseSettings("[Controller1]\nFolder=\x83\x5c\x82\xdd\n", folder);

    EXPECT_EQ(settings.controllers[0].folder, below("ソみ"));
}

TEST(SimulatorSettings, GarbageGivesNoControllers) {
    const std::string garbage("\0\xff\xfe[Controller1\0]\nPort=1\n[]\n=\n[Controller", 42);

    EXPECT_TRUE(parseSettings(garbage, folder).controllers.empty());
    EXPECT_TRUE(parseSettings("", folder).controllers.empty());
    EXPECT_TRUE(parseSettings(std::string(10'000'000, 'x'), folder).controllers.empty());
    EXPECT_TRUE(parseSettings("[Controller1]\nPort=1\nFolder=\n", folder).controllers.empty());
}

} // namespace
} // namespace vantrel::simulator
