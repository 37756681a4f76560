#pragma once

#include <string>
#include <vector>

namespace vantrel {

class JobNameSet;
class LinkConnection;
class MessageTable;
class OperatorTalk;
class OverwriteQuestion;
class SessionProgress;
struct SessionErrorRecord;
struct SessionProperties;

/// What the transfer of single files works with; everything is borrowed.
struct TransferTools {
    const SessionProperties& properties;
    LinkConnection& link;
    SessionProgress& progress;
    SessionErrorRecord& error;
    const OverwriteQuestion& question;
    JobNameSet& directory;              ///< the names at the destination
    std::vector<std::string>& inTheWay; ///< what the transfer under way would replace
    const MessageTable& messages;
    OperatorTalk& talk;
};

} // namespace vantrel
