#ifndef DORVEX_COBOL_FIXEDFORMAT_H
#define DORVEX_COBOL_FIXEDFORMAT_H

#include <string>
#include <string_view>

/// As a column: nothing of the entry is written yet.
inline constexpr int kFreshEntry = 73;

/// Lays the free-form text `line` of one entry out in fixed format and appends it, line end
/// included, to `out`. Leading blanks beyond seven indent the entry, by 48 columns at most.
void LayOutEntry(std::string_view line, std::string& out);

/// Appends one token or run of blanks where `column` characters are on the line already, wrapping
/// at column 72; `column` becomes the new count. `indent` is the entry's indentation beyond area A;
/// `comment` marks a comment entry.
void LayOutToken(std::string_view token, int indent, int& column, bool comment, std::string& out);

#endif
