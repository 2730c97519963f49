#ifndef DORVEX_SUPPORT_TEXT_H
#define DORVEX_SUPPORT_TEXT_H

#include <string>
#include <string_view>

/// Finds the last place in `text` where one of its multibyte characters matches the start of `sub`
/// (case-insensitively). Returns a pointer into `text`, or to an empty string when there is none;
/// never null. An invalid byte counts as one character.
const char* my_strrchr(const char* text, const char* sub);

/// Widens multibyte text of the current locale. Null gives an empty result. Text that the locale
/// cannot decode is reported as an error on standard error and gives an empty result.
std::wstring my_mbstowcs(const char* text);

/// Narrows wide text to the current locale's encoding; the mirror image of my_mbstowcs.
std::string my_wcstombs(const wchar_t* text);

/// Compares byte by byte, the letters A to Z without regard to case, whatever the locale. Returns
/// the difference of the first differing pair, 0 when the texts are equal.
int my_stricmp(const char* a, const char* b);

/// Like my_stricmp, but compares at most `n` bytes; 0 for `n` = 0.
int my_strnicmp(const char* a, const char* b, int n);

/// Narrows the parser's UTF-16 text to the locale's encoding; surrogate pairs are one character.
/// Text that the locale cannot hold is reported as by my_wcstombs and gives an empty result.
std::string NarrowText(std::u16string_view text);

/// Like NarrowText for texts that are shown and never used: a character that the locale cannot
/// hold becomes "?", so that a diagnostic always says something. Reports nothing.
std::string NarrowMessage(std::u16string_view text);

/// Turns narrow text of the locale into UTF-16; failures are reported as by my_mbstowcs.
std::u16string WidenText(std::string_view text);

/// Reads an optional sign and the leading decimal digits of `text`; what follows is ignored and
/// text without digits reads as 0. Values beyond the range of the result saturate.
long long ReadInteger(std::string_view text);

/// The digits of a decimal number of 0 or above without sign and leading zeros, as a part of
/// `text`; a `text` that is anything else is answered as it is.
std::string_view PlainNumber(std::string_view text);

#endif
