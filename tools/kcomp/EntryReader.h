#ifndef DORVEX_KCOMP_ENTRYREADER_H
#define DORVEX_KCOMP_ENTRYREADER_H

#include <memory>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>

#include "kcomp/DataItem.h"
#include "kcomp/Report.h"
#include "kcomp/TextWords.h"

/// The named constants of a program (level 78, CONSTANT) by their names in upper case, with the
/// values as the dictionary holds them.
using Constants = std::unordered_map<std::string, std::string>;

/// The data items of a program by their names in upper case.
using ItemsByName = std::unordered_multimap<std::string, DataItem*>;

/// What all entries of a program are read with.
struct ReadingContext {
    CKTReport& report;
    Constants constants;
    ItemsByName items;
    PictureSymbols symbols;
    bool inStorage = false;  ///< whether the entry surely stands in the WORKING-STORAGE SECTION
};

/// Reads the clauses of one data description entry.
class CKTEntryReader {
public:
    /// `words` is the entry without its period; the first word is the level number.
    CKTEntryReader(std::span<TextWord> words, ReadingContext& context)
        : m_Words(words), m_Context(context) {}

    /// Returns the item. After one complaint it may lack clauses, and `Failed` says so. A named
    /// constant has the level 78 or the clause CONSTANT, and its value.
    std::unique_ptr<DataItem> Read();

    [[nodiscard]] bool Failed() const { return m_bFailed; }

    /// The number of words that were read. Less than all when a level number stands inside the
    /// entry, because the period before it is missing; that is complained of.
    [[nodiscard]] std::size_t WordsRead() const { return m_nAt; }

private:
    using Handler = void (CKTEntryReader::*)();
    struct Clause {
        std::string_view name;  // the same for all spellings; empty when it may come twice
        Handler handler;
        bool takesKeyword = false;  // the keyword says which of several things is meant
    };

    static const Clause* ClauseOf(const TextWord& word);
    static bool IsUsageWord(std::string_view word);

    void ReadLevelAndName();
    void ReadClause();
    void ReadAttribute();
    void ReadBlank();
    void ReadConstant();
    void ReadCountIn();
    void ReadDepending();
    void ReadExternal();
    void ReadFalse();
    void ReadIdentified();
    void ReadIndexed();
    void ReadIs();
    void ReadJustified();
    void ReadKey();
    void ReadNamespace();
    void ReadNote();
    void ReadOccurs();
    void ReadPicture();
    void ReadRedefines();
    void ReadRenames();
    void ReadSign();
    void ReadSynchronized();
    void ReadUsage();
    void ReadUsageWord();
    void ReadValue();
    void CheckEntry();
    void CheckOccurs();

    [[nodiscard]] bool Is(std::string_view word) const;
    [[nodiscard]] bool IsOneOf(std::initializer_list<std::string_view> words) const;
    bool Skip(std::string_view word);
    std::string TakeName();
    std::string TakeQualifiedName();
    std::string TakeNames();
    std::string TakeInteger();
    std::string TakeLiteralText();
    std::string TakeConstant();
    std::string TakeValue();
    std::string TakeWordValue();
    void FailBecauseOfWord();
    [[nodiscard]] const std::string* ConstantOf(std::string_view name) const;
    void Fail(const CKTMessageText& text) { FailAt(m_nAt, text); }
    [[nodiscard]] bool BeginsLine(std::size_t at) const;
    void FailAt(std::size_t at, const CKTMessageText& text);
    void FailForPeriod(std::size_t at);

    std::span<TextWord> m_Words;
    ReadingContext& m_Context;
    std::unique_ptr<DataItem> m_pItem;
    std::size_t m_nAt = 0;
    std::size_t m_nPiece = 0;  // where the next number begins in a word such as 1,2,3
    std::set<std::string_view> m_Seen;
    bool m_bKeys = false;
    bool m_bFailed = false;
};

#endif
