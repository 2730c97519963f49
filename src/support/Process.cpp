// What the process needs of the system before anything else is done. Neither step can fail the run:
// where the system refuses, it goes on as well as it can.

#include "support/Process.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>

#include "support/Limits.h"

void RaiseStackLimit() {
    rlimit limit{};
    // The stack of the main thread grows on demand, so a limit raised while it runs holds at once.
    // One that is higher already stays.
    if (::getrlimit(RLIMIT_STACK, &limit) == 0 && limit.rlim_cur < kMaxStackBytes) {
        limit.rlim_cur = std::min<rlim_t>(kMaxStackBytes, limit.rlim_max);
        ::setrlimit(RLIMIT_STACK, &limit);
    }
}

void OccupyStandardStreams() {
    // For reading and writing, and open across exec: the compiler gets them as its own streams.
    for (int stream = STDIN_FILENO; stream <= STDERR_FILENO; ++stream) {
        // The lowest free number is the one that is given out.
        if (::fcntl(stream, F_GETFD) == -1 && ::open("/dev/null", O_RDWR) != stream) {
            return;
        }
    }
}
