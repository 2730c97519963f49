// Answers of servers, read as a whole through libcurl. Silence is measured here, because the
// library's own limit is an average speed, which ends a slow server that does send. Redirections
// are followed here and not by the library, so that none of their targets is fetched twice.
// Answers, failures included, are kept for the process; memory is bounded for each of them and not
// for all.

#include "xml/Fetch.h"

#include <algorithm>
#include <map>
#include <memory>
#include <new>
#include <utility>

#include <curl/curl.h>

namespace {

using Clock = std::chrono::steady_clock;

/// A circle of redirections ends here.
constexpr int kMaxRedirections = 6;

/// An answer while it comes in.
struct Transfer {
    const FetchBounds& bounds;
    std::string bytes;
    Clock::time_point lastByte = Clock::now();
};

std::size_t TakeHeader(const char*, std::size_t, std::size_t length, void* transfer) {
    // A header is a sign of life as well.
    static_cast<Transfer*>(transfer)->lastByte = Clock::now();
    return length;
}

std::size_t TakeBytes(const char* bytes, std::size_t, std::size_t length, void* transfer) {
    auto& into = *static_cast<Transfer*>(transfer);
    into.lastByte = Clock::now();
    if (length > into.bounds.bytes - into.bytes.size()) {
        return 0;  // ends the transfer
    }
    try {
        into.bytes.append(bytes, length);
    } catch (const std::bad_alloc&) {
        return 0;  // no exception may pass through the library
    }
    return length;
}

/// The library asks this about once a second, whether anything comes in or not.
int EndsForSilence(void* transfer, curl_off_t, curl_off_t, curl_off_t, curl_off_t) {
    const auto& in = *static_cast<const Transfer*>(transfer);
    return Clock::now() - in.lastByte > in.bounds.silence ? 1 : 0;
}

FetchEnd EndOf(CURLcode code) {
    switch (code) {
        case CURLE_OK:
            return FetchEnd::Complete;
        case CURLE_COULDNT_RESOLVE_HOST:
        case CURLE_COULDNT_RESOLVE_PROXY:
            return FetchEnd::UnknownHost;
        case CURLE_COULDNT_CONNECT:
            return FetchEnd::NotConnected;
        case CURLE_RECV_ERROR:
        case CURLE_PARTIAL_FILE:
        case CURLE_GOT_NOTHING:
            return FetchEnd::CutOff;
        default:
            return FetchEnd::Failed;
    }
}

}  // namespace

Fetched Fetch(const std::string& url, const FetchBounds& bounds) {
    const std::unique_ptr<CURL, decltype(&curl_easy_cleanup)> handle(curl_easy_init(),
                                                                     &curl_easy_cleanup);
    if (handle == nullptr) {
        return {};
    }
    Transfer transfer{bounds, {}};
    curl_easy_setopt(handle.get(), CURLOPT_URL, url.c_str());
    // For a location that holds a user's name: whatever way the server wants it.
    curl_easy_setopt(handle.get(), CURLOPT_HTTPAUTH, CURLAUTH_ANY);
    // The page that a server sends with an error is no schema.
    curl_easy_setopt(handle.get(), CURLOPT_FAILONERROR, 1L);
    // No signals of the library's among ours.
    curl_easy_setopt(handle.get(), CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(handle.get(), CURLOPT_HEADERFUNCTION, &TakeHeader);
    curl_easy_setopt(handle.get(), CURLOPT_HEADERDATA, &transfer);
    curl_easy_setopt(handle.get(), CURLOPT_WRITEFUNCTION, &TakeBytes);
    curl_easy_setopt(handle.get(), CURLOPT_WRITEDATA, &transfer);
    // Otherwise the function below is never called.
    curl_easy_setopt(handle.get(), CURLOPT_NOPROGRESS, 0L);
    curl_easy_setopt(handle.get(), CURLOPT_XFERINFOFUNCTION, &EndsForSilence);
    curl_easy_setopt(handle.get(), CURLOPT_XFERINFODATA, &transfer);
    Fetched fetched;
    fetched.end = EndOf(curl_easy_perform(handle.get()));
    const char* target = nullptr;
    if (fetched.end == FetchEnd::Complete) {
        curl_easy_getinfo(handle.get(), CURLINFO_REDIRECT_URL, &target);
        fetched.bytes = std::move(transfer.bytes);
    }
    if (target != nullptr) {
        fetched = {FetchEnd::Redirected, {}, target};
    }
    return fetched;
}

const Fetched& FetchOnce(const std::string& url, const FetchBounds& bounds) {
    // A map, because the answers given out stay where they are.
    static std::map<std::string, Fetched> known;
    static const Fetched kFailed;
    std::string location = url;
    for (int redirections = 0; redirections <= kMaxRedirections; ++redirections) {
        // What stands behind is not sent and makes no other document.
        location.erase(std::min(location.find('#'), location.size()));
        auto found = known.find(location);
        if (found == known.end()) {
            found = known.emplace(location, Fetch(location, bounds)).first;
        }
        if (found->second.end != FetchEnd::Redirected) {
            return found->second;
        }
        location = found->second.target;
        if (!location.starts_with("http://") && !location.starts_with("https://")) {
            break;  // a server does not send anybody to a file of this machine
        }
    }
    return kFailed;
}
