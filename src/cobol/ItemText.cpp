// The three forms of a text. An own copy is one block, its length before the characters. Addresses
// are kept as bytes, so their two lowest bits, which alignment leaves free, can tell the forms
// apart. Short texts, most data names and sizes, need no block at all, and texts of the schema are
// shared, since the schema outlives its records. A record of a million items is why this is worth
// the trouble.

#include "cobol/ItemText.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <memory>
#include <utility>

namespace {

constexpr std::size_t kMaxShort = sizeof(const std::string*) - 1;

using Length = std::uint32_t;

// The marks need two free bits.
static_assert(alignof(std::string) >= 4 && __STDCPP_DEFAULT_NEW_ALIGNMENT__ >= 4);

}  // namespace

CKTItemText::CKTItemText(const CKTItemText& other) {
    *this = other;
}

CKTItemText::CKTItemText(CKTItemText&& other) noexcept
    : m_Bytes(std::exchange(other.m_Bytes, Short(0))) {}

CKTItemText& CKTItemText::operator=(const CKTItemText& other) {
    if (this == &other) {
        return *this;
    }
    // Only an own copy has a second block; the other two forms are copied as they are.
    if ((other.Tag() & kOwnMark) != 0 && (other.Tag() & kShortMark) == 0) {
        return *this = other.View();
    }
    Clear();
    m_Bytes = other.m_Bytes;
    return *this;
}

CKTItemText& CKTItemText::operator=(CKTItemText&& other) noexcept {
    // What was here ends with the other text.
    std::swap(m_Bytes, other.m_Bytes);
    return *this;
}

CKTItemText::~CKTItemText() {
    Clear();
}

CKTItemText& CKTItemText::operator=(std::string_view text) {
    Assign(text, {});
    return *this;
}

void CKTItemText::Assign(std::string_view head, std::string_view tail) {
    CKTItemText made;
    char* to = made.MakeRoom(head.size() + tail.size());
    to = std::copy(head.begin(), head.end(), to);
    std::copy(tail.begin(), tail.end(), to);
    *this = std::move(made);
}

void CKTItemText::Share(const std::string& text) {
    if (text.size() <= kMaxShort) {
        *this = std::string_view(text);
        return;
    }
    Clear();
    const std::string* address = &text;
    std::memcpy(m_Bytes.data(), &address, kSize);
}

void CKTItemText::Replace(char from, char to) {
    const std::string_view old = View();
    if (old.find(from) == std::string_view::npos) {
        return;
    }
    CKTItemText made;
    std::replace_copy(old.begin(), old.end(), made.MakeRoom(old.size()), from, to);
    *this = std::move(made);
}

std::string_view CKTItemText::LongView() const {
    if ((Tag() & kOwnMark) != 0) {
        const char* block = OwnCopy();
        Length length = 0;
        std::memcpy(&length, block, sizeof length);
        return {block + sizeof length, length};
    }
    const std::string* address = nullptr;
    std::memcpy(&address, m_Bytes.data(), kSize);
    return *address;
}

char* CKTItemText::OwnCopy() const {
    char* marked = nullptr;
    std::memcpy(&marked, m_Bytes.data(), kSize);
    return marked - kOwnMark;
}

/// Makes this empty text one of `length` characters and returns where they have to be written.
char* CKTItemText::MakeRoom(std::size_t length) {
    if (length <= kMaxShort) {
        m_Bytes = Short(length);
        return m_Bytes.data() + kFirstChar;
    }
    char* block = std::allocator<char>().allocate(sizeof(Length) + length);
    const auto stored = static_cast<Length>(length);
    std::memcpy(block, &stored, sizeof stored);
    // The lowest bits of the address are free and tell that the block is owned.
    const char* marked = block + kOwnMark;
    std::memcpy(m_Bytes.data(), &marked, kSize);
    return block + sizeof stored;
}

void CKTItemText::Clear() {
    if ((Tag() & (kShortMark | kOwnMark)) == kOwnMark) {
        std::allocator<char>().deallocate(OwnCopy(), sizeof(Length) + View().size());
    }
    m_Bytes = Short(0);
}
