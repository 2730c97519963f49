#ifndef DORVEX_XML_ENTITYTEXT_H
#define DORVEX_XML_ENTITYTEXT_H

#include <cstdint>

#include "support/Limits.h"

/// How much text entities and defaults have brought into one file. The library bounds how many
/// entities are expanded, but not how long they are.
class CKTEntityText {
public:
    /// An entity begins and ends; entities may stand in entities.
    void Open() { ++m_nOpen; }
    void Close() { --m_nOpen; }

    /// Counts `length` characters that come in, if they come from an entity. Returns whether the
    /// file is still within its bound.
    [[nodiscard]] bool TakeText(std::uint64_t length) { return m_nOpen == 0 || Take(length); }

    /// Counts `length` characters that may come from an entity; likewise.
    [[nodiscard]] bool Take(std::uint64_t length) {
        m_nCharacters += length;
        return m_nCharacters <= kMaxEntityText;
    }

private:
    unsigned m_nOpen = 0;
    std::uint64_t m_nCharacters = 0;
};

#endif
