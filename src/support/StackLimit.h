#ifndef DORVEX_SUPPORT_STACKLIMIT_H
#define DORVEX_SUPPORT_STACKLIMIT_H

/// Lets the stack of the process grow far enough for schemas whose definitions refer to each other
/// in long chains: the parser library follows them by recursion. Does nothing where the system's
/// hard limit forbids it.
void RaiseStackLimit();

#endif
