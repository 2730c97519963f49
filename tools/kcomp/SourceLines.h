#ifndef DORVEX_KCOMP_SOURCELINES_H
#define DORVEX_KCOMP_SOURCELINES_H

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "kcomp/Messages.h"

enum class SourceFormat { Fixed, Free };

/// Closes the files of an older system; nothing may follow it.
constexpr char kEndOfFileMark = '\x1A';

/// A line of COBOL text without columns, comments and continuation. A line that cannot be read
/// holds the complaint in `fault`.
struct LogicalLine {
    struct Segment {
        std::size_t offset;  ///< where the text of a line of the file begins in `text`
        std::size_t line;    ///< that line, counted from 1
    };
    std::string text;
    std::vector<Segment> segments;
    CKTMessageText fault;
    std::size_t comment = 0;  ///< the first line of a comment that stands before or in it, or 0
    bool cut = false;         ///< a literal is open in column 72, and more text stands behind that
};

/// Tells the format of a source that names none: what stands in the first seven columns decides.
/// Returns `otherwise` when every line fits both formats.
SourceFormat DetectFormat(std::string_view content, SourceFormat otherwise);

/// Splits a source into logical lines. `format` is the format of the first line; a directive
/// ">>SOURCE" or "$SET SOURCEFORMAT" changes it, also for the caller.
std::vector<LogicalLine> ReadLogicalLines(std::string_view content, SourceFormat& format);

#endif
