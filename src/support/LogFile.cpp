// The log is written through its file descriptor, so that it is known which text it did not take:
// that text is shown on the console instead of being lost. The first failure is reported and lasts:
// what follows goes to the console at once. Each stream has a buffer of its own over the one file,
// and the order in it is that of their flushes.

#include "support/LogFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

#include "support/Complaints.h"

namespace {

/// Bounds what a stream that is never flushed keeps.
constexpr std::size_t kMostPending = 8192;

}  // namespace

CKTLogFile::~CKTLogFile() {
    Close();
}

bool CKTLogFile::Open(const char* name) {
    m_sName = name;
    m_bFailed = false;
    m_nFile = ::open(name, O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    return IsOpen();
}

void CKTLogFile::Write(std::string_view text, std::streambuf& console) {
    const bool failedBefore = m_bFailed;
    while (!text.empty() && !m_bFailed) {
        const ssize_t count = ::write(m_nFile, text.data(), text.size());
        if (count > 0) {
            text.remove_prefix(static_cast<std::size_t>(count));
        } else {
            // A signal is no failure. A write that takes nothing would be tried for ever.
            m_bFailed = count == 0 || errno != EINTR;
        }
    }
    if (!text.empty()) {
        console.sputn(text.data(), static_cast<std::streamsize>(text.size()));
        console.pubsync();
    }
    // Behind the text, and with the failure noted: the report comes back here through standard
    // error and has to go to the console.
    if (m_bFailed && !failedBefore) {
        Report<SupportMessage::UnwritableOutput>(m_sName);
    }
}

bool CKTLogFile::Close() {
    const int file = m_nFile;
    m_nFile = -1;
    // What failed before has been reported then.
    return file < 0 || ::close(file) == 0 || m_bFailed;
}

CKTLogBuffer::int_type CKTLogBuffer::overflow(int_type c) {
    if (traits_type::eq_int_type(c, traits_type::eof())) {
        return traits_type::not_eof(c);
    }
    const char character = traits_type::to_char_type(c);
    xsputn(&character, 1);
    return c;
}

std::streamsize CKTLogBuffer::xsputn(const char* text, std::streamsize count) {
    m_sPending.append(text, static_cast<std::size_t>(count));
    if (m_sPending.size() > kMostPending) {
        sync();
    }
    return count;
}

int CKTLogBuffer::sync() {
    // Reporting that the log is full comes back here.
    std::string text;
    text.swap(m_sPending);
    m_Log.Write(text, *m_pConsole);
    return 0;
}
