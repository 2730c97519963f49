#ifndef DORVEX_SCHEMA_ACTIVEGUARD_H
#define DORVEX_SCHEMA_ACTIVEGUARD_H

#include <utility>

/// Keeps an entry in a set of things being walked while it lives.
template <typename Set>
class CKTActiveGuard {
public:
    CKTActiveGuard(Set& active, typename Set::value_type entry)
        : m_Active(active), m_Entry(std::move(entry)), m_bFirst(active.insert(m_Entry).second) {}
    ~CKTActiveGuard() {
        if (m_bFirst) {
            m_Active.erase(m_Entry);
        }
    }
    CKTActiveGuard(const CKTActiveGuard&) = delete;
    CKTActiveGuard& operator=(const CKTActiveGuard&) = delete;

    /// False when the entry was there already: the walk has come back to where it is.
    [[nodiscard]] bool IsFirst() const { return m_bFirst; }

private:
    Set& m_Active;
    typename Set::value_type m_Entry;
    bool m_bFirst;
};

#endif
