#ifndef DORVEX_XMLGEN_ITEMCLAUSES_H
#define DORVEX_XMLGEN_ITEMCLAUSES_H

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "xml/KTXMLElement.h"

/// The attributes of dictionary elements that the outputs read: the COBOL clauses of an item.
enum class Clause : std::uint8_t {
    Name,
    Usage,  ///< display without it
    Picture,
    Length,     ///< bytes of a text
    Digits,     ///< all digits of a number
    Alignment,  ///< digits behind the decimal point
    Sign,       ///< li, ls, ts: leading, leading separate, trailing separate
    Justified,
    BlankWhenZero,
    MinOccurs,
    MaxOccurs,
    Odo,  ///< the object of OCCURS DEPENDING ON
    Redefines,
    Renames,  ///< there for a level-66 item, whatever it says
    Value,    ///< of a constant or a condition-name
    From,     ///< the ends of a range
    To,
    Through,  ///< the end of a renamed range
};

/// The clauses of one element, taken from its attributes in one pass. Texts are borrowed from the
/// element, which must outlive the object.
class CKTItemClauses {
public:
    explicit CKTItemClauses(const CKTXMLElement* e);

    /// The text of a clause as the dictionary holds it; null when the item does not have it.
    [[nodiscard]] const std::string* Find(Clause clause) const {
        return m_Texts[static_cast<std::size_t>(clause)];
    }

    /// Says whether the item has the clause, whatever its text is.
    [[nodiscard]] bool Has(Clause clause) const { return Find(clause) != nullptr; }

    /// The text of a clause; empty when the item does not have it.
    [[nodiscard]] std::string_view Text(Clause clause) const {
        return Has(clause) ? std::string_view(*Find(clause)) : std::string_view();
    }

private:
    static constexpr std::size_t kClauses = static_cast<std::size_t>(Clause::Through) + 1;
    std::array<const std::string*, kClauses> m_Texts{};
};

#endif
