#ifndef DORVEX_COBOL_ITEMTEXT_H
#define DORVEX_COBOL_ITEMTEXT_H

#include <array>
#include <bit>
#include <cstddef>
#include <ostream>
#include <string>
#include <string_view>

/// One text of a record item in the space of a pointer, because a record may have a million items
/// with a dozen texts each. A text of up to seven characters stands in the object itself; a longer
/// one is borrowed from a string that outlives the item, or else a copy that the object owns.
class CKTItemText {
public:
    CKTItemText() = default;
    CKTItemText(const CKTItemText& other);
    CKTItemText(CKTItemText&& other) noexcept;
    CKTItemText& operator=(const CKTItemText& other);
    CKTItemText& operator=(CKTItemText&& other) noexcept;
    ~CKTItemText();

    /// Holds a copy of `text`.
    CKTItemText& operator=(std::string_view text);

    /// Holds a copy of `head` followed by `tail`, which may be parts of this text.
    void Assign(std::string_view head, std::string_view tail);

    /// Borrows `text`, which has to outlive this object and its copies.
    void Share(const std::string& text);

    /// Replaces every `from` by `to`; a borrowed text that holds one becomes a copy first.
    void Replace(char from, char to);

    /// The characters; they stay valid until the text changes or moves.
    [[nodiscard]] std::string_view View() const {
        return (Tag() & kShortMark) != 0
                   ? std::string_view(m_Bytes.data() + kFirstChar, Tag() >> 2U)
                   : LongView();
    }
    operator std::string_view() const { return View(); }
    [[nodiscard]] bool empty() const { return View().empty(); }

    /// Equal characters, wherever they stand.
    friend bool operator==(const CKTItemText& a, const CKTItemText& b) {
        return a.m_Bytes == b.m_Bytes || a.View() == b.View();
    }
    friend bool operator==(const CKTItemText& a, std::string_view b) { return a.View() == b; }
    friend std::ostream& operator<<(std::ostream& out, const CKTItemText& text) {
        return out << text.View();
    }

private:
    static constexpr unsigned kShortMark = 1;
    static constexpr unsigned kOwnMark = 2;
    static constexpr std::size_t kSize = sizeof(const std::string*);
    static constexpr bool kLowFirst = std::endian::native == std::endian::little;
    static constexpr std::size_t kTagByte = kLowFirst ? 0 : kSize - 1;
    static constexpr std::size_t kFirstChar = kLowFirst ? 1 : 0;

    using Bytes = std::array<char, kSize>;
    static constexpr Bytes Short(std::size_t length) {
        Bytes bytes{};
        bytes[kTagByte] = static_cast<char>(length << 2U | kShortMark);
        return bytes;
    }
    [[nodiscard]] unsigned Tag() const { return static_cast<unsigned char>(m_Bytes[kTagByte]); }
    [[nodiscard]] std::string_view LongView() const;
    [[nodiscard]] char* OwnCopy() const;
    char* MakeRoom(std::size_t length);
    void Clear();

    // The byte that is the lowest of an address tells three forms apart: four times the number of
    // characters plus one, with the characters in the other bytes; the address of a std::string; or
    // the address of an own copy plus two.
    alignas(kSize) Bytes m_Bytes = Short(0);
};

#endif
