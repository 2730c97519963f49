#ifndef DORVEX_TESTS_SUPPORT_CHILDPROCESS_H
#define DORVEX_TESTS_SUPPORT_CHILDPROCESS_H

#include <chrono>
#include <filesystem>
#include <string>
#include <vector>

struct ChildCommand {
    std::vector<std::string> arguments;    ///< the program, looked up on PATH, comes first
    std::vector<std::string> environment;  ///< NAME=VALUE, the whole environment of the child
    std::filesystem::path directory;
    std::filesystem::path input = "/dev/null";
    std::chrono::seconds limit{120};
};

struct ChildResult {
    int status = 0;  ///< 128 + the signal's number for a child that a signal ended
    bool timedOut = false;
    std::string output;
    std::string errors;
};

/// Runs the command to its end and collects what it writes. A child that outlives the limit is
/// killed together with its own children. Throws std::system_error when it cannot be started.
ChildResult RunChild(ChildCommand command);

#endif
