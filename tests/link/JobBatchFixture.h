#pragma once

#include "SessionWorld.h"

namespace vantrel::tests {

/// A session with job files and a job list, for list transfers.
struct JobBatchFixture : testing::Test {
    SessionWorld world;

    /// Job files on the PC, put on the list too.
    void addFiles(const std::vector<std::string>& names) {
        for (const std::string& name : names) {
            world.pc.write(name + ".JBI", SessionWorld::job(name));
            world.session->AddJobList(name + ".JBI");
        }
    }
    /// Older jobs on the controller.
    void addOlder(const std::vector<std::string>& names) {
        for (const std::string& name : names)
            world.controller().put(name + ".JBI", SessionWorld::job(name, "OLD"));
    }
    bool isNew(const std::string& name) {
        return world.controller().bytes(name + ".JBI") == SessionWorld::job(name);
    }
    void pressCancelAtYield(int yield) {
        world.view.onYield = [this, yield](int at) {
            if (at == yield)
                world.panel.pressCancel();
        };
    }
};

} // namespace vantrel::tests
