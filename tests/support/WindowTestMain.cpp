#include "support/ToolkitPort.h"
#include "ui/look/SystemLook.h"

#include <cstdio>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <wx/app.h>
#include <wx/evtloop.h>
#include <wx/init.h>

// The main program of tests that open real windows.

namespace {

class WindowTestApp : public wxApp {
  public:
    bool OnInit() override {
        vantrel::applySystemLook();
        // Tests destroy their last window many times over.
        SetExitOnFrameDelete(false);
        return true;
    }
    bool OnExceptionInMainLoop() override { throw; }
    /// A box would wait for an operator who is not there.
    void OnAssertFailure(const wxChar* file, int line, const wxChar* function,
                         const wxChar* condition, const wxChar* message) override {
        ADD_FAILURE() << "assertion of the toolkit: " << wxString(condition) << ' '
                      << wxString(message) << " in " << wxString(function) << ", " << wxString(file)
                      << ':' << line;
    }
};

/// Unless cases were asked for.
void leaveOut(const std::vector<vantrel::tests::LeftOut>& leftOut) {
    if (std::string(testing::GTEST_FLAG(filter)) != "*")
        return;
    std::string filter;
    for (const auto& [reason, cases] : leftOut) {
        std::printf("Left out: %s\n", reason);
        for (const auto& pattern : cases) {
            std::printf("    %s\n", pattern.c_str());
            filter += (filter.empty() ? '-' : ':') + pattern;
        }
    }
    if (!filter.empty())
        testing::GTEST_FLAG(filter) = filter;
}

int runWithWindows(int argc, char** argv) {
    const vantrel::tests::DisplayLock alone;
    vantrel::tests::prepareToolkit();
    wxApp::SetInstance(new WindowTestApp);
    if (!wxEntryStart(argc, argv) || !wxTheApp->CallOnInit()) {
        std::fputs("These tests open real windows and found no display to open them on.\n"
                   "Start a virtual one with a window manager (Xvfb, openbox) and set DISPLAY.\n",
                   stderr);
        return 1;
    }
    int failed = 0;
    {
        wxEventLoop loop;
        const wxEventLoopActivator active(&loop);
        failed = RUN_ALL_TESTS();
    }
    wxTheApp->OnExit();
    wxEntryCleanup();
    return failed;
}

} // namespace

int main(int argc, char** argv) {
    testing::InitGoogleMock(&argc, argv);
    // Listing is done by the build, where there need be no display.
    if (testing::GTEST_FLAG(list_tests))
        return RUN_ALL_TESTS();
    leaveOut(vantrel::tests::casesLeftOut());
    return runWithWindows(argc, argv);
}
