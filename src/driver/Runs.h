#ifndef DORVEX_DRIVER_RUNS_H
#define DORVEX_DRIVER_RUNS_H

#include "driver/CommandLine.h"

/// Checks the schema or instance document that `settings` names and writes no files. Returns the
/// exit status: the number of errors and warnings.
int RunValidation(const Settings& settings);

/// Converts the schema that `settings` names into a copybook. Returns the exit status: 1 when the
/// schema cannot be used, otherwise the number of errors and warnings.
int RunSchemaToCobol(const Settings& settings);

/// Compiles the COBOL source that `settings` names for checking, and writes mapping file (when
/// asked for), schema and enriched copybook from the compiler's data dictionary. Returns the exit
/// status: 1 when a step before the outputs fails, otherwise the number of errors and warnings.
int RunCobolToSchema(const Settings& settings);

#endif
