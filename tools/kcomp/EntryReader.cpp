// An entry as a whole: level, name, the table of clauses, and what they must agree on. Clauses may
// come in any order, so each is found by its first word and read by its own function; then they are
// checked together. The first fault ends the entry, because what follows misread words would be
// misread as well. The clauses are in EntryClauses.cpp, the words that they consist of in
// EntryWords.cpp; what depends on other entries is left to the record.

#include "kcomp/EntryReader.h"

#include <algorithm>

#include "kcomp/Text.h"

const CKTEntryReader::Clause* CKTEntryReader::ClauseOf(const TextWord& word) {
    using R = CKTEntryReader;
    static const std::unordered_map<std::string, Clause> clauses = {
        {"ASCENDING", {"", &R::ReadKey, true}},
        {"ATTRIBUTE", {"ATTRIBUTE", &R::ReadAttribute}},
        {"BASED", {"BASED", &R::ReadNote, true}},
        {"BLANK", {"BLANK WHEN ZERO", &R::ReadBlank}},
        {"CONSTANT", {"CONSTANT", &R::ReadConstant}},
        {"COUNT", {"COUNT IN", &R::ReadCountIn}},
        {"DEPENDING", {"DEPENDING ON", &R::ReadDepending}},
        {"DESCENDING", {"", &R::ReadKey, true}},
        {"EXTERNAL", {"EXTERNAL", &R::ReadExternal}},
        {"FALSE", {"FALSE", &R::ReadFalse}},
        {"GLOBAL", {"GLOBAL", &R::ReadNote, true}},
        {"IDENTIFIED", {"IDENTIFIED BY", &R::ReadIdentified}},
        {"INDEXED", {"INDEXED BY", &R::ReadIndexed}},
        {"IS", {"", &R::ReadIs}},
        {"JUST", {"JUSTIFIED", &R::ReadJustified}},
        {"JUSTIFIED", {"JUSTIFIED", &R::ReadJustified}},
        {"LEADING", {"SIGN", &R::ReadSign, true}},
        {"NAMESPACE", {"NAMESPACE", &R::ReadNamespace}},
        {"OCCURS", {"OCCURS", &R::ReadOccurs}},
        {"PIC", {"PICTURE", &R::ReadPicture}},
        {"PICTURE", {"PICTURE", &R::ReadPicture}},
        {"REDEFINES", {"REDEFINES", &R::ReadRedefines}},
        {"RENAMES", {"RENAMES", &R::ReadRenames}},
        {"SIGN", {"SIGN", &R::ReadSign, true}},
        {"SYNC", {"SYNCHRONIZED", &R::ReadSynchronized}},
        {"SYNCHRONIZED", {"SYNCHRONIZED", &R::ReadSynchronized}},
        {"TRAILING", {"SIGN", &R::ReadSign, true}},
        {"USAGE", {"USAGE", &R::ReadUsage}},
        {"VALUE", {"VALUE", &R::ReadValue}},
        {"VALUES", {"VALUE", &R::ReadValue}},
        {"WHEN", {"FALSE", &R::ReadFalse}},
    };
    // Spares long words the copy in upper case.
    constexpr std::size_t kLongestKeyword = 20;
    if (word.kind != WordKind::Word || word.text.size() > kLongestKeyword) {
        return nullptr;
    }
    // The word USAGE itself may be missing.
    if (IsUsageWord(word.text)) {
        static const Clause usage = {"USAGE", &R::ReadUsageWord, true};
        return &usage;
    }
    const auto found = clauses.find(ToUpper(word.text));
    return found == clauses.end() ? nullptr : &found->second;
}

std::unique_ptr<DataItem> CKTEntryReader::Read() {
    m_pItem = std::make_unique<DataItem>();
    ReadLevelAndName();
    while (!m_bFailed && m_nAt < m_Words.size()) {
        ReadClause();
    }
    if (!m_bFailed) {
        CheckEntry();
    }
    return std::move(m_pItem);
}

void CKTEntryReader::ReadLevelAndName() {
    const std::string& text = m_Words[0].text;
    m_pItem->place = m_Words[0].place;
    // A level has two digits at most; more might be no number that fits.
    m_pItem->level = text.size() > 2 ? 0 : std::stoi(text);
    const int level = m_pItem->level;
    const bool known = (level >= 1 && level <= kHighestLevel) || level == kRenamesLevel ||
                       level == kLoneLevel || level == kConstantLevel || level == kConditionLevel;
    if (!known) {
        Fail(TextOf<Message::UnknownLevel>(text));
        return;
    }
    m_nAt = 1;
    // These begin a clause, but no compiler reserves them, so here they are names.
    const bool soft = IsOneOf({"ATTRIBUTE", "IDENTIFIED", "NAMESPACE"});
    // Without a name the item is a FILLER.
    if (m_nAt == m_Words.size() || (ClauseOf(m_Words[m_nAt]) != nullptr && !soft)) {
        return;
    }
    const std::string name = TakeName();
    m_pItem->name = SameWord(name, "FILLER") ? "" : name;
}

void CKTEntryReader::ReadClause() {
    const TextWord& word = m_Words[m_nAt];
    const Clause* clause = ClauseOf(word);
    if (clause == nullptr) {
        // A number of two digits is a level, one that begins a line is too.
        if (IsDigits(word.text) && (BeginsLine(m_nAt) || word.text.size() == 2)) {
            FailForPeriod(m_nAt);
        } else {
            Fail(TextOf<Message::UnknownClause>(ShownWord(word)));
        }
        return;
    }
    // Spellings of one clause share its name, so PIC and PICTURE are the same clause twice.
    if (!clause->name.empty() && !m_Seen.insert(clause->name).second) {
        Fail(TextOf<Message::RepeatedClause>(clause->name));
        return;
    }
    m_nAt += clause->takesKeyword ? 0 : 1;
    (this->*clause->handler)();
}

void CKTEntryReader::CheckEntry() {
    const DataItem& item = *m_pItem;
    const auto only = [this](std::initializer_list<std::string_view> clauses) {
        return std::all_of(m_Seen.begin(), m_Seen.end(), [clauses](std::string_view seen) {
            return std::find(clauses.begin(), clauses.end(), seen) != clauses.end();
        });
    };
    // Level 78 says what this clause says.
    const bool constant = m_Seen.contains("CONSTANT");
    if (item.level == kConditionLevel) {
        if (item.name.empty() || item.values.empty() || !only({"VALUE", "FALSE"})) {
            Fail(TextOf<Message::ConditionClauses>());
        }
    } else if (item.level == kRenamesLevel) {
        if (item.name.empty() || item.renames.empty() || !only({"RENAMES"})) {
            Fail(TextOf<Message::RenamesClauses>());
        }
    } else if (item.level == kConstantLevel || constant) {
        if (item.name.empty() || item.values.size() != 1 || !item.values[0].through.empty() ||
            !only({"VALUE", "CONSTANT", "GLOBAL"})) {
            Fail(TextOf<Message::ConstantClauses>());
        }
        m_pItem->isConstant = true;
    } else if (!item.renames.empty()) {
        Fail(TextOf<Message::RenamesLevel>());
    } else if (item.values.size() > 1 ||
               (!item.values.empty() && !item.values[0].through.empty())) {
        Fail(TextOf<Message::SeveralValues>());
    } else {
        CheckOccurs();
    }
}

void CKTEntryReader::CheckOccurs() {
    const DataItem& item = *m_pItem;
    if (item.maxOccurs.empty()) {
        // These speak of the occurrences of the item itself.
        if (!item.odo.empty() || m_Seen.contains("INDEXED BY") || m_bKeys) {
            Fail(TextOf<Message::OccursMissing>());
        }
    } else if (item.odo.empty() && !item.minOccurs.empty()) {
        Fail(TextOf<Message::OccursTo>());
    } else if (!item.odo.empty() && item.minOccurs.empty()) {
        // Without a lower bound the table has at least one occurrence.
        m_pItem->minOccurs = "1";
    }
}

bool CKTEntryReader::Is(std::string_view word) const {
    return m_nAt < m_Words.size() && IsWord(m_Words[m_nAt], word);
}

bool CKTEntryReader::IsOneOf(std::initializer_list<std::string_view> words) const {
    return std::any_of(words.begin(), words.end(),
                       [this](std::string_view word) { return Is(word); });
}

bool CKTEntryReader::Skip(std::string_view word) {
    const bool there = Is(word);
    m_nAt += there ? 1 : 0;
    return there;
}

bool CKTEntryReader::BeginsLine(std::size_t at) const {
    return at > 0 && m_Words[at].place.line != m_Words[at - 1].place.line;
}

/// Complains once, at the word `at`, and leaves the rest of the entry unread. Where a fault stands
/// instead of a word, it is the reason.
void CKTEntryReader::FailAt(std::size_t at, const CKTMessageText& text) {
    if (!m_bFailed) {
        const TextWord& word = m_Words[std::min(at, m_Words.size() - 1)];
        m_Context.report.Error(word.place, word.kind == WordKind::Fault ? ComplaintOf(word) : text);
        m_nAt = m_Words.size();
        m_bFailed = true;
    }
}

/// Complains of the period that is missing before the level number at `at`, where the next entry
/// begins.
void CKTEntryReader::FailForPeriod(std::size_t at) {
    FailAt(at, TextOf<Message::MissingPeriod>(m_Words[at].text));
    m_nAt = at;
}
