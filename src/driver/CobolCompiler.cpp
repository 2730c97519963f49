// The compiler runs in a child of its own, or, with the log, in a shell below the child whose
// output is relayed. A child that found no compiler, or has relayed one, goes on as if it were the
// parent and ends as a failed compile. So with the log every COBOL run ends there, whatever the
// compiler says; that is wanted. Only the exit byte is judged: a dictionary that is missing is
// found when it is read.

#include "driver/CobolCompiler.h"

#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <iostream>
#include <vector>

#include "driver/Complaints.h"
#include "support/Console.h"

namespace {

constexpr std::size_t kRelaySize = 128;

std::vector<std::string> CompilerArguments(const std::string& directives,
                                           const std::string& compileName) {
    std::vector<std::string> words = {"kcomp", "-C", "trak", "noobj"};
    if (!directives.empty()) {
        words.push_back(directives);
    }
    words.insert(words.end(), {"-C", "XMLGEN(WS)", compileName});
    return words;
}

/// Replaces the process with the compiler; returns after a message when there is none on the path.
void Execute(std::vector<std::string> words) {
    std::vector<char*> arguments;
    arguments.reserve(words.size() + 1);
    for (std::string& word : words) {
        arguments.push_back(word.data());
    }
    arguments.push_back(nullptr);
    ::execvp(arguments.front(), arguments.data());
    Report<DriverMessage::NoCompiler>();
}

/// A word as the shell passes it on unchanged.
std::string ShellWord(const std::string& word) {
    std::string quoted = "'";
    for (const char c : word) {
        quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
    }
    return quoted + "'";
}

void ExecuteIntoLog(const std::vector<std::string>& words) {
    std::string command;
    for (const std::string& word : words) {
        command += ShellWord(word) + " ";
    }
    // What the compiler says on either stream belongs in the log and not on the terminal.
    command += "2>&1";
    std::FILE* output = ::popen(command.c_str(), "r");
    if (output == nullptr) {
        return;
    }
    std::array<char, kRelaySize> piece{};
    while (std::fgets(piece.data(), piece.size(), output) != nullptr) {
        // Counted in the child alone, whose counters end with it.
        std::cerr << piece.data();
    }
    ::pclose(output);
}

}  // namespace

CompilerResult RunCobolCompiler(const std::string& directives, const std::string& compileName) {
    // What is buffered now would be written by both processes.
    std::cout.flush();
    std::cerr.flush();
    std::fflush(nullptr);
    // A caller that ignores its children would have the system take ours away before the wait.
    std::signal(SIGCHLD, SIG_DFL);
    const pid_t child = ::fork();
    if (child < 0) {
        return CompilerResult::NotStarted;
    }
    if (child == 0) {
        // The compiler would inherit that it is ignored.
        std::signal(SIGPIPE, SIG_DFL);
        const std::vector<std::string> words = CompilerArguments(directives, compileName);
        if (IsLogOpen()) {
            ExecuteIntoLog(words);
        } else {
            Execute(words);
        }
        // The child goes on as if it were the parent and finds no child of its own to wait for, so
        // that the real parent sees a failed compile.
    }
    int status = 0;
    pid_t ended = 0;
    do {
        ended = ::waitpid(child, &status, 0);
    } while (ended < 0 && errno == EINTR);
    if (ended < 0) {
        return CompilerResult::NotReturned;
    }
    // The exit byte alone, also of a compiler that a signal ended.
    return ((status >> 8) & 0xFF) > 0 ? CompilerResult::NotCompiled : CompilerResult::Compiled;
}
