#include "support/Process.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>

#include "support/Limits.h"

void RaiseStackLimit() {
    rlimit limit{};
    if (::getrlimit(RLIMIT_STACK, &limit) == 0 && limit.rlim_cur < kMaxStackBytes) {
        limit.rlim_cur = std::min<rlim_t>(kMaxStackBytes, limit.rlim_max);
        ::setrlimit(RLIMIT_STACK, &limit);
    }
}

void OccupyStandardStreams() {
    for (int stream = STDIN_FILENO; stream <= STDERR_FILENO; ++stream) {
        // The lowest free number is the one that is given out.
        if (::fcntl(stream, F_GETFD) == -1 && ::open("/dev/null", O_RDWR) != stream) {
            return;
        }
    }
}
