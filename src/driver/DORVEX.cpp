#include <clocale>
#include <csignal>
#include <iostream>
#include <optional>

#include "driver/CommandLine.h"
#include "driver/Runs.h"
#include "support/Console.h"
#include "support/StackLimit.h"

int main(int argc, char** argv) {
    std::setlocale(LC_ALL, "");
    // A reader that went away is an output that cannot be written, not the end of the process.
    std::signal(SIGPIPE, SIG_IGN);
    std::ios::sync_with_stdio(false);
    RaiseStackLimit();
    if (argc <= 1) {
        Usage();
        return 0;
    }
    ScanForLog(argc, argv);
    Settings settings;
    if (const std::optional<int> status = ReadCommandLine(argc, argv, settings)) {
        return *status;
    }
    DisplayHeader();
    if (settings.validate) {
        return RunValidation(settings);
    }
    if (settings.schemaSourceGiven) {
        return RunSchemaToCobol(settings);
    }
    RestoreStreams();
    return ExitStatus();
}
