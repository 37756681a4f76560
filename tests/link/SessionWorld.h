#pragma once

#include "base/Connection.h"
#include "lang/LanguageFiles.h"
#include "lang/MessageTable.h"
#include "link/OperatorTalk.h"
#include "link/ProgressPanel.h"
#include "link/Snappy.h"
#include "support/FakeMessageBoxes.h"
#include "support/FakeZurolink.h"
#include "support/RecordingProgressView.h"
#include "support/ScriptedQuestionWindow.h"
#include "support/TemporaryFolder.h"

#include <bit>
#include <cstdint>
#include <initializer_list>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vantrel::tests {

/// The English texts that the session shows.
inline MessageTable sessionMessages() {
    MessageTable table;
    std::vector<MessageEntry> entries;
    const auto add = [&entries](std::int16_t number, const char* text) {
        entries.push_back({number, text, text});
    };
    add(34, "address unset");
    add(38, "job file ");
    add(39, "is missing");
    add(49, "% skipped");
    add(50, "waiting");
    add(51, "item ");
    add(52, " of ");
    add(61, " kept as ");
    add(63, " incomplete");
    add(66, " stored under the second name");
    add(75, " interrupted");
    add(76, "; old back");
    add(77, "; part kept as ");
    add(78, "; check");
    add(79, "; old kept as ");
    add(80, "; nothing");
    add(93, "reading directory");
    add(547, "mark unusable");
    add(372, " mark unusable: ");
    add(373, " mark of nothing");
    add(6620, " group mark unusable");
    add(546, "not flushed");
    add(502, "already exists. Overwrite it?");
    add(504, "Transferring ");
    add(507, "Deleting ");
    add(533, "Cancel");
    add(1000, "first text");
    add(5200, "last text");
    table.replace(std::move(entries));
    return table;
}

/// A session with everything around it, working in an empty PC folder on a library in memory, with
/// one controller on COM1.
class SessionWorld {
  public:
    SessionWorld() : SessionWorld(nullptr) {}
    /// With another library than the one in memory.
    explicit SessionWorld(Zurolink* other)
        : services{other ? *other : library,
                   mode,
                   messages,
                   languages,
                   panel,
                   talk,
                   program.path(),
                   [this] {
                       ++dummyWindowsAsked;
                       return std::bit_cast<void*>(std::uintptr_t{77});
                   },
                   [this] { ++windowsUnloaded; },
                   [this] { ++modeChanges; }} {
        panel.attach(&view);
        library.at("COM1");
        session = std::make_unique<Snappy>(services);
        session->path = pc.path();
    }

    FakeController& controller() { return library.at("COM1"); }

    /// A job's bytes as a controller wants them.
    static std::string job(const std::string& name, const std::string& body = "NOP") {
        return "/JOB\r\n//NAME " + name + "\r\n" + body + "\r\n";
    }

    /// The record as "function code index".
    std::string error() const {
        return session->ErrorFunction() + " " + std::to_string(session->ErrorCode()) + " " +
               std::to_string(session->ErrorIndex());
    }

    TemporaryFolder program;
    TemporaryFolder pc;
    FakeZurolink library;
    TransferMode mode = TransferMode::Bsc;
    MessageTable messages = sessionMessages();
    LanguageFiles languages{program.path()};
    RecordingProgressView view;
    ProgressPanel panel;
    ScriptedQuestionWindow question;
    FakeMessageBoxes boxes;
    OperatorTalk talk{panel, question, boxes};
    int dummyWindowsAsked = 0;
    int windowsUnloaded = 0;
    int modeChanges = 0;
    SessionServices services;
    std::unique_ptr<Snappy> session;
};

/// The calls that every operation on COM1 begins with.
inline std::vector<std::string> opening(const SessionWorld& world, int handle) {
    const std::string number = std::to_string(handle);
    return {"BscOpen(" + world.pc.path() + ", 1)", "BscSetCom(" + number + ", 1, 9600, 2, 8, 0)",
            "BscConnect(" + number + ")"};
}

/// One operation's link on COM1 with these calls in it, handle included.
inline std::vector<std::string> wholeLink(const SessionWorld& world, int handle,
                                          const std::vector<std::string>& calls) {
    const std::string number = std::to_string(handle);
    std::vector<std::string> all = opening(world, handle);
    all.insert(all.end(), calls.begin(), calls.end());
    all.push_back("BscDisConnect(" + number + ")");
    all.push_back("BscClose(" + number + ")");
    return all;
}

/// Several calls in a row as one list.
inline std::vector<std::string> inOrder(std::initializer_list<std::vector<std::string>> parts) {
    std::vector<std::string> all;
    for (const auto& part : parts)
        all.insert(all.end(), part.begin(), part.end());
    return all;
}

} // namespace vantrel::tests
