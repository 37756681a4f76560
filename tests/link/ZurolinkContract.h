#pragma once

#include "link/Zurolink.h"
#include "support/NamedRow.h"
#include "support/TemporaryFolder.h"

#include <functional>
#include <memory>
#include <string>

#include <gtest/gtest.h>

namespace vantrel::tests {

/// A communication library with two controllers behind it and an empty PC folder before it. What
/// is checked with it holds for every library that the session may meet.
class ContractWorld {
  public:
    static constexpr const char* address = "10.0.0.1";
    static constexpr const char* otherAddress = "10.0.0.2";
    static constexpr std::int16_t port = 1; ///< leads to the first controller

    virtual ~ContractWorld() = default;
    virtual Zurolink& library() = 0;
    /// A job or data file of the first controller, and what it has under a name.
    virtual void put(const std::string& name, const std::string& bytes) = 0;
    virtual std::string bytes(const std::string& name) = 0;
    virtual bool has(const std::string& name) = 0;

    TemporaryFolder pc;
};

/// Makes a world; with a name for the tests.
struct ContractWorldKind : NamedRow {
    std::function<std::unique_ptr<ContractWorld>()> make;
};

class ZurolinkContract : public testing::TestWithParam<ContractWorldKind> {
  protected:
    std::int16_t connect(const char* to = ContractWorld::address) {
        const std::int16_t handle = library.BscOpen(world->pc.path().c_str(), 16);
        EXPECT_GE(handle, 0);
        EXPECT_EQ(library.BscSetEther(handle, to, 0, nullptr), 1);
        EXPECT_EQ(library.BscConnect(handle), 1);
        return handle;
    }
    void disconnect(std::int16_t handle) {
        EXPECT_EQ(library.BscDisConnect(handle), 1);
        EXPECT_EQ(library.BscClose(handle), 0);
    }
    static std::string job(const std::string& name) {
        return "/JOB\r\n//NAME " + name + "\r\nNOP\r\nEND\r\n";
    }

    std::unique_ptr<ContractWorld> world = GetParam().make();
    Zurolink& library = world->library();
};

} // namespace vantrel::tests
