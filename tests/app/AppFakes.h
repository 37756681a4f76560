#pragma once

#include "app/RobotRegistry.h"
#include "base/ApplicationState.h"
#include "files/PaneRows.h"
#include "files/PaneWindow.h"
#include "files/Panes.h"
#include "files/TransferTable.h"
#include "lang/LanguageFiles.h"
#include "lang/MessageTable.h"
#include "link/OperatorTalk.h"
#include "link/ProgressPanel.h"
#include "link/Snappy.h"
#include "link/Zurolink.h"
#include "platform/Files.h"
#include "support/FakeMessageBoxes.h"
#include "support/TemporaryFolder.h"

#include <algorithm>
#include <cstring>
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
    for (std::int16_t number = 0; number <= 600; ++number)
        entries.push_back({number, "", "m" + std::to_string(number)});
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

/// A controller that only has a directory; it can refuse to be connected.
class DirectoryLibrary final : public Zurolink {
  public:
    explicit DirectoryLibrary(Log& log) : log_(log) {}

    std::vector<std::string> directory;
    bool refusesConnection = false;
    std::function<void()> whenAsked = [] {}; ///< runs before an entry is told
    std::string address;                     ///< of the last BscSetEther
    std::int16_t port = 0;                   ///< of the last BscSetCom

    std::int16_t BscOpen(const char* path, std::int16_t type) override {
        log_.push_back("BscOpen " + std::string(path) + " " + std::to_string(type));
        return 1;
    }
    std::int16_t BscSetCom(std::int16_t, std::int16_t number, std::int32_t, std::int16_t,
                           std::int16_t, std::int16_t) override {
        port = number;
        return 1;
    }
    std::int16_t BscSetEther(std::int16_t, const char* ip, std::int16_t, void*) override {
        address = ip;
        return 1;
    }
    std::int16_t BscConnect(std::int16_t) override { return refusesConnection ? 0 : 1; }
    std::int16_t BscDisConnect(std::int16_t) override { return 1; }
    std::int16_t BscClose(std::int16_t) override { return 0; }
    std::int16_t BscFindFirst(std::int16_t handle, char* buffer, std::int16_t length) override {
        next_ = 0;
        return BscFindNext(handle, buffer, length);
    }
    std::int16_t BscFindNext(std::int16_t, char* buffer, std::int16_t length) override {
        whenAsked();
        if (next_ == directory.size())
            return -1;
        const std::string& name = directory[next_++];
        std::memcpy(buffer, name.c_str(),
                    std::min(name.size() + 1, static_cast<std::size_t>(length)));
        return 0;
    }
    std::int16_t BscDownLoad(std::int16_t, const char*) override { return -1; }
    std::int16_t BscUpLoad(std::int16_t, const char*) override { return -1; }
    std::int16_t BscSelectJob(std::int16_t, const char*) override { return -1; }
    std::int16_t BscDeleteJob(std::int16_t) override { return -1; }
    std::int16_t BscGetVarData(std::int16_t, std::int16_t, std::int16_t, double*) override {
        return -1;
    }
    std::int16_t BscPutVarData(std::int16_t, std::int16_t, std::int16_t, const double*) override {
        return -1;
    }

  private:
    Log& log_;
    std::size_t next_ = 0;
};

class RecordingList final : public PaneList {
  public:
    std::vector<std::string> names;

    void show(const PaneRows& rows) override {
        names.clear();
        for (std::size_t row = 0; row < rows.size(); ++row)
            names.push_back(rows.name(row));
    }
    std::vector<std::size_t> selectedRows() const override { return {}; }
    std::optional<std::size_t> selectedRow() const override { return {}; }
    void select(const std::vector<std::size_t>&) override {}
    void focus() override { ++focuses; }

    int focuses = 0;
};

class RecordingPaneWindow final : public PaneWindow {
  public:
    explicit RecordingPaneWindow(Log& log) : log_(log) {}

    RecordingList pc, controller;
    std::vector<std::string> controllerFilters;

    PaneList& list(ActiveSide side) override { return side == ActiveSide::PC ? pc : controller; }
    int filterIndex(ActiveSide side) const override { return side == ActiveSide::PC ? 4 : 0; }
    void setFilterChoices(ActiveSide side, const std::vector<std::string>& choices) override {
        if (side == ActiveSide::Controller)
            controllerFilters = choices;
    }
    void setStatus(ActiveSide side, const std::string& text) override {
        log_.push_back((side == ActiveSide::PC ? "status PC " : "status Ctrl ") + text);
    }
    void setBusyPointer(bool) override {}
    void setLocked(bool) override {}
    void yield() override {}

  private:
    Log& log_;
};

class UnansweredQuestion final : public QuestionWindow {
  public:
    Answer ask(const std::string&, const std::string&) override { return Answer::Cancel; }
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

/// A program folder and everything below the main window, with a session on a DirectoryLibrary.
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
    DirectoryLibrary library{log};
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
    RecordingPaneWindow window{log};
    Panes panes{state, session, table, messages, window};
};

} // namespace vantrel::tests
