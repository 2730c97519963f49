// The line is drawn past the streams, and stream buffers put before those of the streams see to it
// that it is gone before anything else arrives. There is no timer: the clock is looked at when some
// more has been counted, so a run that reads and writes nothing for long shows nothing new. The
// line is wiped with blanks, which every terminal knows, and not with control sequences. What
// others write to the terminal, such as the compiler, is not seen.

#include "support/Progress.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <iostream>
#include <optional>
#include <ostream>

#include "support/Complaints.h"

namespace {

constexpr std::chrono::seconds kDelay{2};
constexpr std::chrono::milliseconds kRefresh{500};
/// Between two looks at the clock, counting is an addition and a comparison.
constexpr std::size_t kBytesPerCheck = 16384;
constexpr std::size_t kItemsPerCheck = 64;

/// The widest text that stays on one line of the terminal.
std::size_t WidthOf(int terminal) {
    winsize size{};
    // One column stays free, since a terminal may go on to the next line when the last one is
    // filled. Asked each time, because windows change their size.
    const bool known = ::ioctl(terminal, TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
    return known ? size.ws_col - 1U : std::string::npos;
}

/// The line of the process, absent until it is started. Destroyed at exit, before the streams are
/// flushed for the last time.
std::optional<CKTProgressLine>& Line() {
    static std::optional<CKTProgressLine> line;
    return line;
}

}  // namespace

/// Hands everything on to the buffer whose place it took.
class CKTProgressLine::CKTWatchedBuffer : public std::streambuf {
public:
    CKTWatchedBuffer(CKTProgressLine& line, std::ostream& stream)
        : m_Line(line), m_Stream(stream), m_pTarget(stream.rdbuf(this)) {}
    ~CKTWatchedBuffer() override {
        // A buffer that has taken its place since then stays.
        if (m_Stream.rdbuf() == this) {
            m_Stream.rdbuf(m_pTarget);
        }
    }
    CKTWatchedBuffer(const CKTWatchedBuffer&) = delete;
    CKTWatchedBuffer& operator=(const CKTWatchedBuffer&) = delete;

    void FlushTarget() { m_pTarget->pubsync(); }

protected:
    int_type overflow(int_type c) override {
        // The buffer keeps nothing itself, so there is nothing to make room for.
        if (traits_type::eq_int_type(c, traits_type::eof())) {
            return traits_type::not_eof(c);
        }
        const char character = traits_type::to_char_type(c);
        return xsputn(&character, 1) == 1 ? c : traits_type::eof();
    }

    std::streamsize xsputn(const char* text, std::streamsize count) override {
        if (count <= 0) {
            return 0;
        }
        m_Line.Wipe();
        // While a line is incomplete, such as a question, it must not be overwritten.
        m_Line.m_bLineStart = text[count - 1] == '\n';
        return m_pTarget->sputn(text, count);
    }

    int sync() override {
        m_Line.Wipe();
        return m_pTarget->pubsync();
    }

private:
    CKTProgressLine& m_Line;
    std::ostream& m_Stream;
    std::streambuf* m_pTarget;
};

CKTProgressLine::CKTProgressLine(int terminal, Clock now)
    : m_nTerminal(terminal), m_pNow(now), m_Due(now() + kDelay) {}

CKTProgressLine::~CKTProgressLine() {
    Wipe();
}

void CKTProgressLine::Watch(std::ostream& stream) {
    for (auto& watched : m_Watched) {
        if (watched == nullptr) {
            watched = std::make_unique<CKTWatchedBuffer>(*this, stream);
            return;
        }
    }
}

void CKTProgressLine::AddBytes(std::size_t count) {
    Add(m_Bytes, count, kBytesPerCheck);
}

void CKTProgressLine::AddItems(std::size_t count) {
    Add(m_Items, count, kItemsPerCheck);
}

void CKTProgressLine::Add(Counter& counter, std::size_t count, std::size_t perCheck) {
    counter.count += count;
    if (counter.count >= counter.toCheck) {
        counter.toCheck = counter.count + perCheck;
        ShowWhenDue();
    }
}

void CKTProgressLine::ShowWhenDue() {
    if (!m_bLineStart) {
        return;
    }
    const TimePoint now = m_pNow();
    if (now <= m_Due) {
        return;
    }
    // A terminal may be slow, and nobody reads faster.
    m_Due = now + kRefresh;
    // What a stream has taken stands above the line.
    for (const auto& watched : m_Watched) {
        if (watched != nullptr) {
            watched->FlushTarget();
        }
    }
    Draw(Text());
}

std::string CKTProgressLine::Text() const {
    const std::string text =
        m_Items.count > 0 ? MessageText<SupportMessage::BytesAndItems>(m_Bytes.count, m_Items.count)
                          : MessageText<SupportMessage::BytesRead>(m_Bytes.count);
    return text.substr(0, WidthOf(m_nTerminal));
}

/// Replaces what is shown. A terminal that takes nothing is none of the run's business.
void CKTProgressLine::Draw(const std::string& text) {
    const std::string drawn =
        // Blanks first: the new text may be shorter than the one that is there.
        (m_nShown > 0 ? '\r' + std::string(m_nShown, ' ') + '\r' : std::string()) + text;
    m_nShown = text.size();
    [[maybe_unused]] const auto written = ::write(m_nTerminal, drawn.data(), drawn.size());
}

void CKTProgressLine::Wipe() {
    if (m_nShown > 0) {
        Draw({});
    }
}

void CKTProgressLine::Stop() {
    Wipe();
    m_Due = TimePoint::max();
}

void StartProgress() {
    if (::isatty(STDERR_FILENO) == 0) {
        return;
    }
    // Standard error, since standard output may be a file that the user keeps.
    Line().emplace(STDERR_FILENO, &std::chrono::steady_clock::now);
    Line()->Watch(std::cerr);
    // Only what goes to a terminal can run into the line.
    if (::isatty(STDOUT_FILENO) != 0) {
        Line()->Watch(std::cout);
    }
}

void StopProgress() {
    if (Line()) {
        Line()->Stop();
    }
}

void ReportBytesRead(std::size_t count) {
    if (Line()) {
        Line()->AddBytes(count);
    }
}

void RestartBytesRead() {
    if (Line()) {
        Line()->RestartBytes();
    }
}

void ReportItemsWritten(std::size_t count) {
    if (Line()) {
        Line()->AddItems(count);
    }
}

void ReportLineTyped() {
    if (Line()) {
        Line()->EndLine();
    }
}
