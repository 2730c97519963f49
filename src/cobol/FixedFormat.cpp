// The layout of one entry in fixed format: text in columns 8 to 72, a continued word or literal
// marked by a hyphen in column 7.

#include <algorithm>
#include <iostream>
#include <string>
#include <string_view>

#include "cobol/KTCOBOLRecordItem.h"

namespace {

constexpr int kAreaA = 7;          // characters before area A
constexpr int kContinuation = 10;  // characters before the text of a further line
constexpr int kLastColumn = 72;
constexpr int kFreshEntry = 73;  // as a column: nothing of the entry is written yet
constexpr int kMaxIndent = 48;
constexpr std::size_t kMaxBlanks = 254;
// A line break in a value would end the entry's line in the middle, so it counts as a blank.
constexpr std::string_view kBlanks = " \t\r\n";
constexpr std::string_view kCommentStart = "      *   ";
constexpr std::string_view kContinuationStart = "      -   ";

/// How many characters of `token` must be written for the literal that it begins with to be closed:
/// 0 for a token that is no literal. A doubled quotation mark is one character of the literal.
std::size_t LiteralEnd(std::string_view token) {
    if (!token.starts_with('"')) {
        return 0;
    }
    for (std::size_t i = 1; i < token.size(); ++i) {
        if (token[i] != '"') {
            continue;
        }
        if (i + 1 >= token.size() || token[i + 1] != '"') {
            return i + 1;
        }
        ++i;
    }
    return token.size() + 1;
}

/// Starts the line on which a token that does not fit begins or, when `continued`, goes on; inside
/// an open literal with a quotation mark. Returns its column.
int StartLine(std::string& out, bool continued, bool inLiteral, int indent, bool comment) {
    out += '\n';
    if (comment) {
        out += kCommentStart;
    } else if (continued) {
        out += kContinuationStart;
    } else {
        out.append(kContinuation, ' ');
    }
    out.append(static_cast<std::size_t>(indent), ' ');
    if (continued && inLiteral) {
        out += '"';
        return indent + kContinuation + 1;
    }
    return indent + kContinuation;
}

void AppendToken(std::string& out, std::string_view token, int indent, int& column, bool comment) {
    indent = std::clamp(indent, 0, kMaxIndent);
    const bool fits = static_cast<int>(token.size()) + column < kFreshEntry;
    const std::size_t literalEnd = fits ? 0 : LiteralEnd(token);
    std::size_t written = 0;
    while (written < token.size() && token[written] != '\n' && token[written] != '\r') {
        if (!fits && column >= kFreshEntry) {
            column = indent - (comment ? 1 : 0) + kAreaA;
            out.append(static_cast<std::size_t>(column), ' ');
        } else if (!fits) {
            column = StartLine(out, written > 0, written < literalEnd, indent, comment);
        }
        const auto room = static_cast<std::size_t>(kLastColumn - column);
        const std::string_view rest = token.substr(written);
        out += rest.substr(0, room);
        if (rest.size() <= room) {
            column += static_cast<int>(rest.size());
            return;
        }
        written += room;
    }
}

void AppendBlanks(std::string& out, std::size_t count, int indent, int& column, bool comment) {
    while (count > 0) {
        const std::size_t piece = std::min(count, kMaxBlanks);
        AppendToken(out, std::string(piece, ' '), indent, column, comment);
        count -= piece;
    }
}

void WriteText(std::ostream& out, std::string_view text) {
    out.write(text.data(), static_cast<std::streamsize>(text.size()));
}

}  // namespace

void CKTCOBOLRecordItem::OutputFixedFormatCOBOL(const char* line, std::ostream& out) {
    const std::string_view text(line);
    std::string entry;
    std::size_t start = text.find_first_not_of(kBlanks);
    if (start != std::string_view::npos) {
        const int indent =
            static_cast<int>(std::min<std::size_t>(start, kAreaA + kMaxIndent)) - kAreaA;
        std::size_t end = std::min(text.find_first_of(kBlanks, start), text.size());
        const bool comment = text.substr(start, end - start) == "*";
        int column = kFreshEntry;
        for (;;) {
            AppendToken(entry, text.substr(start, end - start), indent, column, comment);
            start = text.find_first_not_of(kBlanks, end);
            if (start == std::string_view::npos) {
                break;
            }
            AppendBlanks(entry, start - end, indent, column, comment);
            end = std::min(text.find_first_of(kBlanks, start), text.size());
        }
    }
    entry += '\n';
    WriteText(out.fail() ? std::cout : out, entry);
}

void CKTCOBOLRecordItem::OutputCOBOLToken(const char* token, std::ostream& out, int indent,
                                          int& column, bool comment) {
    if (out.fail()) {
        return;
    }
    std::string text;
    AppendToken(text, token, indent, column, comment);
    WriteText(out, text);
    out.flush();
}
