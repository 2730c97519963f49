// main and nothing else: prepares the process, chooses one of three runs, which return here, gives
// the streams back and makes the exit status. Whatever throws past a run ends in one line.

#include <clocale>
#include <csignal>
#include <iostream>
#include <optional>
#include <string>

#include "driver/CommandLine.h"
#include "driver/Complaints.h"
#include "driver/DependencyFile.h"
#include "driver/Environment.h"
#include "driver/Runs.h"
#include "support/Console.h"
#include "support/Process.h"
#include "support/Progress.h"
#include "xml/Faults.h"

namespace {

/// Returns the exit status of a run that was stopped, nothing when the counted messages make it.
/// The log is opened before the options are read, so that their complaints are in it.
std::optional<int> Run(int argc, char** argv) {
    if (argc <= 1) {
        Usage();
        return 0;
    }
    ScanForLog(argc, argv);
    Settings settings;
    if (const std::optional<int> status = ReadCommandLine(argc, argv, settings)) {
        return status;
    }
    DisplayHeader();
    // -V comes first: a file argument before it may have chosen a run already.
    if (settings.validate) {
        return RunValidation(settings);
    }
    if (settings.cobolSourceGiven) {
        return RunCobolToSchema(settings);
    }
    if (settings.schemaSourceGiven) {
        return RunSchemaToCobol(settings);
    }
    return {};
}

/// Ends what an exception has left.
int StopWith(const std::string& fault) {
    Report<DriverMessage::Fault>(fault);
    return 1;
}

}  // namespace

int main(int argc, char** argv) {
    // Before anything is opened, which might get their numbers.
    OccupyStandardStreams();
    std::setlocale(LC_ALL, "");
    // A reader that went away, or a file grown to its limit, is an output that cannot be written,
    // not the end of the process.
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
    // Exchanges the buffers of the streams, so it comes before whatever keeps them.
    std::ios::sync_with_stdio(false);
    StartProgress();
    RaiseStackLimit();
    std::optional<int> status;
    try {
        status = Run(argc, argv);
        if (!status) {
            WriteDependencyFile(DependencyFileName());
        }
    } catch (...) {
        status = StopWith(DescribeFault());
    }
    // A log that cannot be completed counts as well.
    RestoreStreams();
    return status ? *status : ExitStatus();
}
