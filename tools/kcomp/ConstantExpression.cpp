// Expressions of constants, by operator precedence: an operand, then each operator that binds
// tighter than the one before it, with a right side that is read in the same way. Where precedence
// does not count, all operators have the lowest one and so act from left to right. Numbers are
// integers of 64 bits, each result is checked against their range, and quotients are cut off.
// Parentheses are counted, which bounds the recursion. The first fault ends the reading; saying it
// is left to the caller.

#include "kcomp/ConstantExpression.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>

#include "kcomp/ItemSize.h"
#include "kcomp/RecordBuilder.h"
#include "kcomp/Text.h"

namespace {

using Number = std::int64_t;

constexpr int kMostNested = 20;
// Every number of so many digits fits 64 bits.
constexpr std::size_t kMostDigits = 18;

struct Operator {
    std::string_view text;
    int precedence;
    std::optional<Number> (*apply)(Number, Number);
};

std::optional<Number> Sum(Number a, Number b) {
    Number result = 0;
    return __builtin_add_overflow(a, b, &result) ? std::nullopt : std::optional(result);
}

std::optional<Number> Difference(Number a, Number b) {
    Number result = 0;
    return __builtin_sub_overflow(a, b, &result) ? std::nullopt : std::optional(result);
}

std::optional<Number> Product(Number a, Number b) {
    Number result = 0;
    return __builtin_mul_overflow(a, b, &result) ? std::nullopt : std::optional(result);
}

std::optional<Number> Quotient(Number a, Number b) {
    // The least number has no counterpart of the other sign.
    return b == 0 || (b == -1 && a == INT64_MIN) ? std::nullopt : std::optional(a / b);
}

std::optional<Number> Power(Number base, Number exponent) {
    // All but a few such powers are fractions.
    if (exponent < 0) {
        return std::nullopt;
    }
    // These stay what they are or change their sign; any other soon overflows.
    const bool small = base >= -1 && base <= 1;
    const Number times = small ? std::min<Number>(exponent, 2 + exponent % 2) : exponent;
    std::optional<Number> result = 1;
    for (Number i = 0; i < times && result; ++i) {
        result = Product(*result, base);
    }
    return result;
}

constexpr std::array<Operator, 5> kOperators = {
    {{"+", 1, Sum}, {"-", 1, Difference}, {"*", 2, Product}, {"/", 2, Quotient}, {"**", 3, Power}}};

const Operator* OperatorAt(std::span<const TextWord> words, std::size_t at) {
    const auto found =
        std::find_if(kOperators.begin(), kOperators.end(), [words, at](const Operator& candidate) {
            return at < words.size() && IsWord(words[at], candidate.text);
        });
    return found == kOperators.end() ? nullptr : &*found;
}

bool IsMark(std::span<const TextWord> words, std::size_t at, std::string_view mark) {
    return at < words.size() && words[at].kind == WordKind::Mark && words[at].text == mark;
}

class CKTExpressionReader {
public:
    CKTExpressionReader(std::span<const TextWord> words, std::size_t at, bool precedence,
                        ReadingContext& context)
        : m_Words(words), m_nAt(at), m_bPrecedence(precedence), m_Context(context) {}

    ExpressionResult Read() {
        const Number value = TakeSum(0, 0);
        return {m_Fault.Empty() ? std::to_string(value) : "", m_Fault, m_nAt};
    }

private:
    /// Takes operands and the operators above `floor`. Nests with the parentheses, which are
    /// counted, and with the three levels of precedence.
    Number TakeSum(int floor, int nesting) {
        Number value = TakeOperand(nesting);
        while (m_Fault.Empty()) {
            const Operator* const found = OperatorAt(m_Words, m_nAt);
            const int precedence = found != nullptr && m_bPrecedence ? found->precedence : 1;
            if (found == nullptr || precedence <= floor) {
                break;
            }
            const std::size_t place = m_nAt++;
            const Number right = TakeSum(precedence, nesting);
            const std::optional<Number> result = found->apply(value, right);
            if (m_Fault.Empty() && !result) {
                // The complaint points at the operator, whose operands are right by themselves.
                m_nAt = place;
                m_Fault = TextOf<Message::ExpressionRange>();
            }
            value = result.value_or(0);
        }
        return value;
    }

    Number TakeOperand(int nesting) {
        // Nested deeper, a parenthesis is refused like anything that is no operand.
        if (IsMark(m_Words, m_nAt, "(") && nesting < kMostNested) {
            ++m_nAt;
            const Number value = TakeSum(0, nesting + 1);
            if (m_Fault.Empty() && !IsMark(m_Words, m_nAt, ")")) {
                m_Fault = TextOf<Message::OpenParenthesis>();
            }
            m_nAt += m_Fault.Empty() ? 1 : 0;
            return value;
        }
        if (m_nAt < m_Words.size() && IsWord(m_Words[m_nAt], "LENGTH")) {
            return TakeLength();
        }
        std::string text;
        if (m_nAt < m_Words.size() && m_Words[m_nAt].kind == WordKind::Word) {
            const auto constant = m_Context.constants.find(ToUpper(m_Words[m_nAt].text));
            // A constant whose value is a literal is refused below like any other text.
            text = constant == m_Context.constants.end() ? m_Words[m_nAt].text : constant->second;
        }
        const std::size_t sign = text.starts_with('+') || text.starts_with('-') ? 1 : 0;
        if (!IsDigits(text.substr(sign)) || text.size() - sign > kMostDigits) {
            m_Fault = TextOf<Message::NoOperand>();
            return 0;
        }
        ++m_nAt;
        return std::stoll(text);
    }

    // LENGTH [OF] name [OF name]... or a literal
    Number TakeLength() {
        ++m_nAt;
        m_nAt += m_nAt < m_Words.size() && IsWord(m_Words[m_nAt], "OF") ? 1 : 0;
        const std::size_t place = m_nAt;
        if (m_nAt < m_Words.size() && m_Words[m_nAt].kind == WordKind::Literal) {
            const TextWord& literal = m_Words[m_nAt++];
            // Of a hexadecimal one two digits are a byte.
            const std::size_t digits = literal.text.find_first_of("xX") == 0 ? 2 : 1;
            return static_cast<Number>(TextOfLiteral(literal).size() / digits);
        }
        const std::string name = m_nAt < m_Words.size() ? ToUpper(m_Words[m_nAt++].text) : "";
        std::vector<std::string> groups;
        while (m_nAt + 1 < m_Words.size() &&
               (IsWord(m_Words[m_nAt], "OF") || IsWord(m_Words[m_nAt], "IN"))) {
            groups.push_back(m_Words[m_nAt + 1].text);
            m_nAt += 2;
        }
        DataItem* found = nullptr;
        const auto range = m_Context.items.equal_range(name);
        for (auto item = range.first; item != range.second; ++item) {
            // Names may repeat in other groups; those that are written have to tell which is meant.
            if (!IsBelow(item->second, groups)) {
                continue;
            }
            if (found != nullptr) {
                return FailAt<Message::LengthOfSeveral>(place);
            }
            found = item->second;
        }
        if (found == nullptr && m_Context.report.Errors() > 0) {
            // It may have been left out with what could not be read.
            return 1;
        }
        return found == nullptr ? FailAt<Message::LengthOfUnknown>(place)
                                : static_cast<Number>(StorageOf(*found, m_Context));
    }

    template <Message kId>
    Number FailAt(std::size_t place) {
        m_nAt = place;
        m_Fault = TextOf<kId>(place < m_Words.size() ? ShownWord(m_Words[place]) : "nothing");
        return 0;
    }

    std::span<const TextWord> m_Words;
    std::size_t m_nAt;
    bool m_bPrecedence;
    ReadingContext& m_Context;
    CKTMessageText m_Fault;
};

}  // namespace

bool IsPartOfExpression(std::span<const TextWord> words, std::size_t at) {
    return IsMark(words, at, "(") || OperatorAt(words, at) != nullptr ||
           (at < words.size() && IsWord(words[at], "LENGTH"));
}

ExpressionResult ReadExpression(std::span<const TextWord> words, std::size_t at, bool precedence,
                                ReadingContext& context) {
    return CKTExpressionReader(words, at, precedence, context).Read();
}
