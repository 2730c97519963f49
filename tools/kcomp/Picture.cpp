// Reads a PICTURE into runs of equal symbols and asks, from the narrowest to the widest, which
// category they fit. The symbols of the runs, one each, are the shape of the picture: most rules
// compare shapes, the others count symbols. Counts stop just above the largest size, so that sums
// of them cannot overflow. Whether the picture goes with the usage is left to ItemDescription.cpp.

#include "kcomp/Picture.h"

#include <algorithm>
#include <array>
#include <limits>
#include <optional>
#include <string>
#include <vector>

#include "kcomp/Text.h"

namespace {

constexpr std::size_t kLongest = std::numeric_limits<int>::max();
constexpr std::size_t kMostDigits = 38;
constexpr std::size_t kMostExponentDigits = 4;

struct Run {
    char symbol;  // upper case; C and D stand for CR and DB, $ for the currency sign, . for the
                  // decimal point whichever character it is
    std::size_t count;
};

/// The number in parentheses at the front of `text`, which is cut off; nothing without one.
std::optional<std::size_t> TakeCount(std::string_view& text) {
    const std::size_t end = text.find(')');
    const std::string_view number =
        end == std::string_view::npos ? std::string_view() : text.substr(1, end - 1);
    std::size_t count = 0;
    if (!IsDigits(number)) {
        return std::nullopt;
    }
    for (const char c : number) {
        // What is too long anyway need not be exact.
        count = std::min(count * 10 + static_cast<std::size_t>(c - '0'), kLongest + 1);
    }
    text.remove_prefix(end + 1);
    return count;
}

/// DECIMAL-POINT IS COMMA has the two change places.
char SymbolOf(char c, const PictureSymbols& symbols) {
    if (symbols.decimalComma && (c == '.' || c == ',')) {
        return c == '.' ? ',' : '.';
    }
    return c;
}

/// The runs of a PICTURE, one of a count of zero among them; nothing when it holds a character that
/// is no symbol.
std::optional<std::vector<Run>> RunsOf(std::string_view text, const PictureSymbols& symbols) {
    std::vector<Run> runs;
    const auto add = [&runs](char symbol, std::size_t count) {
        const bool goesOn = !runs.empty() && runs.back().symbol == symbol;
        // A count of zero stays a run of its own, where it is found and complained of.
        if (goesOn && count > 0 && runs.back().count > 0) {
            runs.back().count = std::min(runs.back().count + count, kLongest + 1);
        } else {
            runs.push_back({symbol, count});
        }
    };
    const std::string upper = ToUpper(text);
    const std::string currency = ToUpper(std::string_view(&symbols.currency, 1));
    for (std::string_view rest = upper; !rest.empty();) {
        const bool sign = rest.starts_with("CR") || rest.starts_with("DB");
        char symbol = rest.front();
        rest.remove_prefix(sign ? 2 : 1);
        // The dollar sign stands for the currency sign only as long as no other is chosen.
        if (symbol == currency.front()) {
            symbol = '$';
        } else if (sign) {
            symbol = symbol == 'C' ? 'C' : 'D';
        } else if (std::string_view("AX9NBSVPZE0/,.+-*").find(symbol) == std::string_view::npos) {
            return std::nullopt;
        } else {
            symbol = SymbolOf(symbol, symbols);
        }
        const auto count = rest.starts_with('(') ? TakeCount(rest) : 1;
        if (!count) {
            return std::nullopt;
        }
        add(symbol, *count);
    }
    return runs;
}

class CKTPictureReader {
public:
    explicit CKTPictureReader(std::vector<Run> runs) : m_Runs(std::move(runs)) {}

    std::optional<Picture> Read() {
        const bool read = ReadNumeric() || ReadText() || ReadNumericEdited() || ReadFloating();
        return read ? std::optional(m_Picture) : std::nullopt;
    }

private:
    [[nodiscard]] std::size_t Count(std::string_view symbols) const {
        std::size_t count = 0;
        for (const Run& run : m_Runs) {
            count += symbols.find(run.symbol) == std::string_view::npos ? 0 : run.count;
        }
        return count;
    }

    [[nodiscard]] bool HoldsOnly(std::string_view symbols) const {
        return std::all_of(m_Runs.begin(), m_Runs.end(), [symbols](const Run& run) {
            return symbols.find(run.symbol) != std::string_view::npos;
        });
    }

    [[nodiscard]] std::string Shape() const {
        std::string shape;
        for (const Run& run : m_Runs) {
            shape += run.symbol;
        }
        return shape;
    }

    bool ReadNumeric() {
        constexpr std::array<std::string_view, 8> shapes = {"9",  "9V",  "9V9", "V9",
                                                            "9P", "9PV", "P9",  "VP9"};
        // A shape does not show how long its runs are, so VV looks like V and is counted below.
        std::string shape = Shape();
        m_Picture.isSigned = shape.starts_with('S') && m_Runs.front().count == 1;
        shape.erase(0, m_Picture.isSigned ? 1 : 0);
        if (std::find(shapes.begin(), shapes.end(), shape) == shapes.end() || Count("V") > 1) {
            return false;
        }
        m_Picture.category = Category::Numeric;
        // The digits of P count but are not stored.
        m_Picture.digits = Count("9P");
        m_Picture.length = Count("9");
        if (shape.starts_with('P') || shape.starts_with('V')) {
            m_Picture.decimals = m_Picture.digits;
        } else if (shape == "9V9") {
            m_Picture.decimals = m_Runs.back().count;
        }
        return true;
    }

    bool ReadText() {
        // These are put in between; a 9 among letters is a character like any other.
        const bool edited = Count("B0/") > 0;
        if (Count("N") > 0 && HoldsOnly("NB0/")) {
            m_Picture.category = Category::National;
        } else if (Count("AX") > 0 && HoldsOnly("AX9B0/")) {
            m_Picture.category = edited ? Category::AlphanumericEdited : Category::Alphanumeric;
        } else {
            return false;
        }
        m_Picture.length = Count("AXN9B0/");
        return true;
    }

    bool ReadNumericEdited() {
        const std::string shape = Shape();
        // One point, one sign, and one way to fill what is suppressed.
        const bool symbolsFit =
            HoldsOnly("9ZVPB0/,.+-*$CD") && Count("ZB0/,.+-*$CD") > 0 && Count("V.") <= 1 &&
            Count("CD") <= 1 && !(Count("Z") > 0 && Count("*") > 0) &&
            !(Count("+") > 0 && Count("-") > 0) && !(Count("CD") > 0 && Count("+-") > 0);
        const std::size_t suppressed = shape.find_last_of("Z*");
        const bool ordered =
            suppressed == std::string::npos || suppressed < std::min(shape.find('9'), shape.size());
        // Without a position for a digit there is nothing to edit.
        const std::size_t positions = Count("9Z*") + Floating('+') + Floating('-') + Floating('$');
        if (!symbolsFit || !ordered || positions == 0 || !SignsFit(shape) || !ScalingFits(shape)) {
            return false;
        }
        m_Picture.category = Category::NumericEdited;
        m_Picture.length = Count("9ZB0/,.+-*$") + 2 * Count("CD");
        return true;
    }

    /// A sign stands at an end, a currency sign in front behind a sign, a floating string before
    /// the first 9 and instead of other suppression.
    [[nodiscard]] bool SignsFit(const std::string& shape) const {
        const std::size_t digit = std::min(shape.find('9'), shape.size());
        for (const char symbol : {'+', '-', '$'}) {
            const std::size_t first = shape.find(symbol);
            if (first == std::string::npos) {
                continue;
            }
            const bool floats = Count(std::string_view(&symbol, 1)) > 1;
            const bool behindSign = symbol == '$' && shape.find_last_of("+-", first) == 0;
            const bool atFront = first == 0 || (behindSign && first == 1);
            const bool atEnd = symbol != '$' && first == shape.size() - 1;
            if (floats ? shape.rfind(symbol) > digit || Count("Z*") > 0 : !atFront && !atEnd) {
                return false;
            }
        }
        return Count("CD") == 0 || shape.find_first_of("CD") == shape.size() - 1;
    }

    [[nodiscard]] static bool ScalingFits(const std::string& shape) {
        // In an edited picture P is taken at the right end only.
        const std::size_t scaling = shape.find('P');
        return scaling == std::string::npos || scaling == shape.size() - 1;
    }

    /// Digit positions of a floating string: all but its first symbol.
    [[nodiscard]] std::size_t Floating(char symbol) const {
        // The first one never holds a digit.
        const std::size_t count = Count(std::string_view(&symbol, 1));
        return count > 1 ? count - 1 : 0;
    }

    /// A mantissa, E, and an exponent with its sign; the mantissa may have one.
    bool ReadFloating() {
        const std::string shape = Shape();
        const std::size_t e = shape.find('E');
        if (e == std::string::npos || Count("E") != 1) {
            return false;
        }
        constexpr std::array<std::string_view, 7> mantissas = {"9",   "9.9", "9.", ".9",
                                                               "9V9", "9V",  "V9"};
        const auto isSign = [this](std::size_t at) {
            return (m_Runs[at].symbol == '+' || m_Runs[at].symbol == '-') && m_Runs[at].count == 1;
        };
        const std::size_t start = isSign(0) ? 1 : 0;
        const bool mantissa =
            Count("V.") <= 1 && std::find(mantissas.begin(), mantissas.end(),
                                          shape.substr(start, e - start)) != mantissas.end();
        const bool exponent = shape.size() == e + 3 && isSign(e + 1) && shape[e + 2] == '9' &&
                              m_Runs.back().count <= kMostExponentDigits;
        m_Picture.category = Category::NumericEdited;
        m_Picture.length = Count("9.+-E");
        return mantissa && exponent;
    }

    std::vector<Run> m_Runs;
    Picture m_Picture;
};

}  // namespace

Picture ReadPicture(std::string_view text, const PictureSymbols& symbols) {
    Picture failed;
    const auto runs = RunsOf(text, symbols);
    // The plainest fault first: a count means nothing among symbols that are none.
    if (!runs || runs->empty()) {
        failed.fault = TextOf<Message::PictureSymbol>(Quoted(text));
        return failed;
    }
    if (std::any_of(runs->begin(), runs->end(), [](const Run& run) { return run.count == 0; })) {
        failed.fault = TextOf<Message::PictureCount>(Quoted(text));
        return failed;
    }
    const std::optional<Picture> picture = CKTPictureReader(*runs).Read();
    if (!picture) {
        failed.fault = TextOf<Message::PictureCategory>(Quoted(text));
    } else if (picture->digits > kMostDigits) {
        failed.fault = TextOf<Message::PictureDigits>(Quoted(text));
    } else if (picture->length >
               (picture->category == Category::National ? kLongest / 2 : kLongest)) {
        failed.fault = TextOf<Message::PictureLength>(Quoted(text));
    }
    return failed.fault.Empty() ? *picture : failed;
}
