#include "platform/Environment.h"
#include "ui/Composition.h"
#include "ui/frmZuroVant.h"
#include "ui/look/SystemLook.h"
#include "ui/look/WxText.h"

#include <memory>
#include <string>
#include <vector>

#include <wx/app.h>

namespace vantrel {

/// The program's entry: builds the composition root and lets its start routine run.
class VantrelApp : public wxApp {
  public:
    bool Initialize(int& argumentCount, wxChar** argumentValues) override {
        prepareSystem();
        return wxApp::Initialize(argumentCount, argumentValues);
    }

    bool OnInit() override {
        // The start routine reads the command line itself; unknown arguments are no error.
        // What the toolkit finds wrong with itself is for us, not for the operator.
        wxDISABLE_ASSERTS_IN_RELEASE_BUILD();
        SetAppName("Vantrel");
        applySystemLook();
        std::vector<std::string> arguments;
        for (int index = 1; index < argc; ++index)
            arguments.push_back(fromWx(argv[index]));
        root_ = std::make_unique<Composition>(programPath(), arguments);
        result_ = root_->start();
        return true;
    }

    int OnRun() override {
        if (result_ == StartResult::Running)
            return wxApp::OnRun();
        const bool failed = result_ == StartResult::NoLanguage || result_ == StartResult::Trapped;
        return failed ? 1 : 0;
    }

    int OnExit() override {
        root_.reset();
        return wxApp::OnExit();
    }

  private:
    std::unique_ptr<Composition> root_;
    StartResult result_ = StartResult::Trapped;
};

} // namespace vantrel

wxIMPLEMENT_APP(vantrel::VantrelApp);
