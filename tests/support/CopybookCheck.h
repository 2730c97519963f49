#ifndef DORVEX_TESTS_SUPPORT_COPYBOOKCHECK_H
#define DORVEX_TESTS_SUPPORT_COPYBOOKCHECK_H

#include <string>
#include <string_view>
#include <vector>

/// The words and literals of one data description entry, without the closing period.
using Entry = std::vector<std::string>;

/// Reads the entries of a fixed-format copybook: columns 8 to 72, continued words and literals
/// joined, comment lines left out. Throws std::runtime_error for a literal that its line leaves
/// open, a continuation of nothing, and a last entry without a period.
std::vector<Entry> ReadEntries(std::string_view copybook);

/// The entry without its XML clauses, of which a plain COBOL compiler knows none.
Entry WithoutXmlClauses(const Entry& entry);

/// A free-format program that declares what the copybook declares, XML clauses left out.
std::string ProgramAround(std::string_view copybook);

#endif
