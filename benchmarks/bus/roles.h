#pragma once

namespace bench {

// What a process of this program can be beside the one that measures. Each serves commands until its input ends and
// returns the process's exit code.

/// Publishes our service: "items N"; "change N", the last with the time; "load".
int publisherRole();
/// A program with a page over it: "page N FIRST STEP", bound to every STEPth of N items; "watch I", which answers with
/// the microseconds of each change of that item; "cpu"; "settle N", which answers with the CPU time when N changes have
/// arrived and whether all values are right; "record C", compressed or not, from now on; "recorded N", which answers
/// whether the recording has the changes of N loads; "start"; "memory".
int clientRole();
/// The same items in a process of their own: "memory".
int embeddedRole();

// The same over QtDBus.
int qtSenderRole();
int qtClientRole();

// The same over Qt Remote Objects, where it is installed: "items N MEETING", "change N" and "watch I".
int replicaHostRole();
int replicaWatcherRole();

} // namespace bench
