#include <clocale>
#include <csignal>
#include <exception>
#include <iostream>
#include <optional>

#include "driver/CommandLine.h"
#include "driver/Runs.h"
#include "support/Console.h"
#include "support/Process.h"
#include "support/Progress.h"

namespace {

int Run(int argc, char** argv) {
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
    if (settings.cobolSourceGiven) {
        return RunCobolToSchema(settings);
    }
    if (settings.schemaSourceGiven) {
        return RunSchemaToCobol(settings);
    }
    RestoreStreams();
    return ExitStatus();
}

int StopWith(const char* reason) {
    WriteLine(std::cerr, {"Internal Error : ", reason});
    RestoreStreams();
    return 1;
}

}  // namespace

int main(int argc, char** argv) {
    OccupyStandardStreams();
    std::setlocale(LC_ALL, "");
    // A reader that went away, or a file grown to its limit, is an output that cannot be written,
    // not the end of the process.
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
    std::ios::sync_with_stdio(false);
    StartProgress();
    RaiseStackLimit();
    try {
        return Run(argc, argv);
    } catch (const std::exception& e) {
        return StopWith(e.what());
    } catch (...) {
        return StopWith(
            "Out of memory");  // what the parser library throws then is no std::exception
    }
}
