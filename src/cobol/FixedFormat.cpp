// The layout of one entry in fixed format: text in columns 8 to 72, a continued word or literal
// marked by a hyphen in column 7.

#include "cobol/FixedFormat.h"

#include <algorithm>

namespace {

constexpr int kAreaA = 7;          // characters before area A
constexpr int kContinuation = 10;  // characters before the text of a further line
constexpr int kLastColumn = 72;
constexpr int kMaxIndent = 48;
constexpr std::size_t kMaxBlanks = 254;
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

/// The end of the word that begins at `start`, or of the blanks there, as far as they are one
/// piece.
std::size_t EndOfPiece(std::string_view text, std::size_t start) {
    if (text[start] != ' ') {
        return std::min(text.find(' ', start), text.size());
    }
    std::size_t end = start;
    while (end < text.size() && end < start + kMaxBlanks && text[end] == ' ') {
        ++end;
    }
    return end;
}

/// Lays out a line whose blanks are spaces; what fits its line is appended together.
void LayOutSpaced(std::string_view line, std::string& out) {
    const std::size_t start = line.find_first_not_of(' ');
    line = line.substr(0, line.find_last_not_of(' ') + 1);
    if (line.empty()) {
        return;
    }
    const int indent = static_cast<int>(std::min<std::size_t>(start, kAreaA + kMaxIndent)) - kAreaA;
    const bool comment = line.substr(start, EndOfPiece(line, start) - start) == "*";
    int column = kFreshEntry;
    std::size_t gathered = start;
    for (std::size_t at = start; at < line.size();) {
        const std::size_t end = EndOfPiece(line, at);
        const int length = static_cast<int>(end - at);
        if (column + length < kFreshEntry) {
            column += length;
        } else {
            out += line.substr(gathered, at - gathered);
            LayOutToken(line.substr(at, end - at), indent, column, comment, out);
            gathered = end;
        }
        at = end;
    }
    out += line.substr(gathered);
}

}  // namespace

void LayOutEntry(std::string_view line, std::string& out) {
    // A line break in a value would end the entry's line in the middle, so it counts as a blank.
    static constexpr std::string_view kOtherBlanks = "\t\r\n";
    const auto isOther = [](char c) { return kOtherBlanks.find(c) != std::string_view::npos; };
    if (std::all_of(kOtherBlanks.begin(), kOtherBlanks.end(),
                    [&](char c) { return line.find(c) == std::string_view::npos; })) {
        LayOutSpaced(line, out);
    } else {
        std::string spaced(line);
        std::replace_if(spaced.begin(), spaced.end(), isOther, ' ');
        LayOutSpaced(spaced, out);
    }
    out += '\n';
}

void LayOutToken(std::string_view token, int indent, int& column, bool comment, std::string& out) {
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
