// The clauses of a data description entry, one function each. The table in EntryReader.cpp calls it
// behind the clause's first word or, where that word tells what is meant, before it. Words that may
// be left out are skipped where they stand and never asked for. A clause is noted as it is written:
// an attribute and its text when the dictionary passes it on, else a member of the item. Whether
// clauses go together is left to CheckEntry, and what they mean to the completion of the record.

#include <algorithm>

#include "kcomp/EntryReader.h"
#include "kcomp/Text.h"

namespace {

struct UsageWord {
    Usage usage;
    std::string_view picture;  // of a type that has a size of its own, without its S
    std::size_t digits;        // of such a type
};

/// Types with a size of their own, 1, 2, 4 or 8 bytes, bring the PICTURE that stands for it. Their
/// digits are those of the largest number that so many bytes hold.
const UsageWord* UsageOf(std::string_view word) {
    static const std::unordered_map<std::string, UsageWord> usages = {
        {"BINARY", {Usage::Comp4, "", 0}},
        {"BINARY-CHAR", {Usage::Comp5, "9(2)", 3}},
        {"BINARY-DOUBLE", {Usage::Comp5, "9(18)", 19}},
        {"BINARY-LONG", {Usage::Comp5, "9(9)", 10}},
        {"BINARY-LONG-LONG", {Usage::Comp5, "9(18)", 19}},
        {"BINARY-SHORT", {Usage::Comp5, "9(4)", 5}},
        {"COMP", {Usage::Comp4, "", 0}},
        {"COMP-1", {Usage::Comp1, "", 0}},
        {"COMP-2", {Usage::Comp2, "", 0}},
        {"COMP-3", {Usage::Comp3, "", 0}},
        {"COMP-4", {Usage::Comp4, "", 0}},
        {"COMP-5", {Usage::Comp5, "", 0}},
        {"COMP-6", {Usage::Comp6, "", 0}},
        {"COMP-X", {Usage::CompX, "", 0}},
        {"DISPLAY", {Usage::Display, "", 0}},
        {"FLOAT-LONG", {Usage::Comp2, "", 0}},
        {"FLOAT-SHORT", {Usage::Comp1, "", 0}},
        {"INDEX", {Usage::Index, "", 0}},
        {"NATIONAL", {Usage::National, "", 0}},
        {"PACKED-DECIMAL", {Usage::Comp3, "", 0}},
        {"POINTER", {Usage::Pointer, "", 0}},
        {"PROCEDURE-POINTER", {Usage::ProcedurePointer, "", 0}},
    };
    // All forms of COMP may be spelled in full.
    constexpr std::string_view kLong = "COMPUTATIONAL";
    std::string upper = ToUpper(word);
    if (upper.starts_with(kLong)) {
        upper.replace(0, kLong.size(), "COMP");
    }
    const auto found = usages.find(upper);
    return found == usages.end() ? nullptr : &found->second;
}

}  // namespace

bool CKTEntryReader::IsUsageWord(std::string_view word) {
    return UsageOf(word) != nullptr;
}

void CKTEntryReader::ReadAttribute() {
    m_pItem->notes.emplace_back("attribute", "true");
}

void CKTEntryReader::ReadBlank() {
    Skip("WHEN");
    if (!Skip("ZERO") && !Skip("ZEROS") && !Skip("ZEROES")) {
        Fail(TextOf<Message::IncompleteBlank>());
    }
    m_pItem->blankWhenZero = true;
}

void CKTEntryReader::ReadConstant() {
    Skip("IS");
    Skip("GLOBAL");
    Skip("AS");
    m_pItem->values.push_back({TakeConstant(), ""});
}

void CKTEntryReader::ReadCountIn() {
    Skip("IN");
    m_pItem->notes.emplace_back("countIn", TakeName());
}

void CKTEntryReader::ReadDepending() {
    Skip("ON");
    m_pItem->odo = TakeQualifiedName();
}

void CKTEntryReader::ReadExternal() {
    Skip("AS");
    const bool named = m_nAt < m_Words.size() && m_Words[m_nAt].kind == WordKind::Literal;
    // Without a literal the item is known to other programs by its own name.
    m_pItem->notes.emplace_back("external", named ? TakeLiteralText() : "true");
}

// [WHEN SET TO] FALSE [IS] value, of a condition-name.
void CKTEntryReader::ReadFalse() {
    Skip("SET");
    Skip("TO");
    Skip("FALSE");
    Skip("IS");
    m_pItem->notes.emplace_back("falseValue", TakeValue());
}

void CKTEntryReader::ReadIdentified() {
    Skip("BY");
    const bool literal = m_nAt < m_Words.size() && m_Words[m_nAt].kind == WordKind::Literal;
    m_pItem->notes.emplace_back("identifiedBy", literal ? TakeLiteralText() : TakeName());
}

void CKTEntryReader::ReadIndexed() {
    Skip("BY");
    m_pItem->notes.emplace_back("indexedBy", TakeNames());
}

// "IS" says nothing of its own; what may follow it is a clause.
void CKTEntryReader::ReadIs() {
    // A word that begins no clause is complained of as such when it is read.
    const bool known = m_nAt == m_Words.size() || ClauseOf(m_Words[m_nAt]) != nullptr;
    if (known && !IsOneOf({"ATTRIBUTE", "EXTERNAL", "GLOBAL"})) {
        Fail(TextOf<Message::UnexpectedIs>());
    }
}

void CKTEntryReader::ReadJustified() {
    // There is no other side to choose.
    Skip("RIGHT");
    m_pItem->justified = true;
}

void CKTEntryReader::ReadKey() {
    const bool ascending = Skip("ASCENDING");
    Skip("DESCENDING");
    Skip("KEY");
    Skip("IS");
    m_bKeys = true;
    // A second key of the same direction continues the list: an attribute stands once.
    const std::string note = ascending ? "ascendingKey" : "descendingKey";
    const std::string names = TakeNames();
    for (auto& [attribute, text] : m_pItem->notes) {
        if (attribute == note) {
            text += ' ' + names;
            return;
        }
    }
    m_pItem->notes.emplace_back(note, names);
}

void CKTEntryReader::ReadNamespace() {
    Skip("IS");
    m_pItem->notes.emplace_back("namespace", TakeLiteralText());
}

void CKTEntryReader::ReadNote() {
    const bool global = Skip("GLOBAL");
    Skip("BASED");
    m_pItem->notes.emplace_back(global ? "global" : "based", "true");
}

void CKTEntryReader::ReadOccurs() {
    const std::size_t start = m_nAt;
    const auto take = [this] { return Skip("UNBOUNDED") ? "unbounded" : TakeInteger(); };
    // A single number says how often; before TO it is the lower bound.
    m_pItem->maxOccurs = take();
    if (IsDigits(m_pItem->maxOccurs) && Skip("TO")) {
        m_pItem->minOccurs = m_pItem->maxOccurs;
        m_pItem->maxOccurs = take();
    }
    Skip("TIMES");
    if (m_bFailed) {
        return;
    }
    // Working storage has a fixed size; a table without bounds can only lie in storage that comes
    // from elsewhere.
    const bool bounded = IsDigits(m_pItem->maxOccurs);
    if (!bounded && m_Context.inStorage) {
        FailAt(start, TextOf<Message::UnboundedStorage>());
        return;
    }
    // Both numbers have nine digits at most.
    const long maximum = bounded ? std::stol(m_pItem->maxOccurs) : 0;
    const bool rising = m_pItem->minOccurs.empty() || std::stol(m_pItem->minOccurs) < maximum;
    if (bounded && (maximum == 0 || !rising)) {
        FailAt(start, TextOf<Message::OccursBounds>());
    }
}

void CKTEntryReader::ReadPicture() {
    Skip("IS");
    std::string text;
    // Faults of the character-string come up later and have to point at it.
    m_pItem->picturePlace = m_Words[std::min(m_nAt, m_Words.size() - 1)].place;
    const auto isPiece = [this, &text] {
        if (m_nAt == m_Words.size()) {
            return false;
        }
        const TextWord& word = m_Words[m_nAt];
        return (word.kind == WordKind::Word || word.kind == WordKind::Mark) &&
               (text.empty() || word.glued);
    };
    // Parentheses are words of their own, so 9(5)V99 comes in five pieces without blanks.
    while (isPiece()) {
        const TextWord& word = m_Words[m_nAt++];
        // A count may be given by the name of a constant.
        const std::string* constant = text.ends_with('(') ? ConstantOf(word.text) : nullptr;
        text += constant == nullptr ? word.text : *constant;
    }
    if (text.empty()) {
        Fail(TextOf<Message::IncompletePicture>());
    }
    m_pItem->picture = text;
}

void CKTEntryReader::ReadRedefines() {
    m_pItem->redefines = TakeName();
}

void CKTEntryReader::ReadRenames() {
    // The items are looked up when the record is complete.
    m_pItem->renames = TakeQualifiedName();
    if (Skip("THRU") || Skip("THROUGH")) {
        m_pItem->renamesThrough = TakeQualifiedName();
    }
}

void CKTEntryReader::ReadSign() {
    // A clause may begin with the position alone.
    Skip("SIGN");
    Skip("IS");
    const bool leading = Skip("LEADING");
    if (!leading && !Skip("TRAILING")) {
        Fail(TextOf<Message::IncompleteSign>());
        return;
    }
    if (Skip("SEPARATE")) {
        Skip("CHARACTER");
        m_pItem->sign = leading ? SignPosition::LeadingSeparate : SignPosition::TrailingSeparate;
    } else {
        m_pItem->sign = leading ? SignPosition::Leading : SignPosition::Trailing;
    }
}

void CKTEntryReader::ReadSynchronized() {
    std::string side = "true";
    if (IsOneOf({"LEFT", "RIGHT"})) {
        side = Skip("LEFT") ? "left" : "right";
        Skip("RIGHT");
    }
    m_pItem->notes.emplace_back("synchronized", side);
}

void CKTEntryReader::ReadUsage() {
    Skip("IS");
    ReadUsageWord();
}

void CKTEntryReader::ReadUsageWord() {
    if (m_nAt == m_Words.size()) {
        Fail(TextOf<Message::IncompleteUsage>());
        return;
    }
    const UsageWord* word = UsageOf(m_Words[m_nAt].text);
    if (word == nullptr) {
        Fail(TextOf<Message::UnknownUsage>(ShownWord(m_Words[m_nAt])));
        return;
    }
    ++m_nAt;
    m_pItem->usage = word->usage;
    if (word->digits == 0) {
        return;
    }
    // These types have a sign unless they say otherwise.
    Skip("SIGNED");
    const bool isSigned = !Skip("UNSIGNED");
    // Without the sign, only the largest number of 64 bits has one digit more.
    constexpr std::size_t kSignedDouble = 19;
    m_pItem->binaryDigits = word->digits + (!isSigned && word->digits == kSignedDouble ? 1 : 0);
    m_pItem->binaryPicture = (isSigned ? "S" : "") + std::string(word->picture);
}

void CKTEntryReader::ReadValue() {
    Skip("IS");
    Skip("ARE");
    // No word stands between values, so they go on up to the next clause.
    do {
        ItemValue value;
        // Only the value of a constant may be an expression.
        value.value = m_pItem->level == kConstantLevel ? TakeConstant() : TakeValue();
        if (Skip("THRU") || Skip("THROUGH")) {
            value.through = TakeValue();
        }
        m_pItem->values.push_back(std::move(value));
    } while (!m_bFailed && m_nAt < m_Words.size() && ClauseOf(m_Words[m_nAt]) == nullptr);
}
