#include "CopybookCheck.h"

#include <algorithm>
#include <cctype>
#include <cstddef>
#include <optional>
#include <stdexcept>

namespace {

constexpr std::size_t kIndicator = 6;
constexpr std::size_t kTextStart = 7;
constexpr std::size_t kTextEnd = 72;
constexpr std::size_t kWidth = 100;
constexpr std::string_view kBlanks = " \t\n";

bool IsQuote(char c) {
    return c == '"' || c == '\'';
}

// The quotation mark of the literal that the text leaves open. A doubled mark closes the literal
// and opens it again, so it needs no care.
std::optional<char> OpenQuote(std::string_view text) {
    std::optional<char> open;
    for (const char c : text) {
        if (open == c) {
            open.reset();
        } else if (!open && IsQuote(c)) {
            open = c;
        }
    }
    return open;
}

[[noreturn]] void Fail(std::size_t number, const std::string& what) {
    throw std::runtime_error("copybook line " + std::to_string(number) + ": " + what);
}

// Collects the text of fixed-format lines, continued ones joined.
class CKTLineJoiner {
public:
    void Add(std::string_view line) {
        ++m_nNumber;
        const char indicator = line.size() > kIndicator ? line[kIndicator] : ' ';
        std::string_view area = line.size() > kTextStart ? line.substr(kTextStart) : "";
        area = area.substr(0, kTextEnd - kTextStart);
        if (indicator == '*' || indicator == '/' ||
            area.find_first_not_of(kBlanks) == std::string_view::npos) {
            return;
        }
        if (indicator == '-') {
            Continue(area);
        } else {
            Close();
            m_sDone += '\n';
            m_sLine = area;
        }
        m_nWidth = area.size();
    }

    std::string Text() {
        Close();
        return m_sDone;
    }

private:
    void Close() {
        if (OpenQuote(m_sLine)) {
            Fail(m_nNumber, "the literal before it is left open");
        }
        m_sDone += m_sLine;
        m_sLine.clear();
    }

    // A literal runs to column 72 of its line and goes on behind the next line's first mark, which
    // may be followed by the second half of a doubled mark that begins in column 72; a word goes on
    // with the next line's first character.
    void Continue(std::string_view area) {
        if (m_sLine.empty()) {
            Fail(m_nNumber, "a continuation of nothing");
        }
        area.remove_prefix(area.find_first_not_of(kBlanks));
        const bool halved = m_nWidth == kTextEnd - kTextStart && IsQuote(m_sLine.back()) &&
                            area.starts_with(std::string(2, m_sLine.back()));
        const std::optional<char> quote = halved ? m_sLine.back() : OpenQuote(m_sLine);
        if (quote) {
            m_sLine.append(kTextEnd - kTextStart - m_nWidth, ' ');
            if (area.front() != *quote) {
                Fail(m_nNumber, "a continued literal without its quotation mark");
            }
            area.remove_prefix(1);
        } else {
            m_sLine.erase(m_sLine.find_last_not_of(kBlanks) + 1);
        }
        m_sLine += area;
    }

    std::string m_sDone;
    std::string m_sLine;
    std::size_t m_nWidth = 0;  // of the text area in the latest line
    std::size_t m_nNumber = 0;
};

std::string Join(std::string_view copybook) {
    CKTLineJoiner joiner;
    while (!copybook.empty()) {
        const std::size_t end = std::min(copybook.find('\n'), copybook.size());
        joiner.Add(copybook.substr(0, end));
        copybook.remove_prefix(std::min(end + 1, copybook.size()));
    }
    return joiner.Text();
}

// Takes the next word or literal off the text.
std::string TakeToken(std::string_view& text) {
    std::size_t end = 0;
    std::optional<char> open;
    while (end < text.size() && (open || kBlanks.find(text[end]) == std::string_view::npos)) {
        if (open == text[end]) {
            open.reset();
        } else if (!open && IsQuote(text[end])) {
            open = text[end];
        }
        ++end;
    }
    std::string token(text.substr(0, end));
    text.remove_prefix(end);
    return token;
}

bool IsWord(const Entry& entry, std::size_t index, std::string_view word) {
    return index < entry.size() &&
           std::equal(entry[index].begin(), entry[index].end(), word.begin(), word.end(),
                      [](unsigned char a, unsigned char b) { return std::tolower(a) == b; });
}

bool IsLiteral(const Entry& entry, std::size_t index) {
    return index < entry.size() && IsQuote(entry[index].front());
}

// The number of words of the XML clause that begins at the index; 0 when none does.
std::size_t XmlClauseLength(const Entry& entry, std::size_t index) {
    if (IsWord(entry, index, "identified") && IsWord(entry, index + 1, "by") &&
        IsLiteral(entry, index + 2)) {
        return 3;
    }
    if (IsWord(entry, index, "namespace") && IsWord(entry, index + 1, "is") &&
        IsLiteral(entry, index + 2)) {
        return 3;
    }
    if (IsWord(entry, index, "is") && IsWord(entry, index + 1, "attribute")) {
        return 2;
    }
    if (IsWord(entry, index, "count") && IsWord(entry, index + 1, "in") &&
        index + 2 < entry.size()) {
        return 3;
    }
    return 0;
}

bool BeginsRecord(const Entry& entry) {
    return IsWord(entry, 0, "1") || IsWord(entry, 0, "01") || IsWord(entry, 0, "77");
}

void AppendEntry(const Entry& entry, std::string& program) {
    std::string line;
    for (const std::string& token : entry) {
        if (!line.empty() && line.size() + token.size() >= kWidth) {
            program += line + '\n';
            line.clear();
        }
        line += line.empty() ? token : ' ' + token;
    }
    program += line + ".\n";
}

}  // namespace

std::vector<Entry> ReadEntries(std::string_view copybook) {
    const std::string joined = Join(copybook);
    std::string_view text = joined;
    std::vector<Entry> entries;
    Entry entry;
    while (true) {
        text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
        if (text.empty()) {
            break;
        }
        std::string token = TakeToken(text);
        const bool last = token.back() == '.';
        if (last) {
            token.pop_back();
        }
        if (!token.empty()) {
            entry.push_back(token);
        }
        if (last) {
            entries.push_back(std::move(entry));
            entry.clear();
        }
    }
    if (!entry.empty()) {
        throw std::runtime_error("the copybook's last entry has no period");
    }
    return entries;
}

Entry WithoutXmlClauses(const Entry& entry) {
    Entry plain;
    for (std::size_t i = 0; i < entry.size();) {
        const std::size_t length = XmlClauseLength(entry, i);
        if (length == 0) {
            plain.push_back(entry[i]);
        }
        i += std::max<std::size_t>(length, 1);
    }
    return plain;
}

std::string ProgramAround(std::string_view copybook) {
    const std::vector<Entry> entries = ReadEntries(copybook);
    if (entries.empty()) {
        throw std::runtime_error("the copybook has no entry");
    }
    std::string program =
        "identification division.\nprogram-id. checked-program.\n"
        "data division.\nworking-storage section.\n";
    if (!BeginsRecord(entries.front())) {
        program += "01 checked-record.\n";
    }
    for (const Entry& entry : entries) {
        AppendEntry(WithoutXmlClauses(entry), program);
    }
    return program + "procedure division.\n    stop run.\n";
}
