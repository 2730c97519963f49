// Reads columns, comments, directives and continuation, so that what follows sees plain text. One
// line comes after the other; what is carried over is a literal that is open and a comment that
// waits for text. What cannot be read becomes a fault in its place, for whoever needs the text that
// stood there, and the next line is read. Directives for compiling parts of the text are not obeyed
// and become faults. Splitting into words is left to TextWords.cpp.

#include "kcomp/SourceLines.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "kcomp/Text.h"

namespace {

constexpr std::size_t kIndicator = 6;   // column 7
constexpr std::size_t kTextEnd = 72;    // the text of a fixed line ends in this column
constexpr std::size_t kBodyWidth = 65;  // columns 8 to 72

bool IsControl(char c) {
    // A form feed only turns the page of a listing.
    return (static_cast<unsigned char>(c) < ' ' && c != '\f') || c == '\x7F';
}

/// Lines of asterisks and hyphens set text apart and say nothing.
bool SaysSomething(std::string_view comment) {
    return std::any_of(comment.begin(), comment.end(), [](char c) {
        return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') ||
               static_cast<unsigned char>(c) >= 0x80;
    });
}

/// The words of a directive line, with the marks that may stand around a value taken away.
std::vector<std::string> DirectiveWords(std::string_view line) {
    std::string plain = ToUpper(line);
    for (char& c : plain) {
        if (std::string_view("()\"'.=").find(c) != std::string_view::npos) {
            c = ' ';
        }
    }
    std::vector<std::string> words;
    for (std::string_view rest = Trim(plain); !rest.empty(); rest = Trim(rest)) {
        const std::string_view word = rest.substr(0, rest.find(' '));
        words.emplace_back(word);
        rest.remove_prefix(word.size());
    }
    return words;
}

class CKTLineReader {
public:
    explicit CKTLineReader(SourceFormat format) : m_Format(format) {}

    void Add(std::string_view raw) {
        ++m_nLine;
        m_bMore = false;
        const std::string line = ExpandTabs(raw);
        if (const auto directive = DirectiveOf(line)) {
            Obey(*directive);
        } else if (m_Format == SourceFormat::Free) {
            BeginLine(line);
        } else {
            AddFixed(line);
        }
    }

    /// Ends at a mark of the end of file, behind which nothing may stand.
    void End(std::string_view rest) {
        const auto isText = [](char c) {
            return c != kEndOfFileMark && c != ' ' && c != '\r' && c != '\n';
        };
        if (std::any_of(rest.begin(), rest.end(), isText)) {
            AddFault(TextOf<Message::TextAfterEnd>());
        }
    }

    std::vector<LogicalLine> TakeLines() { return std::move(m_Lines); }
    [[nodiscard]] SourceFormat Format() const { return m_Format; }

private:
    /// The text of a directive line, or nothing when the line is none.
    [[nodiscard]] static std::optional<std::string_view> DirectiveOf(std::string_view line) {
        // Before the directive there may be a sequence number.
        const std::string_view numbered =
            line.size() > kIndicator ? line.substr(kIndicator) : std::string_view();
        for (const std::string_view text : {Trim(line), Trim(numbered)}) {
            const std::string first = ToUpper(text.substr(0, text.find(' ')));
            if (first.starts_with(">>") || first == "$SET" || first == "$IF" || first == "$ELSE" ||
                first == "$END") {
                return text;
            }
        }
        return std::nullopt;
    }

    void Obey(std::string_view directive) {
        CloseLiteral();
        const std::vector<std::string> words = DirectiveWords(directive);
        const auto has = [&words](std::string_view word) {
            return std::find(words.begin(), words.end(), word) != words.end();
        };
        const bool setsFormat = has(">>SOURCE") || has("SOURCEFORMAT");
        if (setsFormat && has("FREE")) {
            m_Format = SourceFormat::Free;
        } else if (setsFormat && has("FIXED")) {
            m_Format = SourceFormat::Fixed;
        } else if (setsFormat || !(has("$SET") || has(">>PAGE") || has(">>LISTING"))) {
            AddFault(TextOf<Message::Directive>(Quoted(directive)));
        }
    }

    void AddFixed(std::string_view line) {
        // There is a sequence number at most.
        if (line.size() <= kIndicator) {
            return;
        }
        // Columns 73 to 80 are for marks of any kind. Text there is remembered, to explain a
        // literal that lost its end.
        m_bMore = line.find_first_not_of(' ', std::min(line.size(), kTextEnd)) != line.npos;
        const std::string_view body = line.substr(0, kTextEnd).substr(kIndicator + 1);
        switch (line[kIndicator]) {
            case ' ':
            case '\f':
                BeginLine(body);
                break;
            case '-':
                Continue(body);
                break;
            case '*':
            case '/':
                NoteComment(body);
                break;
            // A debugging line counts only for who debugs.
            case 'D':
            case 'd':
                break;
            default:
                AddFault(TextOf<Message::Indicator>(Quoted(line.substr(kIndicator, 1))));
        }
    }

    void NoteComment(std::string_view text) {
        if (m_nComment == 0 && SaysSomething(text)) {
            m_nComment = m_nLine;
        }
    }

    void BeginLine(std::string_view body) {
        // One that is open has lost its end, which shows when it is split into words.
        CloseLiteral();
        if (body.find_first_not_of(' ') != std::string_view::npos && IsReadable(body)) {
            m_Lines.emplace_back();
            Append(body, 0);
        }
    }

    void Continue(std::string_view body) {
        const std::size_t first = body.find_first_not_of(' ');
        if (first == std::string_view::npos || !IsReadable(body)) {
            return;
        }
        // A line that is a fault holds no text to go on from.
        if (m_Lines.empty() || !m_Lines.back().fault.Empty()) {
            AddFault(TextOf<Message::NothingToContinue>());
            return;
        }
        std::string& text = m_Lines.back().text;
        std::size_t column = first;
        if (m_cHalf != '\0' && body.substr(first, 2) == std::string(2, m_cHalf)) {
            // The second of the two marks belongs to the one in the last column.
            ++column;
        } else if (m_cOpen == '\0') {
            // A word goes on where it ended, without the blanks in between.
            text.erase(text.find_last_not_of(' ') + 1);
        } else if (body[first] == m_cOpen) {
            // Up to the last column all blanks are part of the literal.
            text.append(kBodyWidth - std::min(m_nBody, kBodyWidth), ' ');
            ++column;
        } else {
            AddFault(TextOf<Message::Continuation>());
            return;
        }
        Append(body, column);
    }

    /// Appends the body from `column` on, up to a comment. The mark that seems to close a literal
    /// in the last column may be the first of a doubled one; the next line tells.
    void Append(std::string_view body, std::size_t column) {
        LogicalLine& line = m_Lines.back();
        line.segments.push_back({line.text.size(), m_nLine});
        m_nBody = body.size();
        m_cHalf = '\0';
        for (std::size_t i = column; i < body.size(); ++i) {
            const char c = body[i];
            if (m_cOpen != '\0') {
                m_cHalf = c == m_cOpen && i + 1 == kBodyWidth ? c : '\0';
                m_cOpen = c == m_cOpen ? '\0' : m_cOpen;
            } else if (c == '"' || c == '\'') {
                m_cOpen = c;
            } else if (body.substr(i, 2) == "*>") {
                NoteComment(body.substr(i));
                break;
            }
            // The splitter knows one kind of blank.
            line.text += c == '\f' ? ' ' : c;
        }
        line.cut = m_cOpen != '\0' && m_bMore;
        // A line that is all comment has no word that could carry it.
        if (line.comment == 0 && line.text.find_first_not_of(' ') != line.text.npos) {
            line.comment = std::exchange(m_nComment, 0);
        }
    }

    void CloseLiteral() {
        m_cOpen = '\0';
        m_cHalf = '\0';
    }

    bool IsReadable(std::string_view body) {
        const bool readable = std::none_of(body.begin(), body.end(), IsControl);
        if (!readable) {
            AddFault(TextOf<Message::ControlCharacter>());
        }
        return readable;
    }

    void AddFault(CKTMessageText text) {
        m_Lines.push_back({{}, {{0, m_nLine}}, std::move(text)});
        CloseLiteral();
    }

    SourceFormat m_Format;
    std::vector<LogicalLine> m_Lines;
    std::size_t m_nLine = 0;
    std::size_t m_nBody = 0;     // width of the last line's body
    std::size_t m_nComment = 0;  // the first comment line since the last line of text
    char m_cOpen = '\0';         // the quotation mark of a literal that is still open
    char m_cHalf = '\0';         // the mark in the last column that closes a literal, or is doubled
    bool m_bMore = false;        // the line goes on behind the last column
};

}  // namespace

std::vector<LogicalLine> ReadLogicalLines(std::string_view content, SourceFormat& format) {
    CKTLineReader reader(format);
    while (!content.empty()) {
        const std::string_view line = TakeLine(content);
        const std::size_t end = line.find(kEndOfFileMark);
        reader.Add(line.substr(0, end));
        if (end != std::string_view::npos) {
            reader.End(line.substr(end));
            reader.End(content);
            break;
        }
    }
    format = reader.Format();
    return reader.TakeLines();
}
