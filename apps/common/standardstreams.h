#pragma once

namespace uiutils::apps {

/// Takes the places of standard streams that the caller closed, so that no file of ours is opened there and
/// mistaken for one. Using them still fails.
void holdStandardStreams();

} // namespace uiutils::apps
