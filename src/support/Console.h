#ifndef DORVEX_SUPPORT_CONSOLE_H
#define DORVEX_SUPPORT_CONSOLE_H

#include <iosfwd>

/// Messages counted so far in this process; the counting output operator and the parser's error
/// handler add to them, and together they make the exit status.
extern int m_nErrorCount;
extern int m_nWarningCount;

/// The counting output operator. Text on a stream that shares the current buffer of standard output
/// or standard error and begins with "Error :", "Internal Error :" or "Warning :" (in any case)
/// adds one to the matching counter. On those two streams the banner precedes the first text. A
/// stream without a buffer swallows the text, uncounted.
std::ostream& operator<<(std::ostream& stream, char* text);
std::ostream& operator<<(std::ostream& stream, const char* text);

/// Shows the banner on the console or in the log, once per process; never while quiet and never in
/// an output file that standard output is redirected into.
void DisplayHeader();

/// Sends standard output and standard error into "./dorvex.log", which is recreated, and shows the
/// banner. When the log cannot be opened both streams stay as they are.
void OpenLog();

/// Detaches standard output: from now on what is written to it is dropped and not counted.
void SilenceOutput();

/// Says whether the log is open, or whether standard output was silenced.
bool IsLogOpen();
bool IsQuiet();

/// Gives standard output and standard error their own buffers back and closes the log. May be
/// called any number of times. A log that could not be written completely is reported as an error.
void RestoreStreams();

/// Ends the process with `status`.
[[noreturn]] void TerminateProgram(int status);

/// The exit status of a run that was not stopped: the low eight bits of errors plus warnings, and
/// 255 when these bits are 0 although something was counted.
int ExitStatus();

/// While it lives and the log is open, standard error writes to the console, so that a question
/// reaches the terminal.
class CKTConsoleForErrors {
public:
    CKTConsoleForErrors();
    ~CKTConsoleForErrors();
    CKTConsoleForErrors(const CKTConsoleForErrors&) = delete;
    CKTConsoleForErrors& operator=(const CKTConsoleForErrors&) = delete;

private:
    std::streambuf* m_pLogBuffer = nullptr;
};

#endif
