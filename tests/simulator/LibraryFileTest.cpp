#include "platform/DynamicLibrary.h"
#include "platform/Environment.h"
#include "simulator/ResultCodes.h"
#include "simulator/ZurolinkExports.h"
#include "support/ProjectFiles.h"
#include "support/TemporaryFolder.h"

#include <array>

#include <gtest/gtest.h>

namespace vantrel::simulator {
namespace {

/// The built library itself, copied into a folder of its own and loaded as a program loads it.
class LibraryFile : public testing::Test {
  protected:
    LibraryFile() {
        folder.makeFolder("robot");
        folder.makeFolder("pc");
        folder.write("simulator.ini", "[Controller1]\nFolder=robot\nPort=3\n");
        std::filesystem::copy_file(tests::simulatorFile(), folder.path(libraryFileName()));
        auto loaded = DynamicLibrary::load(folder.path(libraryFileName()));
        EXPECT_TRUE(loaded) << loaded.reason();
        library = std::move(*loaded);
    }

    template <typename Signature>
    Signature* function(const char* name) const {
        auto* found = reinterpret_cast<Signature*>(library->symbol(name));
        EXPECT_NE(found, nullptr) << name;
        return found;
    }
    std::int16_t open(const std::string& path) const {
        return function<decltype(BscOpen)>("BscOpen")(path.c_str(), 1);
    }
    std::int16_t setCom(std::int16_t handle) const {
        return function<decltype(BscSetCom)>("BscSetCom")(handle, 3, 9600, 2, 8, 0);
    }
    std::int16_t connect(std::int16_t handle) const {
        return function<decltype(BscConnect)>("BscConnect")(handle);
    }

    tests::TemporaryFolder folder;
    std::unique_ptr<DynamicLibrary> library;
};

TEST_F(LibraryFile, FindsItsSetUpBesideItself) {
    folder.write("pc/W.JBI", "//NAME W\r\n");
    const auto handle = open(folder.path("pc"));
    ASSERT_GT(handle, 0);
    EXPECT_EQ(setCom(handle), 1);
    EXPECT_EQ(connect(handle), 1);
    EXPECT_EQ(function<decltype(BscDownLoad)>("BscDownLoad")(handle, "W.JBI"), 0);
    EXPECT_EQ(function<decltype(BscDisConnect)>("BscDisConnect")(handle), 1);
    EXPECT_EQ(function<decltype(BscClose)>("BscClose")(handle), 0);

    EXPECT_EQ(folder.read("robot/W.JBI"), "//NAME W\r\n");
}

TEST_F(LibraryFile, SaysThatItIsASimulator) {
    const auto* text = function<decltype(ZurolinkSimulator)>("ZurolinkSimulator")();
    EXPECT_STREQ(text, "Zurolink simulator");
}

TEST_F(LibraryFile, WorksThroughEveryFunction) {
    folder.write("robot/A.JBI", "//NAME A\r\n");
    const auto handle = open(folder.path("pc"));
    ASSERT_EQ(setCom(handle), 1);
    ASSERT_EQ(connect(handle), 1);
    std::array<char, 255> entry{};
    const std::array<double, 10> written{12};
    std::array<double, 10> read{};

    EXPECT_EQ(function<decltype(BscFindFirst)>("BscFindFirst")(handle, entry.data(), 255), 0);
    EXPECT_STREQ(entry.data(), "A.JBI");
    EXPECT_EQ(function<decltype(BscFindNext)>("BscFindNext")(handle, entry.data(), 255), -1);
    EXPECT_EQ(function<decltype(BscUpLoad)>("BscUpLoad")(handle, "A.JBI"), 0);
    EXPECT_EQ(folder.read("pc/A.JBI"), "//NAME A\r\n");
    EXPECT_EQ(function<decltype(BscSelectJob)>("BscSelectJob")(handle, "A"), 0);
    EXPECT_EQ(function<decltype(BscDeleteJob)>("BscDeleteJob")(handle), 0);
    EXPECT_FALSE(folder.has("robot/A.JBI"));
    using PutVariable = decltype(BscPutVarData);
    using GetVariable = decltype(BscGetVarData);
    EXPECT_EQ(function<PutVariable>("BscPutVarData")(handle, 0, 5, written.data()), 0);
    EXPECT_EQ(function<GetVariable>("BscGetVarData")(handle, 0, 5, read.data()), 0);
    EXPECT_EQ(read, written);
    EXPECT_EQ(function<decltype(BscSetEther)>("BscSetEther")(handle, "10.0.0.1", 0, nullptr),
              code::refused);
}

TEST_F(LibraryFile, LoadedAgainItStartsAnew) {
    const auto handle = open(folder.path("pc"));
    ASSERT_EQ(setCom(handle), 1);
    library.reset();
    auto again = DynamicLibrary::load(folder.path(libraryFileName()));
    ASSERT_TRUE(again);
    library = std::move(*again);

    EXPECT_EQ(connect(handle), code::handleInvalid);
}

} // namespace
} // namespace vantrel::simulator
