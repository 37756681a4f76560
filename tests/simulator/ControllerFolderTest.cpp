#include "simulator/ControllerFolder.h"

#include "simulator/ControllerFileName.h"
#include "simulator/ResultCodes.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

namespace vantrel::simulator {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

ControllerFileName name(const char* given) {
    return *controllerFileName(given);
}

TEST(ControllerFolder, ListsJobsThenDataEachInOrder) {
    const tests::TemporaryFolder folder;
    for (const char* file : {"TOOL.CND", "B.JBI", "ALARM.LST", "A.JBI", "表.JBI"})
        folder.write(file, "x");

    EXPECT_THAT(*ControllerFolder(folder.path()).list(),
                ElementsAre("A.JBI", "B.JBI", "表.JBI", "ALARM.LST", "TOOL.CND"));
}

TEST(ControllerFolder, ListsOnlyPlainFilesThatItCanReach) {
    const tests::TemporaryFolder folder;
    for (const char* file : {"variables.txt", "lower.jbi", "A.JBR", "한국.JBI", "NOPOINT"})
        folder.write(file, "x");
    folder.makeFolder("F.JBI");

    const ControllerFolder controller(folder.path());
    EXPECT_THAT(*controller.list(), IsEmpty());
    EXPECT_EQ(controller.read(name("F.JBI")).code(), code::notFound);
    EXPECT_EQ(controller.store(name("F.JBI"), "x"), code::controllerFault);
    EXPECT_EQ(controller.remove(name("F.JBI")), code::notFound);
    EXPECT_TRUE(folder.has("F.JBI"));
}

TEST(ControllerFolder, StoresReadsAndRemoves) {
    const tests::TemporaryFolder folder;
    const ControllerFolder controller(folder.path());

    EXPECT_EQ(controller.store(name("A.JBI"), "one"), code::done);
    EXPECT_TRUE(controller.has(name("a.jbi")));
    EXPECT_EQ(*controller.read(name("A.JBR")), "one");
    EXPECT_EQ(*controller.usedBytes(), 3u);
    EXPECT_EQ(controller.remove(name("A.JBI")), code::done);
    EXPECT_EQ(controller.remove(name("A.JBI")), code::notFound);
    EXPECT_EQ(controller.read(name("A.DAT")).code(), code::notFound);
}

TEST(ControllerFolder, AFolderThatHasGoneIsABrokenLine) {
    const tests::TemporaryFolder folder;
    const ControllerFolder controller(folder.path("gone"));

    EXPECT_FALSE(controller.exists());
    EXPECT_EQ(controller.list().code(), code::lineBroken);
    EXPECT_EQ(controller.usedBytes().code(), code::lineBroken);
    EXPECT_EQ(controller.read(name("A.JBI")).code(), code::lineBroken);
    EXPECT_EQ(controller.remove(name("A.JBI")), code::lineBroken);
    EXPECT_EQ(controller.store(name("A.JBI"), "x"), code::lineBroken);
    EXPECT_FALSE(folder.has("gone"));
}

} // namespace
} // namespace vantrel::simulator
