#ifndef DORVEX_DRIVER_RUNS_H
#define DORVEX_DRIVER_RUNS_H

#include "driver/CommandLine.h"

/// Checks the schema or instance document that `settings` names and writes no files. Returns the
/// exit status: the number of errors and warnings.
int RunValidation(const Settings& settings);

/// Converts the schema that `settings` names into a copybook. Returns the exit status: 1 when the
/// schema cannot be used, otherwise the number of errors and warnings.
int RunSchemaToCobol(const Settings& settings);

#endif
