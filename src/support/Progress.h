#ifndef DORVEX_SUPPORT_PROGRESS_H
#define DORVEX_SUPPORT_PROGRESS_H

#include <array>
#include <chrono>
#include <cstddef>
#include <iosfwd>
#include <memory>
#include <streambuf>
#include <string>

/// Shows on standard error how far the run is, once it has taken more than two seconds; nothing
/// when standard error is no terminal. Called once, before anything is written.
void StartProgress();

/// Wipes the line and shows nothing from now on; counting goes on unseen.
void StopProgress();

/// Counts what the line shows: bytes of the input read, and items written to an output. Cheap
/// enough for a call per item.
void ReportBytesRead(std::size_t count);
void ReportItemsWritten(std::size_t count);

/// Counts the bytes from 0 again: an input is read another time.
void RestartBytesRead();

/// Says that the user has typed a line at the terminal, which ends the line of the question.
void ReportLineTyped();

/// One line on a terminal that says how far a run is. It is wiped before anything else that a
/// watched stream writes, and not shown while another line is incomplete. A process has one, behind
/// the functions above; tests make more, with a clock of their own.
class CKTProgressLine {
public:
    using TimePoint = std::chrono::steady_clock::time_point;
    using Clock = TimePoint (*)();

    /// Shows the line on the file descriptor `terminal`, which stays the caller's, as soon as `now`
    /// says that more than two seconds have gone by since.
    CKTProgressLine(int terminal, Clock now);
    ~CKTProgressLine();
    CKTProgressLine(const CKTProgressLine&) = delete;
    CKTProgressLine& operator=(const CKTProgressLine&) = delete;

    /// Has what `stream`, one of at most two, writes wipe the line first. The stream has its own
    /// buffer back at the end, unless another one has taken its place by then.
    void Watch(std::ostream& stream);

    /// Count, and show the line when it is due, at most twice a second.
    void AddBytes(std::size_t count);
    void AddItems(std::size_t count);
    void RestartBytes() { m_Bytes = {}; }
    /// What the user typed ended the line that was incomplete.
    void EndLine() { m_bLineStart = true; }
    /// Takes the line off the terminal, until it is due again or, with Stop, for good. Both may be
    /// called any number of times.
    void Wipe();
    void Stop();

private:
    class CKTWatchedBuffer;

    /// A count, and the one from which the clock is looked at again.
    struct Counter {
        std::size_t count = 0;
        std::size_t toCheck = 0;
    };

    void Add(Counter& counter, std::size_t count, std::size_t perCheck);
    void ShowWhenDue();
    [[nodiscard]] std::string Text() const;
    void Draw(const std::string& text);

    int m_nTerminal;
    Clock m_pNow;
    TimePoint m_Due;  ///< the last one of the clock once the line is stopped
    std::array<std::unique_ptr<CKTWatchedBuffer>, 2> m_Watched;
    Counter m_Bytes;
    Counter m_Items;
    std::size_t m_nShown = 0;  ///< the width of what stands on the terminal
    bool m_bLineStart = true;
};

#endif
