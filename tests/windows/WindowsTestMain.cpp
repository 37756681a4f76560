#include <cstdio>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <wx/app.h>
#include <wx/init.h>

// The main program of tests that open windows of this system.

int main(int argc, char** argv) {
    testing::InitGoogleMock(&argc, argv);
    wxApp::SetInstance(new wxApp);
    const wxInitializer toolkit(argc, argv);
    if (!toolkit.IsOk()) {
        std::fputs("The toolkit could not be started.\n", stderr);
        return 1;
    }
    return RUN_ALL_TESTS();
}
