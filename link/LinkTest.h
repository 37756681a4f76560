#pragma once

#include "base/Connection.h"
#include "link/SessionErrorRecord.h"
#include "link/SessionServices.h"

#include <functional>
#include <optional>
#include <string>

namespace vantrel {

class MessageTable;
class SessionProgress;

/// A controller and how it is reached.
struct LinkTarget {
    TransferMode mode = TransferMode::Bsc;
    SerialLine serial = {};
    std::string address = {};
};

/// Why a step failed, as the error record tells it.
struct LinkFault {
    std::string function;
    std::int16_t code = 0;
    std::string text; ///< of the code, never empty

    bool operator==(const LinkFault&) const = default;
};

/// A step of the test that has ended.
struct LinkTestStep {
    enum class Kind { Open, Answer, Close };

    Kind kind = Kind::Open;
    std::optional<LinkFault> fault = {}; ///< nothing when it went well

    bool operator==(const LinkTestStep&) const = default;
};

/// The text of a record's code, never empty. What a function of the library has returned has a text
/// only where the controllers' codes are; our own findings have theirs.
std::string recordedText(const MessageTable& messages, const SessionErrorRecord& error,
                         bool isReturned);

/// Opens a link, has the controller answer once and closes the link again: a session's connection,
/// with parameters and an error record of its own.
class LinkTest {
  public:
    /// `as` holds what the target does not say. Services and progress outlive the test.
    LinkTest(const SessionServices& services, const SessionProperties& as, const LinkTarget& target,
             SessionProgress& progress);
    LinkTest(const LinkTest&) = delete;
    LinkTest& operator=(const LinkTest&) = delete;

    /// Tells of each step that is tried, in their order; none follows one that leaves no link.
    void run(const std::function<void(const LinkTestStep&)>& ended);

    /// What is told when nothing may be tried, since an operation runs.
    static LinkTestStep refused(const MessageTable& messages);

  private:
    LinkTestStep step(LinkTestStep::Kind kind, bool isDone) const;

    TransferMode mode_;
    SessionServices services_;
    SessionProperties properties_;
    SessionProgress& progress_;
    SessionErrorRecord error_;
};

} // namespace vantrel
