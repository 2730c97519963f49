#ifndef DORVEX_XMLGEN_QUALIFIEDNAME_H
#define DORVEX_XMLGEN_QUALIFIEDNAME_H

#include <cstdint>
#include <string>
#include <string_view>

#include "xml/KTXMLElement.h"

/// The name by which a mapping entry is found: that of an element behind those of the named
/// elements directly above it, joined by periods; empty for an element without `name`. What is kept
/// is the element (borrowed) and a hash, which the names below it continue, so that a walk over a
/// tree pays for each name once, however deep it goes.
class CKTQualifiedName {
public:
    /// The name of `e` (null for none), found by walking up.
    explicit CKTQualifiedName(const CKTXMLElement* e);

    /// The name of `e`, which stands directly below the element of this one.
    [[nodiscard]] CKTQualifiedName Below(const CKTXMLElement* e) const;

    /// Says whether `text` is this name, byte by byte.
    [[nodiscard]] bool Is(std::string_view text) const;

    /// The name written out.
    [[nodiscard]] std::string Text() const;

    /// For a table with the names as text, as keys, in which elements are looked up without their
    /// name being written out.
    struct Hash {
        using is_transparent = void;
        std::size_t operator()(const CKTQualifiedName& name) const { return name.m_nHash; }
        std::size_t operator()(std::string_view text) const { return Continue(kStart, text); }
    };
    struct Equal {
        using is_transparent = void;
        bool operator()(std::string_view a, std::string_view b) const { return a == b; }
        bool operator()(const CKTQualifiedName& a, std::string_view b) const { return a.Is(b); }
        bool operator()(std::string_view a, const CKTQualifiedName& b) const { return b.Is(a); }
    };

private:
    static constexpr std::uint64_t kStart = 14695981039346656037U;
    static std::uint64_t Continue(std::uint64_t hash, std::string_view text);

    const CKTXMLElement* m_pElement;
    std::uint64_t m_nHash = kStart;
    bool m_bNamed = false;  ///< false: names below begin anew
};

#endif
