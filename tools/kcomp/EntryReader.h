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

/// What all entries of a program are read with: what is complained of goes to `report`, and what
/// later entries may refer to stands in the rest.
struct ReadingContext {
    CKTReport& report;
    Constants constants;
    ItemsByName items;
    PictureSymbols symbols;
    bool inStorage = false;  ///< whether the entry surely stands in the WORKING-STORAGE SECTION
};

/// Reads the clauses of one data description entry. Made anew for each; the words and the context
/// must outlive it. It neither knows nor asks for the entries around this one.
class CKTEntryReader {
public:
    /// `words` is the entry without its period; the first word is the level number.
    CKTEntryReader(std::span<TextWord> words, ReadingContext& context)
        : m_Words(words), m_Context(context) {}

    /// Returns the item. After one complaint it may lack clauses, and `Failed` says so. A named
    /// constant has the level 78 or the clause CONSTANT, and its value.
    std::unique_ptr<DataItem> Read();

    /// Whether there was a complaint. Then the rest of the entry was not read.
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

    /// The clause that begins with the word; null when none does.
    static const Clause* ClauseOf(const TextWord& word);
    static bool IsUsageWord(std::string_view word);

    void ReadLevelAndName();
    void ReadClause();
    /// Handlers of clauses. The word behind the keyword or, where the clause takes it, the keyword
    /// is the current one.
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
    /// Complain of clauses that do not go together.
    void CheckEntry();
    void CheckOccurs();

    [[nodiscard]] bool Is(std::string_view word) const;
    [[nodiscard]] bool IsOneOf(std::initializer_list<std::string_view> words) const;
    /// Goes past the word if it is the current one, and says whether it was.
    bool Skip(std::string_view word);
    /// Each returns what it took as the dictionary holds it; after a complaint the text is of
    /// no use.
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
    // By their names in messages.
    std::set<std::string_view> m_Seen;
    bool m_bKeys = false;
    bool m_bFailed = false;
};

#endif
