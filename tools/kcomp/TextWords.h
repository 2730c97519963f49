#ifndef DORVEX_KCOMP_TEXTWORDS_H
#define DORVEX_KCOMP_TEXTWORDS_H

#include <string>
#include <string_view>
#include <vector>

#include "kcomp/Messages.h"
#include "kcomp/Report.h"
#include "kcomp/SourceLines.h"

enum class WordKind {
    Word,     ///< a name, a keyword, a number, a piece of a PICTURE
    Literal,  ///< with its quotation marks and the letters before them
    Mark,     ///< a parenthesis or a colon
    Pseudo,   ///< "==", an end of pseudo-text
    Period,   ///< the end of an entry or statement
    Replace,  ///< a REPLACE statement as a whole; the text is the word behind REPLACE
    Fault     ///< what cannot be read; the text is the complaint
};

struct TextWord {
    WordKind kind = WordKind::Word;
    bool glued = false;  ///< stands right behind the word before it
    std::string text;
    SourcePlace place;
    SourcePlace comment = {};  ///< of a comment that stands before it or in its line, if any
};

/// A fault that stands at `place` instead of words, with what is to be said about it.
TextWord FaultAt(const SourcePlace& place, const CKTMessageText& complaint);

/// What is to be said about a word that is a fault.
CKTMessageText ComplaintOf(const TextWord& fault);

/// Splits logical lines into words; commas and semicolons between words are left out. `file` is
/// the name for the places of the words. A literal without an end becomes a fault.
std::vector<TextWord> SplitIntoWords(const std::vector<LogicalLine>& lines, std::string_view file);

/// What a literal stands for: its text between the quotation marks, doubled ones taken as one.
std::string TextOfLiteral(const TextWord& literal);

/// The word as messages show it: between quotation marks, unless it has its own.
std::string ShownWord(const TextWord& word);

/// Whether the word is a Word of this spelling, in any case.
bool IsWord(const TextWord& word, std::string_view spelling);

#endif
