#ifndef DORVEX_DRIVER_RUNS_H
#define DORVEX_DRIVER_RUNS_H

#include <optional>

#include "driver/CommandLine.h"

/// The three runs. Each owns its parser and all that is made from its trees, reports what goes
/// wrong itself, and leaves it to the caller to give the streams back.

/// Checks the schema or instance document that `settings` names and writes no files. Returns the
/// exit status of a run that was stopped, nothing when the counted messages make it.
std::optional<int> RunValidation(const Settings& settings);

/// Converts the schema that `settings` names into a copybook. Returns 1 when the schema
/// cannot be used, nothing when the counted messages make the exit status.
std::optional<int> RunSchemaToCobol(const Settings& settings);

/// Compiles the COBOL source that `settings` names for checking, and writes mapping file (when
/// asked for), schema and enriched copybook from the compiler's data dictionary. Returns 1 when a
/// step before the outputs fails, nothing when the counted messages make the exit status.
std::optional<int> RunCobolToSchema(const Settings& settings);

#endif
