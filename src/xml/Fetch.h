#ifndef DORVEX_XML_FETCH_H
#define DORVEX_XML_FETCH_H

#include <chrono>
#include <cstddef>
#include <string>

#include "support/Limits.h"

/// How long a server may be silent, and how much it may send.
struct FetchBounds {
    std::chrono::milliseconds silence = kMaxFetchSilence;
    std::size_t bytes = kMaxFetchedBytes;
};

/// How a request ended. The kinds of failure beside Failed are those that the parser library has
/// words of its own for.
enum class FetchEnd {
    Complete,
    Redirected,
    UnknownHost,
    NotConnected,
    CutOff,
    Failed,  ///< refused by the server, silent for too long, too large, or anything else
};

struct Fetched {
    FetchEnd end = FetchEnd::Failed;
    std::string bytes;   ///< of a complete answer
    std::string target;  ///< where a redirection leads
};

/// Asks for `url` once and reads the whole answer. Follows nothing, keeps nothing and reports
/// nothing; the bytes of an answer that is not complete are dropped.
Fetched Fetch(const std::string& url, const FetchBounds& bounds);

/// The answer for `url`, redirections followed as far as they lead to servers. Whatever was asked
/// for in this process, with or without success, is not asked for again. The answer stays where it
/// is until the process ends. Never Redirected: too many of them are a failure.
const Fetched& FetchOnce(const std::string& url, const FetchBounds& bounds = {});

#endif
