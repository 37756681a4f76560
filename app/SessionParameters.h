#pragma once

namespace vantrel {

struct ApplicationState;
class Snappy;

/// Hands the serial parameters and the current robot's address to the session. It has to follow
/// every change of one of them, or the next operation goes to the machine before.
void passSessionParameters(const ApplicationState& state, Snappy& session);

} // namespace vantrel
