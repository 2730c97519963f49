#include "support/Process.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>

namespace {

// The kernel keeps at least 128 MB of addresses free below the first stack page.
constexpr rlim_t kStackBytes = 120UL * 1024 * 1024;

}  // namespace

void RaiseStackLimit() {
    rlimit limit{};
    if (::getrlimit(RLIMIT_STACK, &limit) == 0 && limit.rlim_cur < kStackBytes) {
        limit.rlim_cur = std::min(kStackBytes, limit.rlim_max);
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
