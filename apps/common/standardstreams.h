#pragma once

namespace uiutils::apps {

/// Occupies the standard streams that the caller closed, so that no file of ours is opened in their place and taken for
/// one. Using them still fails.
void holdStandardStreams();

} // namespace uiutils::apps
