// File names on their way to the parser library and back. The library keeps names as UTF-16; its
// own conversion loses what the locale cannot decode, so names are converted here, without a loss:
// a byte that is no text becomes a lone low surrogate and comes back as that byte. Paths are joined
// and shortened by text alone, as the library does it, so that both form the same name of a file;
// only FileIdentity asks the system about links.

#include "xml/Paths.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <climits>
#include <cwchar>
#include <filesystem>
#include <system_error>

namespace {

constexpr char32_t kFirstSupplementary = 0x10000;
constexpr char16_t kHighSurrogates = 0xD800;
constexpr char16_t kLowSurrogates = 0xDC00;
/// The surrogates that stand for bytes. ASCII is never among them.
constexpr char16_t kFirstByte = kLowSurrogates + 0x80;
constexpr char16_t kLastByte = kLowSurrogates + 0xFF;

void AppendCharacter(std::u16string& text, char32_t c) {
    if (c < kFirstSupplementary) {
        text += static_cast<char16_t>(c);
        return;
    }
    c -= kFirstSupplementary;
    text += static_cast<char16_t>(kHighSurrogates + (c >> 10));
    text += static_cast<char16_t>(kLowSurrogates + (c & 0x3FF));
}

/// Takes the character at `at`, which moves to its last unit.
char32_t TakeCharacter(std::u16string_view text, std::size_t& at) {
    const char16_t unit = text[at];
    const bool pair = unit >= kHighSurrogates && unit < kLowSurrogates && at + 1 < text.size() &&
                      (text[at + 1] & 0xFC00) == kLowSurrogates;
    if (!pair) {
        return unit;
    }
    const char16_t low = text[++at];
    return kFirstSupplementary + (static_cast<char32_t>(unit - kHighSurrogates) << 10) +
           (low - kLowSurrogates);
}

/// For characters from 0x80 on.
void AppendUtf8(std::string& bytes, char32_t c) {
    const auto continued = [](char32_t bits) { return static_cast<char>(0x80 | (bits & 0x3F)); };
    if (c < 0x800) {
        bytes += static_cast<char>(0xC0 | (c >> 6));
    } else {
        if (c < kFirstSupplementary) {
            bytes += static_cast<char>(0xE0 | (c >> 12));
        } else {
            bytes += static_cast<char>(0xF0 | (c >> 18));
            bytes += continued(c >> 12);
        }
        bytes += continued(c >> 6);
    }
    bytes += continued(c);
}

/// A file's path without the beginning that makes it a URL; the slash of its root stays.
std::string_view WithoutScheme(std::string_view name) {
    for (const std::string_view start : {"file://localhost/", "file:///"}) {
        if (name.starts_with(start)) {
            name.remove_prefix(start.size() - 1);
        }
    }
    return name;
}

}  // namespace

std::u16string PathText(std::string_view path) {
    std::u16string text;
    std::mbstate_t state{};
    for (std::size_t at = 0; at < path.size();) {
        const auto byte = static_cast<unsigned char>(path[at]);
        // ASCII is itself in every locale and most of a name.
        wchar_t c = byte;
        std::size_t length = 1;
        if (byte >= 0x80) {
            length = std::mbrtowc(&c, path.data() + at, path.size() - at, &state);
        }
        // The answers for an invalid and for an unfinished character are the largest numbers.
        if (length == 0 || length > path.size()) {
            state = {};
            length = 1;
            c = static_cast<wchar_t>(kLowSurrogates + byte);
        }
        AppendCharacter(text, static_cast<char32_t>(c));
        at += length;
    }
    return text;
}

std::string PathBytes(std::u16string_view text) {
    std::string bytes;
    std::mbstate_t state{};
    std::array<char, MB_LEN_MAX> encoded{};
    for (std::size_t at = 0; at < text.size(); ++at) {
        const char32_t c = TakeCharacter(text, at);
        if (c < 0x80) {
            bytes += static_cast<char>(c);
        } else if (c >= kFirstByte && c <= kLastByte) {
            bytes += static_cast<char>(c - kLowSurrogates);
        } else {
            const std::size_t length =
                std::wcrtomb(encoded.data(), static_cast<wchar_t>(c), &state);
            // The locale lacks the character; a file that is called so has its name in UTF-8.
            if (length > encoded.size()) {
                state = {};
                AppendUtf8(bytes, c);
            } else {
                bytes.append(encoded.data(), length);
            }
        }
    }
    return bytes;
}

bool IsLocation(std::string_view name) {
    return name.find("://") != std::string_view::npos;
}

std::optional<std::string> Unescaped(std::string_view text) {
    std::string bytes;
    for (std::size_t at = 0; at < text.size(); ++at) {
        unsigned byte = static_cast<unsigned char>(text[at]);
        if (text[at] == '%') {
            const std::string_view digits = text.substr(at + 1, 2);
            const char* end = digits.data() + digits.size();
            const auto [last, fault] = std::from_chars(digits.data(), end, byte, 16);
            // Two digits, no fewer: a name must not come to mean another file by a guess.
            if (digits.size() != 2 || last != end || fault != std::errc()) {
                return std::nullopt;
            }
            at += 2;
        }
        bytes += static_cast<char>(byte);
    }
    return bytes;
}

std::string LocalPath(std::string_view name) {
    const std::string path(WithoutScheme(name));
    std::error_code error;
    // A name may hold a percent sign of its own, so the file as written comes first.
    return std::filesystem::exists(path, error) ? path : Unescaped(path).value_or(path);
}

bool IsRelativePath(const std::string& path) {
    return !path.empty() && path.front() != '/';
}

std::string WithBlanks(std::string_view location) {
    std::string path;
    for (std::size_t at = 0; at < location.size(); ++at) {
        const bool blank = location.substr(at, 3) == "%20";
        path += blank ? ' ' : location[at];
        at += blank ? 2 : 0;
    }
    return path;
}

std::string WithoutDotSlash(std::string path) {
    std::string result;
    for (std::size_t at = 0; at < path.size(); ++at) {
        if (path.compare(at, 3, "/./") == 0) {
            ++at;  // the next round looks at the second slash, which may begin another one
        } else {
            result += path[at];
        }
    }
    return result;
}

std::string WithoutDotDotSlash(std::string path) {
    // Not at the beginning: nothing stands before it that could be taken back.
    std::size_t from = 1;
    for (std::size_t at = path.find("/../", from); at != std::string::npos;
         at = path.find("/../", from)) {
        const std::size_t before = path.rfind('/', at - 1);
        // A ".." that stayed cannot be taken back by the next one.
        if (before == std::string::npos || path.compare(before, at - before, "/..") == 0) {
            from = at + 3;
        } else {
            path.erase(before, at + 3 - before);
            // What stands before may be followed by a ".." only through this removal.
            from = std::max<std::size_t>(before, 1);
        }
    }
    return path;
}

std::string WeavePaths(const std::string& base, const std::string& path) {
    const std::size_t slash = base.rfind('/');
    return slash == std::string::npos
               ? path
               : WithoutDotDotSlash(WithoutDotSlash(base.substr(0, slash + 1) + path));
}

std::string FullPath(const std::string& path) {
    // A directory that is gone leaves the name as it is, without a message.
    std::error_code error;
    const std::filesystem::path directory = std::filesystem::current_path(error);
    return error || !IsRelativePath(path) ? path : directory.string() + "/" + path;
}

std::string FileIdentity(const std::string& name) {
    std::error_code error;
    const std::filesystem::path path = std::filesystem::canonical(WithoutScheme(name), error);
    return error ? name : path.string();
}
