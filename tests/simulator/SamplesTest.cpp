#include "base/Text.h"
#include "platform/Files.h"
#include "platform/TextEncoding.h"
#include "simulator/ControllerFileName.h"
#include "simulator/ControllerFolder.h"
#include "simulator/ResultCodes.h"
#include "simulator/SimulatorSettings.h"
#include "simulator/VariableStore.h"
#include "support/ProjectFiles.h"

#include <filesystem>
#include <set>

#include <gmock/gmock.h>

namespace vantrel::simulator {
namespace {

using testing::Contains;
using testing::Ge;
using testing::Le;
using testing::Not;
using testing::SizeIs;

const std::string data = tests::dataFolder();

std::vector<std::filesystem::path> sampleFiles() {
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(data + "/samples")) {
        if (entry.is_regular_file())
            files.push_back(entry.path());
    }
    return files;
}

bool isJob(const std::filesystem::path& file) {
    return file.extension() == ".JBI";
}

std::string content(const std::filesystem::path& file) {
    const auto bytes = readFile(file.string());
    EXPECT_TRUE(bytes) << file;
    return bytes ? *bytes : std::string();
}

SimulatorSettings setUp() {
    return parseSettings(content(data + "/simulator.ini"), data + "/samples");
}

TEST(Samples, EachJobBearsItsFilesName) {
    for (const auto& file : sampleFiles()) {
        if (!isJob(file))
            continue;
        const auto job = jobNameIn(content(file));
        ASSERT_TRUE(job) << file;
        EXPECT_EQ(*job, file.stem().string()) << file;
    }
}

TEST(Samples, TextsAreInTheCodePageWithTheLineEndsOfAController) {
    for (const auto& file : sampleFiles()) {
        const auto bytes = content(file);
        const auto text = fromCodePage(bytes);
        EXPECT_EQ(text.find("\uFFFD"), std::string::npos) << file;
        EXPECT_EQ(toCodePage(text), bytes) << file;
        EXPECT_TRUE(bytes.ends_with("\r\n")) << file;
        const auto breaks = std::count(bytes.begin(), bytes.end(), '\n');
        EXPECT_EQ(breaks, static_cast<std::ptrdiff_t>(lines(bytes).size())) << file;
        EXPECT_EQ(std::count(bytes.begin(), bytes.end(), '\r'), breaks) << file;
    }
}

TEST(Samples, JobsHaveAHeaderAndStepsAndJapaneseComments) {
    for (const auto& file : sampleFiles()) {
        if (!isJob(file))
            continue;
        const auto bytes = content(file);
        EXPECT_TRUE(bytes.starts_with("/JOB\r\n//NAME ")) << file;
        EXPECT_NE(bytes.find("\r\nbegin\r\n"), std::string::npos) << file;
        EXPECT_TRUE(bytes.ends_with("\r\nfinish\r\n")) << file;
        EXPECT_EQ(decodeText(bytes).encoding, TextEncoding::CodePage) << file;
    }
}

TEST(Samples, ControllerFilesAreOnesThatAControllerHasAndShortlyNamed) {
    for (const auto& file : sampleFiles()) {
        const auto fileName = file.filename().string();
        if (file.string().find("/controllers/") == std::string::npos || fileName == "variables.txt")
            continue;
        const auto name = controllerFileName(fileName);
        ASSERT_TRUE(name) << file;
        EXPECT_EQ(name->stored(), fileName);
        EXPECT_THAT(name->base, SizeIs(Le(8u)));
    }
}

TEST(Samples, TheSetUpLeadsToEveryController) {
    const auto settings = setUp();
    std::set<std::string> folders;
    std::set<std::int16_t> ports;
    for (const auto& controller : settings.controllers) {
        const auto names = ControllerFolder(controller.folder).list();
        ASSERT_TRUE(names) << controller.folder;
        const auto jobs = std::count_if(names->begin(), names->end(),
                                        [](const auto& name) { return name.ends_with(".JBI"); });
        EXPECT_THAT(jobs, testing::AllOf(Ge(12), Le(40))) << controller.folder;
        for (const auto& hidden : controller.hidden)
            EXPECT_THAT(*names, Contains(hidden)) << controller.folder;
        for (const auto& job : controller.protectedJobs)
            EXPECT_THAT(*names, Contains(job + ".JBI")) << controller.folder;
        folders.insert(controller.folder);
        ports.insert(controller.port.value_or(0));
    }
    EXPECT_THAT(folders, SizeIs(settings.controllers.size()));
    EXPECT_THAT(ports, SizeIs(settings.controllers.size()));
    EXPECT_THAT(folders, SizeIs(Ge(3u)));
    EXPECT_TRUE(settings.scriptRows.empty()) << "a trial starts undisturbed";
}

TEST(Samples, EveryRegisteredRobotIsThere) {
    const auto settings = setUp();
    int robots = 0;
    const auto registry = content(data + "/samples/robot.ini");
    for (const auto line : lines(registry)) {
        if (line.starts_with("IPaddr=")) {
            ++robots;
            EXPECT_NE(settings.find(EthernetLine{std::string(line.substr(7))}), nullptr) << line;
        }
        if (line.starts_with("Path=")) {
            EXPECT_TRUE(isFolder(data + "/samples/pc/" + std::string(line.substr(5)))) << line;
        }
    }
    EXPECT_EQ(robots, 3);
}

TEST(Samples, TheirVariablesAreAllUnderstoodAndInRange) {
    for (const auto& controller : setUp().controllers) {
        const auto bytes = content(ControllerFolder(controller.folder).variablesFile());
        VariableStore store(ControllerFolder(controller.folder).variablesFile());
        ASSERT_TRUE(store.load());
        for (std::int16_t kind = 0; kind < 7; ++kind) {
            const auto& rules = variableKinds()[static_cast<std::size_t>(kind)];
            for (std::int16_t number = 0; number <= rules.highestNumber; ++number)
                EXPECT_EQ(checkValues(rules, store.get(kind, number)), code::done);
        }
        EXPECT_NE(store.get(0, 0), VariableValues{}) << bytes;
    }
}

TEST(Samples, ThePcHasJobsThatTheControllerHasAndOthersAndListsOfThem) {
    const auto jobsFolder = data + "/samples/pc/jobs/";
    int same = 0;
    int different = 0;
    int onlyHere = 0;
    for (const auto& entry : std::filesystem::directory_iterator(jobsFolder)) {
        if (!isJob(entry.path()))
            continue;
        const auto other =
            data + "/samples/controllers/line1-weld/" + entry.path().filename().string();
        if (!isRegularFile(other))
            ++onlyHere;
        else
            ++(content(other) == content(entry.path()) ? same : different);
    }
    EXPECT_GE(same, 2);
    EXPECT_GE(different, 4);
    EXPECT_GE(onlyHere, 4);
    const auto list = content(jobsFolder + "jobs.lst");
    for (const auto line : lines(list))
        EXPECT_TRUE(isRegularFile(jobsFolder + std::string(line))) << line;
    EXPECT_EQ(content(jobsFolder + "LocalJob.lst"), "MEMO\r\n");
}

TEST(Samples, StaySmallTogether) {
    std::uintmax_t bytes = 0;
    for (const auto& file : sampleFiles())
        bytes += std::filesystem::file_size(file);
    EXPECT_LT(bytes, 1'500'000u);
}

} // namespace
} // namespace vantrel::simulator
