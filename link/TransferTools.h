#pragma once

namespace vantrel {

class JobNameSet;
class LinkConnection;
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
    JobNameSet& directory; ///< the names at the destination
};

} // namespace vantrel
