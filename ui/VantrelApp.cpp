#include "platform/Environment.h"
#include "ui/Composition.h"
#include "ui/SystemLook.h"
#include "ui/dialogs/WxText.h"
#include "ui/frmZuroVant.h"

#include <wx/app.h>

#include <memory>
#include <string>
#include <vector>

namespace vantrel {

/// The program's entry: builds the composition root and lets its start routine run.
class VantrelApp : public wxApp {
  public:
    bool OnInit() override {
        // The start routine reads the command line itself; unknown arguments are no error.
        // What the toolkit finds wrong with itself is for us, not for the operator.
        wxDISABLE_ASSERTS_IN_RELEASE_BUILD();
        SetAppName("Vantrel");
        applySystemLook();
        std::vector<std::string> arguments;
        for (int index = 1; index < argc; ++index)
            arguments.push_back(fromWx(argv[index]));
        root_ = std::make_unique<Composition>(executablePath(), arguments);
        return root_->start() == StartResult::Running && root_->mainWindow();
    }

    int OnExit() override {
        root_.reset();
        return wxApp::OnExit();
    }

  private:
    std::unique_ptr<Composition> root_;
};

} // namespace vantrel

wxIMPLEMENT_APP(vantrel::VantrelApp);
