// Splits the text of each line from left to right; a literal without an end takes the rest of it. A
// word keeps its spelling, its place in the file and whether a blank stood before it: a PICTURE
// comes in pieces, and pieces of a name with a :TAG: are joined again when the tag was replaced.
// What a word means is left to those who read it, and so is a number such as 1,5, whose comma
// separates nothing here.

#include "kcomp/TextWords.h"

#include <algorithm>
#include <array>

#include "kcomp/Text.h"

namespace {

// Letters that say what kind of literal follows.
constexpr std::array<std::string_view, 9> kLiteralPrefixes = {"X", "N",  "NX", "Z", "B",
                                                              "G", "BX", "H",  "U"};

bool IsQuote(char c) {
    return c == '"' || c == '\'';
}

bool IsLiteralPrefix(std::string_view word) {
    return std::find(kLiteralPrefixes.begin(), kLiteralPrefixes.end(), ToUpper(word)) !=
           kLiteralPrefixes.end();
}

class CKTLineSplitter {
public:
    CKTLineSplitter(const LogicalLine& line, std::string_view file, std::vector<TextWord>& words)
        : m_Line(line), m_sText(line.text), m_sFile(file), m_Words(words) {}

    void Split() {
        if (!m_Line.fault.Empty()) {
            // It holds no text, and its place is that of the line.
            m_Words.push_back(FaultAt(Place(), m_Line.fault));
            return;
        }
        const std::size_t first = m_Words.size();
        while (m_nAt < m_sText.size()) {
            if (m_sText[m_nAt] == ' ') {
                m_bGlued = false;
                ++m_nAt;
            } else {
                TakeWord();
            }
        }
        if (first < m_Words.size() && m_Line.comment > 0) {
            m_Words[first].comment = {m_sFile, m_Line.comment};
        }
    }

private:
    void TakeWord() {
        const char c = m_sText[m_nAt];
        if (IsQuote(c)) {
            TakeLiteral(m_nAt);
        } else if (m_sText.substr(m_nAt, 2) == "==") {
            Add(WordKind::Pseudo, m_nAt + 2);
        } else if (c == '(' || c == ')' || c == ':') {
            Add(WordKind::Mark, m_nAt + 1);
        } else if (IsSeparator(m_nAt)) {
            if (c == '.') {
                Add(WordKind::Period, m_nAt + 1);
            } else {
                ++m_nAt;
            }
            // Behind a separator a new word begins, with a blank or without.
            m_bGlued = false;
        } else {
            TakePlainWord();
        }
    }

    void TakePlainWord() {
        std::size_t end = m_nAt;
        while (end < m_sText.size() && !EndsWord(end)) {
            ++end;
        }
        // A quotation mark ends any other word, and the literal comes next.
        const bool literal = end < m_sText.size() && IsQuote(m_sText[end]) &&
                             IsLiteralPrefix(m_sText.substr(m_nAt, end - m_nAt));
        if (literal) {
            TakeLiteral(end);
        } else {
            Add(WordKind::Word, end);
        }
    }

    /// Takes the literal that begins here and whose first quotation mark stands at `quote`.
    void TakeLiteral(std::size_t quote) {
        const char mark = m_sText[quote];
        const auto isMark = [this, mark](std::size_t at) {
            return at < m_sText.size() && m_sText[at] == mark;
        };
        std::size_t end = m_sText.find(mark, quote + 1);
        // A doubled mark stands for one of the text.
        while (isMark(end) && isMark(end + 1)) {
            end = m_sText.find(mark, end + 2);
        }
        if (isMark(end)) {
            Add(WordKind::Literal, end + 1);
        } else {
            m_Words.push_back(FaultAt(Place(), m_Line.cut ? TextOf<Message::CutLiteral>()
                                                          : TextOf<Message::OpenLiteral>()));
            // Nothing tells what of the rest was meant to be text.
            m_nAt = m_sText.size();
        }
    }

    [[nodiscard]] bool EndsWord(std::size_t at) const {
        const char c = m_sText[at];
        return c == ' ' || c == '(' || c == ')' || c == ':' || IsQuote(c) || IsSeparator(at) ||
               m_sText.substr(at, 2) == "==";
    }

    /// A point, comma or semicolon ends a word when a blank, the end of the line or of pseudo-text
    /// follows; a comma also before and behind a literal.
    [[nodiscard]] bool IsSeparator(std::size_t at) const {
        const char c = m_sText[at];
        if (c != '.' && c != ',' && c != ';') {
            return false;
        }
        // Commas and semicolons are often set between literals without a blank.
        const bool behindLiteral =
            at == m_nAt && m_bGlued && !m_Words.empty() && m_Words.back().kind == WordKind::Literal;
        if (c != '.' && behindLiteral) {
            return true;
        }
        return at + 1 == m_sText.size() || m_sText[at + 1] == ' ' ||
               m_sText.substr(at + 1, 2) == "==" || (c != '.' && IsQuote(m_sText[at + 1]));
    }

    void Add(WordKind kind, std::size_t end) {
        m_Words.push_back(
            {kind, m_bGlued, std::string(m_sText.substr(m_nAt, end - m_nAt)), Place()});
        m_nAt = end;
        m_bGlued = true;
    }

    [[nodiscard]] SourcePlace Place() const {
        // The text may come from several lines of the file, of which the first begins at 0.
        const auto after = std::upper_bound(
            m_Line.segments.begin(), m_Line.segments.end(), m_nAt,
            [](std::size_t at, const LogicalLine::Segment& s) { return at < s.offset; });
        return {m_sFile, std::prev(after)->line};
    }

    const LogicalLine& m_Line;
    std::string_view m_sText;
    std::string_view m_sFile;
    std::vector<TextWord>& m_Words;
    std::size_t m_nAt = 0;
    bool m_bGlued = false;
};

}  // namespace

TextWord FaultAt(const SourcePlace& place, const CKTMessageText& complaint) {
    return {WordKind::Fault, false, complaint.Text(), place};
}

CKTMessageText ComplaintOf(const TextWord& fault) {
    return CKTMessageText(fault.text);
}

std::vector<TextWord> SplitIntoWords(const std::vector<LogicalLine>& lines, std::string_view file) {
    std::vector<TextWord> words;
    for (const LogicalLine& line : lines) {
        CKTLineSplitter(line, file, words).Split();
    }
    return words;
}

std::string TextOfLiteral(const TextWord& literal) {
    const std::size_t quote = literal.text.find_first_of("\"'");
    std::string text;
    for (std::size_t i = quote + 1; i + 1 < literal.text.size(); ++i) {
        text += literal.text[i];
        // Of a doubled mark the second one is passed over.
        i += literal.text[i] == literal.text[quote] ? 1 : 0;
    }
    return text;
}

std::string ShownWord(const TextWord& word) {
    return word.kind == WordKind::Literal ? word.text : Quoted(word.text);
}

bool IsWord(const TextWord& word, std::string_view spelling) {
    return word.kind == WordKind::Word && SameWord(word.text, spelling);
}
