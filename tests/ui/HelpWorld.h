#pragma once

#include "ProgramWorld.h"
#include "support/DocumentOpener.h"

namespace vantrel::tests {

/// Where the folders of a test's program lie, so that what is beside the program's own is the
/// test's too.
class OwnPlace {
  protected:
    TemporaryFolder above_;

  private:
    // Each system asks for it by a name of its own.
    EnvironmentVariable temporary_{"TMPDIR", above_.path()};
    EnvironmentVariable temporaryOnWindows_{"TMP", above_.path()};
};

/// The whole program with its manuals beside it, and with a program that opens them.
class HelpWorld : private OwnPlace, public ProgramWorld {
  public:
    HelpWorld() {
        for (const char* manual : {"Zurolink_us.pdf", "Zurolink_jp.pdf"})
            above_.write(manualFolder + std::string(manual), "a document");
    }

    std::string opened() const { return opener_.opened(); }
    /// What the opener is given for a manual, as often as it is opened.
    std::string openings(const std::string& manual, int times = 1) const {
        std::string all;
        for (int time = 0; time < times; ++time)
            all += std::filesystem::path(folder.path() + "/../" + manualFolder + manual)
                       .make_preferred()
                       .string() +
                   '\n';
        return all;
    }

  private:
    static constexpr const char* manualFolder = "ZUROLINKDLL/Help/";
    DocumentOpener opener_;
};

} // namespace vantrel::tests
