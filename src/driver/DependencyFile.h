#ifndef DORVEX_DRIVER_DEPENDENCYFILE_H
#define DORVEX_DRIVER_DEPENDENCYFILE_H

#include <string>

#include "support/FilesUsed.h"

/// The make rule that says from which files the outputs were made; empty unless there are outputs
/// and all of them were written. Files that are gone or are outputs themselves are no dependencies.
std::string DependencyRule(const FilesUsed& files);

/// Writes the rule of this run to the file `name`, replacing what is there. Without a name or a
/// rule nothing is done; a file that cannot be written is an error line, counted.
void WriteDependencyFile(const std::string& name);

#endif
