#pragma once

namespace kiv::embedded {
class EmbeddedBackend;
}

namespace kiv::simulation {

/// What is simulated of the services.
enum class Simulated {
    /// Everything that their files say.
    All,
    /// Only what clients start. Nothing moves or happens by itself.
    Actions,
};

/// Lets the services of all files that `backend` loads from now on do what their files say, for as long as they are
/// published. Files that are wrong in this are rejected by the back end.
void simulate(embedded::EmbeddedBackend& backend, Simulated what);

} // namespace kiv::simulation
