// The names, numbers and values that clauses consist of. Each function takes what it wants and goes
// on behind it, or complains, which ends the entry: a clause need not ask after each word whether
// to go on. Names of constants are replaced by their values here. Whether a value fits its item is
// not asked.

#include <algorithm>
#include <array>

#include "kcomp/ConstantExpression.h"
#include "kcomp/EntryReader.h"
#include "kcomp/Text.h"

namespace {

// Any such number fits 32 bits.
constexpr std::size_t kMostIntegerDigits = 9;

constexpr std::array<std::string_view, 13> kFigurativeConstants = {
    "ZERO",      "ZEROS",      "ZEROES", "SPACE",  "SPACES", "HIGH-VALUE", "HIGH-VALUES",
    "LOW-VALUE", "LOW-VALUES", "QUOTE",  "QUOTES", "NULL",   "NULLS"};

bool IsFigurative(std::string_view word) {
    return std::find(kFigurativeConstants.begin(), kFigurativeConstants.end(), ToUpper(word)) !=
           kFigurativeConstants.end();
}

/// Letters of any alphabet, digits, underscores, and hyphens inside; not digits alone.
bool IsName(std::string_view text) {
    const auto fits = [](char c) {
        return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') ||
               c == '-' || c == '_' || static_cast<unsigned char>(c) >= 0x80;
    };
    return std::all_of(text.begin(), text.end(), fits) && !IsDigits(text) &&
           !text.starts_with('-') && !text.ends_with('-');
}

/// Fixed or floating point, with or without a sign.
bool IsNumber(std::string_view text, char point) {
    if (text.starts_with('+') || text.starts_with('-')) {
        text.remove_prefix(1);
    }
    const std::size_t e = std::min(text.find_first_of("Ee"), text.size());
    std::string_view exponent = text.substr(std::min(e + 1, text.size()));
    if (exponent.starts_with('+') || exponent.starts_with('-')) {
        exponent.remove_prefix(1);
    }
    std::string mantissa(text.substr(0, e));
    if (const std::size_t at = mantissa.find(point); at != std::string::npos) {
        mantissa.erase(at, 1);
    }
    return IsDigits(mantissa) && (e == text.size() || IsDigits(exponent));
}

/// A literal between double quotation marks, whichever it has in the source.
std::string WithDoubleMarks(std::string_view literal) {
    const std::size_t quote = literal.find_first_of("\"'");
    const char mark = literal[quote];
    std::string text(literal.substr(0, quote + 1));
    text.back() = '"';
    for (std::size_t i = quote + 1; i + 1 < literal.size(); ++i) {
        const char c = literal[i];
        // Doubled for the marks that are put around; what was doubled for the old ones is one.
        text.append(c == '"' && mark != '"' ? 2 : 1, c);
        i += c == mark && mark != '"' ? 1 : 0;
    }
    return text + '"';
}

}  // namespace

std::string CKTEntryReader::TakeName() {
    if (m_nAt < m_Words.size() && m_Words[m_nAt].kind == WordKind::Word &&
        IsName(m_Words[m_nAt].text)) {
        return m_Words[m_nAt++].text;
    }
    Fail(m_nAt < m_Words.size() ? TextOf<Message::NoName>(ShownWord(m_Words[m_nAt]))
                                : TextOf<Message::MissingName>());
    return {};
}

std::string CKTEntryReader::TakeQualifiedName() {
    std::string name = TakeName();
    while (Skip("OF") || Skip("IN")) {
        name += " OF " + TakeName();
    }
    return name;
}

/// One name or more, up to the next clause.
std::string CKTEntryReader::TakeNames() {
    std::string names = TakeQualifiedName();
    while (m_nAt < m_Words.size() && m_Words[m_nAt].kind == WordKind::Word &&
           ClauseOf(m_Words[m_nAt]) == nullptr && IsName(m_Words[m_nAt].text)) {
        names += ' ' + TakeQualifiedName();
    }
    return names;
}

/// A number without sign and decimals, or a constant that stands for one; without leading zeros.
std::string CKTEntryReader::TakeInteger() {
    if (m_nAt < m_Words.size()) {
        const std::string& word = m_Words[m_nAt].text;
        const std::string* constant = ConstantOf(word);
        const std::string number = constant == nullptr ? word : *constant;
        // The last digit stays, whatever it is.
        const std::size_t first = std::min(number.find_first_not_of('0'), number.size() - 1);
        if (IsDigits(number) && number.size() - first <= kMostIntegerDigits) {
            ++m_nAt;
            return number.substr(first);
        }
    }
    Fail(TextOf<Message::NoInteger>());
    return {};
}

/// The text of a literal without its quotation marks.
std::string CKTEntryReader::TakeLiteralText() {
    if (m_nAt == m_Words.size() || m_Words[m_nAt].kind != WordKind::Literal) {
        Fail(TextOf<Message::NoLiteral>());
        return {};
    }
    return TextOfLiteral(m_Words[m_nAt++]);
}

/// A value as the dictionary holds it: a number, a literal, a figurative constant, or what a named
/// constant stands for.
std::string CKTEntryReader::TakeValue() {
    const std::string all = Skip("ALL") ? "ALL " : "";
    if (m_nAt == m_Words.size() || m_Words[m_nAt].kind != WordKind::Literal) {
        return all + TakeWordValue();
    }
    std::string value = WithDoubleMarks(m_Words[m_nAt++].text);
    while (Skip("&")) {
        const bool literal = m_nAt < m_Words.size() && m_Words[m_nAt].kind == WordKind::Literal;
        const std::string next = literal ? WithDoubleMarks(m_Words[m_nAt].text) : "";
        // A prefix such as X says how to read what follows, which does not go on behind it.
        if (!next.starts_with('"') || !value.starts_with('"')) {
            Fail(TextOf<Message::JoinedLiterals>());
            return {};
        }
        ++m_nAt;
        value.replace(value.size() - 1, 1, next.substr(1));
    }
    return all + value;
}

/// The value of a named constant, which may be an expression.
std::string CKTEntryReader::TakeConstant() {
    const std::size_t start = m_nAt;
    if (!IsPartOfExpression(m_Words, m_nAt)) {
        std::string value = TakeValue();
        // Whether a value stands alone is seen behind it; if not, all is read anew.
        if (m_bFailed || !IsPartOfExpression(m_Words, m_nAt)) {
            return value;
        }
    }
    const bool precedence = m_pItem->level != kConstantLevel;
    ExpressionResult result = ReadExpression(m_Words, start, precedence, m_Context);
    m_nAt = result.end;
    if (!result.fault.Empty()) {
        Fail(result.fault);
    }
    return result.value;
}

std::string CKTEntryReader::TakeWordValue() {
    if (m_nAt == m_Words.size()) {
        Fail(TextOf<Message::MissingValue>());
        return {};
    }
    const TextWord& word = m_Words[m_nAt];
    const char point = m_Context.symbols.decimalComma ? ',' : '.';
    // Commas without blanks behind them separate values as well.
    const std::size_t comma = point == ',' ? std::string::npos : word.text.find(',', m_nPiece);
    std::string text = word.text.substr(m_nPiece, comma - m_nPiece);
    const bool number = word.kind == WordKind::Word && IsNumber(text, point);
    const std::string* constant = number ? nullptr : ConstantOf(text);
    if (!number && (word.kind != WordKind::Word || (constant == nullptr && !IsFigurative(text)))) {
        FailBecauseOfWord();
        return {};
    }
    // The word is done with its last piece.
    m_nPiece = comma == std::string::npos ? 0 : comma + 1;
    m_nAt += comma == std::string::npos ? 1 : 0;
    return constant == nullptr ? text : *constant;
}

/// What is no value may be the name of the next entry, whose level number looked like a value.
void CKTEntryReader::FailBecauseOfWord() {
    constexpr std::size_t kLevelDigits = 2;
    const TextWord& before = m_Words[m_nAt - 1];
    if (BeginsLine(m_nAt - 1) && m_Words[m_nAt].kind == WordKind::Word && IsDigits(before.text) &&
        before.text.size() <= kLevelDigits) {
        FailForPeriod(m_nAt - 1);
    } else {
        Fail(TextOf<Message::NoValue>(ShownWord(m_Words[m_nAt])));
    }
}

const std::string* CKTEntryReader::ConstantOf(std::string_view name) const {
    const auto found = m_Context.constants.find(ToUpper(name));
    return found == m_Context.constants.end() ? nullptr : &found->second;
}
