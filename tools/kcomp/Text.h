#ifndef DORVEX_KCOMP_TEXT_H
#define DORVEX_KCOMP_TEXT_H

#include <string>
#include <string_view>

/// Cuts the first line off `content` and returns it without its line end.
std::string_view TakeLine(std::string_view& content);

/// The line with each tab replaced by blanks up to the next of the columns 9, 17, 25, ...
std::string ExpandTabs(std::string_view line);

/// The text without the blanks around it.
std::string_view Trim(std::string_view text);

/// The text in upper case; only the letters A to Z change.
std::string ToUpper(std::string_view text);

/// Whether the texts are the same but for the case of the letters A to Z.
bool SameWord(std::string_view a, std::string_view b);

/// Whether the text has at least one character and consists of digits alone.
bool IsDigits(std::string_view text);

/// The text between double quotation marks, as messages show it.
std::string Quoted(std::string_view text);

#endif
