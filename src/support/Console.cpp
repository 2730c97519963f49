// What all output to the console shares: the counters, the banner, the log and silence. Streams are
// led elsewhere by exchanging their buffers, so that no place that writes has to know; the state
// keeps the buffers to give back. The counting operator takes plain character strings only. Objects
// such as std::string go past it, uncounted, which the parser's error handler and the outputs rely
// on. The question about an existing file is the one thing that reaches the terminal while the log
// takes all else.

#include "support/Console.h"

#include <array>
#include <iostream>
#include <optional>
#include <string>

#include "support/Complaints.h"
#include "support/LogFile.h"
#include "support/Progress.h"
#include "support/Text.h"

int m_nErrorCount = 0;
int m_nWarningCount = 0;

namespace {

constexpr const char* kLogName = "./dorvex.log";

/// What the console is made of at the moment. `output` is where standard output leads when no
/// output file borrows it; the saved buffer is set only while standard output is silenced or leads
/// into the log, the log's buffers only while the log is open.
struct ConsoleState {
    std::streambuf* output = std::cout.rdbuf();
    std::streambuf* savedOutput = nullptr;
    CKTLogFile log;
    std::optional<CKTLogBuffer> logOutput;
    std::optional<CKTLogBuffer> logErrors;
    bool bannerShown = false;
    bool quiet = false;
};

/// Made on first use: by then the streams have the buffers that they are to get back.
ConsoleState& State() {
    static ConsoleState state;
    return state;
}

struct CountedSeverity {
    std::string_view text;
    int* counter;
};

/// None begins like another one, so the order does not matter. A fatal error is not among them: the
/// parser's error handler counts its own.
constexpr std::array kCountedSeverities = {
    CountedSeverity{kErrorSeverity, &m_nErrorCount},
    CountedSeverity{kInternalErrorSeverity, &m_nErrorCount},
    CountedSeverity{kWarningSeverity, &m_nWarningCount},
};

void CountMessage(const char* text) {
    for (const CountedSeverity& severity : kCountedSeverities) {
        if (my_strnicmp(text, severity.text.data(), static_cast<int>(severity.text.size())) == 0) {
            ++*severity.counter;
            return;
        }
    }
}

}  // namespace

std::ostream& operator<<(std::ostream& stream, char* text) {
    if (stream.rdbuf() == nullptr) {
        return stream;
    }
    // By buffer, not by stream: a stream that was given the buffer of one of the two counts too.
    if (stream.rdbuf() == std::cout.rdbuf() || stream.rdbuf() == std::cerr.rdbuf()) {
        CountMessage(text);
    }
    if (&stream == &std::cout || &stream == &std::cerr) {
        DisplayHeader();
    }
    stream << std::string_view(text);
    if (&stream == &std::cout) {
        // What it announces may take long.
        stream.flush();
    }
    return stream;
}

std::ostream& operator<<(std::ostream& stream, const char* text) {
    // Both kinds of string have to come here, or the library's own operator takes one of them;
    // nothing writes to the text.
    return stream << const_cast<char*>(text);
}

void DisplayHeader() {
    ConsoleState& state = State();
    if (state.bannerShown || state.quiet) {
        return;
    }
    state.bannerShown = true;
    // Past the stream: standard output may be lent to an output file at this moment, and a banner
    // is no message to be counted.
    const std::string banner = MessageText<SupportMessage::Banner>() + '\n';
    state.output->sputn(banner.data(), static_cast<std::streamsize>(banner.size()));
    state.output->pubsync();
}

void OpenLog() {
    ConsoleState& state = State();
    // What goes into the log wipes no line off the terminal, so none may stand there.
    StopProgress();
    const bool opened = state.log.Open(kLogName);
    if (opened) {
        state.savedOutput = std::cout.rdbuf();
        std::cout.rdbuf(&state.logOutput.emplace(state.log, state.savedOutput));
        std::cerr.rdbuf(&state.logErrors.emplace(state.log, std::cerr.rdbuf()));
        state.output = std::cout.rdbuf();
    }
    DisplayHeader();
    if (!opened) {
        Report<SupportMessage::UnwritableOutput>(kLogName);
    }
}

void SilenceOutput() {
    ConsoleState& state = State();
    StopProgress();
    std::cout.flush();
    // Without a buffer the stream fails on every write, which drops the text.
    std::streambuf* current = std::cout.rdbuf(nullptr);
    // With the log open, what is to be given back is the console, not the log. The log then holds
    // what goes to standard error.
    if (state.savedOutput == nullptr) {
        state.savedOutput = current;
    }
    state.quiet = true;
}

bool IsLogOpen() {
    return State().logErrors.has_value();
}

bool IsQuiet() {
    return State().quiet;
}

void RestoreStreams() {
    ConsoleState& state = State();
    if (IsLogOpen()) {
        // Before the streams change: what the log does not take goes to the console.
        state.logOutput->pubsync();
        state.logErrors->pubsync();
    }
    if (state.savedOutput != nullptr) {
        std::cout.rdbuf(state.savedOutput);
        state.output = state.savedOutput;
        state.savedOutput = nullptr;
    }
    if (IsLogOpen()) {
        std::cerr.rdbuf(state.logErrors->Console());
        state.logErrors.reset();
        state.logOutput.reset();
        // Reported when the streams are back, so that somebody sees it.
        if (!state.log.Close()) {
            Report<SupportMessage::UnwritableOutput>(kLogName);
        }
    }
}

int ExitStatus() {
    // The system keeps eight bits of a status. A sum of 256 must not look like success.
    const auto sum = static_cast<unsigned>(m_nErrorCount) + static_cast<unsigned>(m_nWarningCount);
    const int status = static_cast<int>(sum & 0xFFU);
    return sum != 0 && status == 0 ? 255 : status;
}

CKTConsoleForErrors::CKTConsoleForErrors() {
    if (IsLogOpen()) {
        m_pLogBuffer = std::cerr.rdbuf(State().logErrors->Console());
    }
}

CKTConsoleForErrors::~CKTConsoleForErrors() {
    if (m_pLogBuffer != nullptr) {
        std::cerr.rdbuf(m_pLogBuffer);
    }
}
