#ifndef DORVEX_TESTS_SUPPORT_CASEREPORT_H
#define DORVEX_TESTS_SUPPORT_CASEREPORT_H

#include <string>
#include <vector>

#include "CaseFiles.h"

using Failures = std::vector<std::string>;

/// Adds a failure that shows the first line in which two texts differ, if they do.
void CompareText(const std::string& what, const std::string& expected, const std::string& got,
                 Failures& failures);

/// Adds a failure for each file that is missing, left over or not as the case says.
void CompareFiles(const Case& expected, const FileTree& got, Failures& failures);

#endif
