// Text between bytes of the locale and characters. The C library converts, in the locale that the
// program sets when it starts; a wide character holds any code point here, so the surrogate pairs
// of UTF-16 are joined and parted by hand. Text that is all ASCII, as most is, skips the
// conversion, because every encoding of a locale holds ASCII as it is. Numbers and comparisons know
// no locale. File names are converted elsewhere, without a loss: they need not be text at all.

#include "support/Text.h"

#include <algorithm>
#include <array>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <cwchar>
#include <iostream>
#include <limits>

#include "support/Complaints.h"

namespace {

/// Folds A to Z alone: what is compared are names and options, the same in every locale.
int LowerByte(char c) {
    const int byte = static_cast<unsigned char>(c);
    return byte >= 'A' && byte <= 'Z' ? byte - 'A' + 'a' : byte;
}

bool IsAscii(std::u16string_view text) {
    return std::all_of(text.begin(), text.end(), [](char16_t c) { return c < 0x80; });
}

/// A surrogate without its partner stays, and no locale can write it.
std::wstring JoinSurrogates(std::u16string_view text) {
    std::wstring wide;
    wide.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char32_t unit = text[i];
        const bool pair = unit >= 0xD800 && unit < 0xDC00 && i + 1 < text.size() &&
                          text[i + 1] >= 0xDC00 && text[i + 1] < 0xE000;
        wide += static_cast<wchar_t>(pair ? 0x10000 + ((unit - 0xD800) << 10) + (text[++i] - 0xDC00)
                                          : unit);
    }
    return wide;
}

}  // namespace

const char* my_strrchr(const char* text, const char* sub) {
    const char* last = "";
    // Character by character, because a byte behind the first of a character may look like what is
    // sought. The first call drops what an earlier text left of a shift state.
    std::mblen(nullptr, 0);
    for (const char* at = text; *at != '\0';) {
        const int measured = std::mblen(at, MB_CUR_MAX);
        // An invalid byte is passed over alone.
        const int length = measured > 0 ? measured : 1;
        if (my_strnicmp(at, sub, length) == 0) {
            last = at;
        }
        at += length;
    }
    return last;
}

std::wstring my_mbstowcs(const char* text) {
    if (text == nullptr) {
        return {};
    }
    // Asked for the length first; a text that cannot be converted fails here.
    const std::size_t length = std::mbstowcs(nullptr, text, 0);
    if (length == static_cast<std::size_t>(-1)) {
        Report<SupportMessage::NoWideCharacter>();
        return {};
    }
    std::wstring wide(length + 1, L'\0');
    std::mbstowcs(wide.data(), text, length + 1);
    wide.resize(length);
    return wide;
}

std::string my_wcstombs(const wchar_t* text) {
    if (text == nullptr) {
        return {};
    }
    const std::size_t length = std::wcstombs(nullptr, text, 0);
    if (length == static_cast<std::size_t>(-1)) {
        Report<SupportMessage::NoNarrowCharacter>();
        return {};
    }
    std::string narrow(length + 1, '\0');
    std::wcstombs(narrow.data(), text, length + 1);
    narrow.resize(length);
    return narrow;
}

int my_stricmp(const char* a, const char* b) {
    // The end of either text ends the comparison long before.
    return my_strnicmp(a, b, INT_MAX);
}

int my_strnicmp(const char* a, const char* b, int n) {
    for (int i = 0; i < n; ++i) {
        const int difference = LowerByte(a[i]) - LowerByte(b[i]);
        // Both end here when they are equal so far, so neither is read behind its end.
        if (difference != 0 || a[i] == '\0') {
            return difference;
        }
    }
    return 0;
}

std::string NarrowText(std::u16string_view text) {
    if (IsAscii(text)) {
        return {text.begin(), text.end()};
    }
    return my_wcstombs(JoinSurrogates(text).c_str());
}

std::string NarrowMessage(std::u16string_view text) {
    std::string narrow;
    std::mbstate_t state{};
    std::array<char, MB_LEN_MAX> bytes{};
    for (const wchar_t c : JoinSurrogates(text)) {
        const std::size_t length = std::wcrtomb(bytes.data(), c, &state);
        if (length == static_cast<std::size_t>(-1)) {
            // After a failure the state is not to be used any more.
            narrow += '?';
            state = {};
        } else {
            narrow.append(bytes.data(), length);
        }
    }
    return narrow;
}

std::u16string WidenText(std::string_view text) {
    if (std::all_of(text.begin(), text.end(), [](char c) { return (c & 0x80) == 0; })) {
        return {text.begin(), text.end()};
    }
    std::u16string wide;
    for (const wchar_t c : my_mbstowcs(std::string(text).c_str())) {
        const auto point = static_cast<char32_t>(c);
        if (point < 0x10000) {
            wide += static_cast<char16_t>(point);
        } else {
            wide += static_cast<char16_t>(0xD800 + ((point - 0x10000) >> 10));
            wide += static_cast<char16_t>(0xDC00 + ((point - 0x10000) & 0x3FF));
        }
    }
    return wide;
}

long long ReadInteger(std::string_view text) {
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+')) {
        text.remove_prefix(1);
    }
    constexpr long long kMax = std::numeric_limits<long long>::max();
    long long value = 0;
    for (const char c : text) {
        if (c < '0' || c > '9') {
            break;
        }
        const int digit = c - '0';
        // Once at the top it stays there. Its negative is a number as well.
        value = value > (kMax - digit) / 10 ? kMax : value * 10 + digit;
    }
    return negative ? -value : value;
}

std::string_view PlainNumber(std::string_view text) {
    std::string_view digits = text;
    const bool negative = digits.starts_with('-');
    if (negative || digits.starts_with('+')) {
        digits.remove_prefix(1);
    }
    if (digits.empty() || digits.find_first_not_of("0123456789") != std::string_view::npos) {
        return text;
    }
    // Of zeros alone, one stays.
    digits.remove_prefix(std::min(digits.find_first_not_of('0'), digits.size() - 1));
    return negative && digits != "0" ? text : digits;
}
