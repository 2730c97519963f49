#include "support/Console.h"

#include <array>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <string>

#include "support/Text.h"

int m_nErrorCount = 0;
int m_nWarningCount = 0;

namespace {

constexpr const char* kLogName = "./dorvex.log";
constexpr std::string_view kBanner =
    "Ostrel DORVEX Version 1.0\n"
    "Copyright (c) the dorvex authors. All rights reserved.\n\n";

/// What the console is made of at the moment. `output` is where standard output leads when no
/// output file borrows it; the saved buffers are set only while they differ from the streams' own.
struct ConsoleState {
    std::streambuf* output = std::cout.rdbuf();
    std::streambuf* savedOutput = nullptr;
    std::streambuf* savedErrors = nullptr;
    std::ofstream log;
    bool bannerShown = false;
    bool quiet = false;
};

ConsoleState& State() {
    static ConsoleState state;
    return state;
}

struct CountedPrefix {
    const char* text;
    int length;
    int* counter;
};

constexpr std::array kCountedPrefixes = {
    CountedPrefix{"Error :", 7, &m_nErrorCount},
    CountedPrefix{"Internal Error :", 16, &m_nErrorCount},
    CountedPrefix{"Warning :", 9, &m_nWarningCount},
};

void CountMessage(const char* text) {
    for (const CountedPrefix& prefix : kCountedPrefixes) {
        if (my_strnicmp(text, prefix.text, prefix.length) == 0) {
            ++*prefix.counter;
            return;
        }
    }
}

}  // namespace

std::ostream& operator<<(std::ostream& stream, char* text) {
    if (stream.rdbuf() == nullptr) {
        return stream;
    }
    if (stream.rdbuf() == std::cout.rdbuf() || stream.rdbuf() == std::cerr.rdbuf()) {
        CountMessage(text);
    }
    if (&stream == &std::cout || &stream == &std::cerr) {
        DisplayHeader();
    }
    return stream << std::string_view(text);
}

std::ostream& operator<<(std::ostream& stream, const char* text) {
    return stream << const_cast<char*>(text);
}

void WriteLine(std::ostream& stream, std::initializer_list<std::string_view> pieces) {
    std::string line;
    for (const std::string_view piece : pieces) {
        line += piece;
    }
    line += '\n';
    stream << line.c_str();
}

void ReportUnwritableOutput(std::string_view name) {
    WriteLine(std::cerr, {"Error : Unable to write output file \"", name, "\""});
}

void DisplayHeader() {
    ConsoleState& state = State();
    if (state.bannerShown || state.quiet) {
        return;
    }
    state.bannerShown = true;
    state.output->sputn(kBanner.data(), static_cast<std::streamsize>(kBanner.size()));
    state.output->pubsync();
}

void OpenLog() {
    ConsoleState& state = State();
    state.log.open(kLogName, std::ios::trunc);
    if (state.log.is_open()) {
        state.savedOutput = std::cout.rdbuf(state.log.rdbuf());
        state.savedErrors = std::cerr.rdbuf(state.log.rdbuf());
        state.output = state.log.rdbuf();
    }
    DisplayHeader();
}

void SilenceOutput() {
    ConsoleState& state = State();
    std::streambuf* current = std::cout.rdbuf(nullptr);
    if (state.savedOutput == nullptr) {
        state.savedOutput = current;
    }
    state.quiet = true;
}

bool IsLogOpen() {
    return State().savedErrors != nullptr;
}

bool IsQuiet() {
    return State().quiet;
}

void RestoreStreams() {
    ConsoleState& state = State();
    if (state.savedOutput != nullptr) {
        std::cout.rdbuf(state.savedOutput);
        state.output = state.savedOutput;
        state.savedOutput = nullptr;
    }
    if (state.savedErrors != nullptr) {
        std::cerr.rdbuf(state.savedErrors);
        state.savedErrors = nullptr;
        state.log.close();
        if (state.log.fail()) {
            ReportUnwritableOutput(kLogName);
        }
    }
}

void TerminateProgram(int status) {
    std::exit(status);
}

int ExitStatus() {
    const auto sum = static_cast<unsigned>(m_nErrorCount) + static_cast<unsigned>(m_nWarningCount);
    const int status = static_cast<int>(sum & 0xFFU);
    return sum != 0 && status == 0 ? 255 : status;
}

CKTConsoleForErrors::CKTConsoleForErrors() {
    if (IsLogOpen()) {
        m_pLogBuffer = std::cerr.rdbuf(State().savedErrors);
    }
}

CKTConsoleForErrors::~CKTConsoleForErrors() {
    if (m_pLogBuffer != nullptr) {
        std::cerr.rdbuf(m_pLogBuffer);
    }
}
