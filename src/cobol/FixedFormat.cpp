// The layout of one entry in fixed format: text in columns 8 to 72, a continued word or literal
// marked by a hyphen in column 7. Words are wrapped at blanks; a literal is one word, blanks
// included, and a reader of the lines finds it as it was.

#include "cobol/FixedFormat.h"

#include <algorithm>
#include <optional>

namespace {

constexpr int kAreaA = 7;          // characters before area A
constexpr int kContinuation = 10;  // characters before the text of a further line
constexpr int kLastColumn = 72;
constexpr int kMaxIndent = 48;
constexpr std::size_t kMaxBlanks = 254;
constexpr std::string_view kCommentStart = "      *   ";
constexpr std::string_view kContinuationStart = "      -   ";

/// Where a literal stands in a text: its opening mark, and the place behind its closing one.
struct Literal {
    std::size_t open = 0;
    std::size_t end = 0;
};

bool IsMark(char c) {
    return c == '"' || c == '\'';
}

bool IsLetter(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

/// The literal that the word at `start` begins with, a letter before its mark as in X"00" included;
/// none where nothing closes it. A doubled mark is one character of the literal.
std::optional<Literal> FindLiteral(std::string_view text, std::size_t start) {
    Literal literal = {start, 0};
    if (start + 1 < text.size() && IsLetter(text[start]) && IsMark(text[start + 1])) {
        ++literal.open;
    }
    const char mark = text[literal.open];
    if (!IsMark(mark)) {
        return {};
    }
    std::size_t at = text.find(mark, literal.open + 1);
    while (at != std::string_view::npos && at + 1 < text.size() && text[at + 1] == mark) {
        at = text.find(mark, at + 2);
    }
    if (at == std::string_view::npos) {
        return {};
    }
    literal.end = at + 1;
    return literal;
}

/// Starts the line on which a token that does not fit begins or, when `continued`, goes on; inside
/// a literal with its `mark` (else empty). Returns its column.
int StartLine(std::string& out, bool continued, std::string_view mark, int indent, bool comment) {
    out += '\n';
    if (comment) {
        out += kCommentStart;
    } else if (continued) {
        out += kContinuationStart;
    } else {
        out.append(kContinuation, ' ');
    }
    out.append(static_cast<std::size_t>(indent), ' ');
    if (continued) {
        out += mark;
    }
    return indent + kContinuation + (continued ? static_cast<int>(mark.size()) : 0);
}

/// Appends a token that does not fit its line to a line of its own and to as many more as it needs;
/// a literal's `mark` restarts it on each.
void AppendLong(std::string_view token, std::string_view mark, int indent, int& column,
                bool comment, std::string& out) {
    std::size_t written = 0;
    while (written < token.size() && token[written] != '\n' && token[written] != '\r') {
        if (column >= kFreshEntry) {
            column = indent - (comment ? 1 : 0) + kAreaA;
            out.append(static_cast<std::size_t>(column), ' ');
        } else {
            column = StartLine(out, written > 0, mark, indent, comment);
        }
        const std::string_view piece =
            token.substr(written, static_cast<std::size_t>(kLastColumn - column));
        out += piece;
        written += piece.size();
        if (written == token.size()) {
            column += static_cast<int>(piece.size());
        }
    }
}

/// The end of the word that begins at `start`, or of the blanks there, as far as they are one
/// piece.
std::size_t EndOfPiece(std::string_view text, std::size_t start) {
    if (text[start] != ' ') {
        const auto literal = FindLiteral(text, start);
        return std::min(text.find(' ', literal ? literal->end : start), text.size());
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
    const auto fits = [&column](std::string_view text) {
        return static_cast<int>(text.size()) + column < kFreshEntry;
    };
    const auto append = [&](std::string_view text) {
        out += text;
        column += static_cast<int>(text.size());
    };
    if (token.empty() || token.front() == '\n' || token.front() == '\r') {
        return;
    }
    if (fits(token)) {
        append(token);
        return;
    }
    // What follows a closed literal is no part of it, so there it goes on like a new word.
    const auto literal = FindLiteral(token, 0);
    const std::size_t end = literal ? literal->end : token.size();
    const std::string_view mark = literal ? token.substr(literal->open, 1) : std::string_view();
    const std::string_view rest = token.substr(end);
    AppendLong(token.substr(0, end), mark, indent, column, comment, out);
    if (fits(rest)) {
        append(rest);
    } else {
        AppendLong(rest, {}, indent, column, comment, out);
    }
}
