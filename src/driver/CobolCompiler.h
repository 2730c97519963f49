#ifndef DORVEX_DRIVER_COBOLCOMPILER_H
#define DORVEX_DRIVER_COBOLCOMPILER_H

#include <string>

/// How a run of the compiler ended.
enum class CompilerResult {
    Compiled,     ///< exit status byte 0
    NotCompiled,  ///< exit status byte above 0
    NotStarted,   ///< no child process could be made
    NotReturned,  ///< the child could not be waited for; also the answer in a child without
                  ///< compiler
};

/// Runs `kcomp` from the path in a child process so that it writes the data dictionary of
/// `compileName`; `directives` is an argument of its own, left out when empty. Both are passed on
/// as they stand. With the log the compiler's output is relayed into it, and the child ends as a
/// failed compile whatever the compiler says.
CompilerResult RunCobolCompiler(const std::string& directives, const std::string& compileName);

#endif
