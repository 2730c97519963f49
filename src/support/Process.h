#ifndef DORVEX_SUPPORT_PROCESS_H
#define DORVEX_SUPPORT_PROCESS_H

/// Lets the stack of the process grow far enough for schemas whose definitions refer to each other
/// in long chains: the parser library follows them by recursion. Does nothing where the system's
/// hard limit forbids it.
void RaiseStackLimit();

/// Opens /dev/null in place of standard streams that the caller closed, so that no file of ours
/// gets their numbers and with them what is written to the streams.
void OccupyStandardStreams();

#endif
