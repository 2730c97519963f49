#include "support/StackLimit.h"

#include <sys/resource.h>

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
