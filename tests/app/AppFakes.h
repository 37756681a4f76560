#pragma once

#include "app/robots/RobotRegistry.h"
#include "base/ApplicationState.h"
#include "files/Panes.h"
#include "files/TransferTable.h"
#include "lang/LanguageFiles.h"
#include "lang/MessageTable.h"
#include "link/OperatorTalk.h"
#include "link/ProgressPanel.h"
#include "link/Snappy.h"
#include "platform/Files.h"
#include "support/FakeMessageBoxes.h"
#include "support/FakePaneWindow.h"
#include "support/FakeZurolink.h"
#include "support/TemporaryFolder.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace vantrel::tests {

/// What happened, in order; shared by the fakes of one test.
using Log = std::vector<std::string>;

/// Every message N reads "mN".
inline MessageTable numberedMessages() {
    std::vector<MessageEntry> entries;
    for (const auto& [first, last] : {std::pair{0, 600}, std::pair{6400, 6700}})
        for (int number = first; number <= last; ++number)
            entries.push_back(
                {static_cast<std::int16_t>(number), "", "m" + std::to_string(number)});
    MessageTable table;
    table.replace(std::move(entries));
    return table;
}

/// Enters a folder for the time of a test.
class InFolder {
  public:
    explicit InFolder(const std::string& folder) : before_(currentFolder()) {
        (void)changeCurrentFolder(folder);
    }
    ~InFolder() { (void)changeCurrentFolder(before_); }
    InFolder(const InFolder&) = delete;
    InFolder& operator=(const InFolder&) = delete;

  private:
    std::string before_;
};

/// The library in memory, whose openings stand in the common log.
class LoggingLibrary final : public FakeZurolink {
  public:
    explicit LoggingLibrary(Log& log) : log_(log) {}

    std::int16_t BscOpen(const char* path, std::int16_t type) override {
        log_.push_back("BscOpen " + std::string(path) + " " + std::to_string(type));
        return FakeZurolink::BscOpen(path, type);
    }

  private:
    Log& log_;
};

/// The window without pixels, whose status bar stands in the common log.
class LoggingPaneWindow final : public FakePaneWindow {
  public:
    explicit LoggingPaneWindow(Log& log) : log_(log) {}

    void setStatus(ActiveSide side, const std::string& text) override {
        log_.push_back((side == ActiveSide::PC ? "status PC " : "status Ctrl ") + text);
        FakePaneWindow::setStatus(side, text);
    }

  private:
    Log& log_;
};

class UnansweredQuestion final : public QuestionWindow {
  public:
    Answer ask(const std::string&, const std::string&, const QuestionNote&,
               CheckedChoice*) override {
        return Answer::Cancel;
    }
};

class RecordingRobotBox final : public RobotBox {
  public:
    std::vector<std::string> names;
    int selected = -1;

    void clear() override {
        names.clear();
        selected = -1;
    }
    void add(const std::string& name) override { names.push_back(name); }
    void select(int index) override { selected = index; }
};

/// Boxes that also write into the common log.
class LoggingBoxes final : public FakeMessageBoxes {
  public:
    explicit LoggingBoxes(Log& log) : log_(log) {}

    std::function<void()> whenAsked = [] {}; ///< runs while an OK and Cancel box is open

    void tell(const std::string& text, BoxIcon icon) override {
        log_.push_back("tell " + text);
        FakeMessageBoxes::tell(text, icon);
    }
    bool askOkCancel(const std::string& text, BoxIcon icon) override {
        log_.push_back("askOkCancel " + text);
        whenAsked();
        return FakeMessageBoxes::askOkCancel(text, icon);
    }
    bool askYesNo(const std::string& text, BoxIcon icon) override {
        log_.push_back("askYesNo " + text);
        return FakeMessageBoxes::askYesNo(text, icon);
    }

  private:
    Log& log_;
};

/// A program folder and everything below the main window, real but for library, windows and
/// operator.
struct Desk {
    TemporaryFolder folder;
    Log log;
    ApplicationState state;
    MessageTable messages = numberedMessages();
    LanguageFiles languages{folder.path()};
    LoggingBoxes boxes{log};
    ProgressPanel progress;
    UnansweredQuestion question;
    OperatorTalk talk{progress, question, boxes};
    LoggingLibrary library{log};
    Snappy session{{.library = library,
                    .TransMode = state.TransMode,
                    .messages = messages,
                    .languages = languages,
                    .progress = progress,
                    .talk = talk,
                    .programFolder = folder.path(),
                    .dummyWindow = [] { return nullptr; },
                    .unloadWindows = [this] { log.push_back("session quit"); }}};
    TransferTable table;
    LoggingPaneWindow window{log};
    Panes panes{state, session, table, messages, window};
};

} // namespace vantrel::tests
