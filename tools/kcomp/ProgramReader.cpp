// One pass over the words that keeps the place it is in. Headers of divisions, sections and
// programs are asked for first and change the place wherever they stand, so that the pass finds its
// way after a fault. In the two sections whose records are wanted, entries are cut off at their
// periods and go to the entry reader, and the items to the record builder of their area; anything
// else is passed over. A source that begins like a copybook is read as if its section header stood
// before it. The end of an entry is looked for once, so the time grows with the words.

#include "kcomp/ProgramReader.h"

#include <algorithm>
#include <array>

#include "kcomp/Text.h"

namespace {

// Lines that steer a listing and may stand between entries.
constexpr std::array<std::string_view, 4> kListingWords = {"EJECT", "SKIP1", "SKIP2", "SKIP3"};

constexpr std::array<std::string_view, 5> kOtherSections = {"LINKAGE", "LOCAL-STORAGE", "SCREEN",
                                                            "REPORT", "COMMUNICATION"};

// What may follow a number in the clauses of an FD.
constexpr std::array<std::string_view, 18> kFileClauseWords = {
    "TO",     "CHARACTERS", "RECORDS", "RECORD",    "LINES",    "LINE",
    "LABEL",  "DATA",       "BLOCK",   "VALUE",     "CODE-SET", "REPORT",
    "LINAGE", "TOP",        "BOTTOM",  "RECORDING", "WITH",     "DEPENDING"};

template <std::size_t N>
bool IsWordOf(const std::array<std::string_view, N>& texts, const TextWord& word) {
    return std::any_of(texts.begin(), texts.end(),
                       [&word](std::string_view text) { return IsWord(word, text); });
}

bool IsListingWord(const TextWord& word) {
    return IsWordOf(kListingWords, word);
}

bool SaysNothingOfData(const TextWord& word) {
    return IsListingWord(word) || word.kind == WordKind::Replace;
}

bool IsLevel(const TextWord& word) {
    return word.kind == WordKind::Word && IsDigits(word.text);
}

}  // namespace

CKTProgramReader::CKTProgramReader(std::vector<TextWord> words, std::string name, SourcePlace start,
                                   CKTReport& report)
    : m_Words(std::move(words)),
      m_sName(std::move(name)),
      m_Context{report, {}, {}, {}, false},
      m_Start(start) {}

std::deque<ProgramData> CKTProgramReader::Read() {
    const auto first = std::find_if_not(m_Words.begin(), m_Words.end(), SaysNothingOfData);
    if (first != m_Words.end()) {
        const bool file = IsWord(*first, "FD") || IsWord(*first, "SD");
        // What EXEC or a fault hides may be data descriptions, so these count as well.
        m_bBare =
            file || IsLevel(*first) || IsWord(*first, "EXEC") || first->kind == WordKind::Fault;
        m_Place = m_bBare ? (file ? Place::FileSection : Place::WorkingStorage) : m_Place;
    }
    while (m_nAt < m_Words.size()) {
        if (TakeHeader()) {
            continue;
        }
        if (InData()) {
            TakeEntry();
        } else {
            TakeOutside();
        }
    }
    EndArea();
    // After another complaint this one would say nothing new.
    if (m_Programs.empty() && m_Context.report.Errors() == 0) {
        m_Context.report.Error(m_Start, TextOf<Message::NoData>());
    }
    return std::move(m_Programs);
}

bool CKTProgramReader::InData() const {
    return m_Place == Place::WorkingStorage || m_Place == Place::FileSection;
}

bool CKTProgramReader::TakeHeader() {
    if (m_Words[m_nAt].kind == WordKind::Replace) {
        TakeReplace();
    } else if (TakeDeclareSection()) {
        return true;
    } else if (IsDivision(m_nAt)) {
        TakeDivision();
    } else if (IsSection(m_nAt)) {
        TakeSection();
    } else if (Is(m_nAt, "PROGRAM-ID") || Is(m_nAt, "FUNCTION-ID")) {
        TakeProgramName();
    } else if (Is(m_nAt, "END") && (Is(m_nAt + 1, "PROGRAM") || Is(m_nAt + 1, "FUNCTION"))) {
        TakeEndProgram();
    } else {
        return false;
    }
    return true;
}

/// What follows such a statement may be other text than what stands there. That is a fault where
/// data descriptions follow.
void CKTProgramReader::TakeReplace() {
    const TextWord& word = m_Words[m_nAt++];
    m_Replace = SameWord(word.text, "OFF") ? SourcePlace{} : word.place;
}

/// What an embedding of SQL puts around host variables says nothing about them.
bool CKTProgramReader::TakeDeclareSection() {
    constexpr std::array<std::string_view, 6> kWords = {"EXEC",    "SQL",     "",
                                                        "DECLARE", "SECTION", "END-EXEC"};
    for (std::size_t i = 0; i < kWords.size(); ++i) {
        const std::size_t at = m_nAt + i;
        if (kWords.at(i).empty() ? !Is(at, "BEGIN") && !Is(at, "END") : !Is(at, kWords.at(i))) {
            return false;
        }
    }
    m_nAt += kWords.size();
    m_nAt += IsPeriod(m_nAt) ? 1 : 0;
    return true;
}

void CKTProgramReader::TakeDivision() {
    EndArea();
    m_Place = Place::Elsewhere;
    if (Is(m_nAt, "ENVIRONMENT")) {
        m_Place = Place::Environment;
    } else if (Is(m_nAt, "DATA")) {
        m_Place = Place::DataDivision;
    }
    // With a header the source is no bare copybook, whatever stood before it.
    m_bBare = false;
    m_nAt += IsPeriod(m_nAt + 2) ? 3 : 2;
}

void CKTProgramReader::TakeSection() {
    const bool storage = Is(m_nAt, "WORKING-STORAGE");
    const bool files = Is(m_nAt, "FILE");
    if (storage || files) {
        EndArea();
        m_Place = storage ? Place::WorkingStorage : Place::FileSection;
        if (!IsPeriod(m_nAt + 2)) {
            m_Context.report.Error(m_Words[m_nAt].place, TextOf<Message::SectionWithoutPeriod>());
        }
    } else if (InData() || m_Place == Place::DataDivision) {
        // A misspelled header would lose all data below it without a word.
        if (!IsWordOf(kOtherSections, m_Words[m_nAt])) {
            m_Context.report.Error(m_Words[m_nAt].place,
                                   TextOf<Message::UnknownSection>(ShownWord(m_Words[m_nAt])));
        }
        EndArea();
        m_Place = Place::Elsewhere;
    }
    m_nAt += IsPeriod(m_nAt + 2) ? 3 : 2;
}

// PROGRAM-ID. name
void CKTProgramReader::TakeProgramName() {
    EndArea();
    m_Place = Place::Elsewhere;
    ++m_nAt;
    m_nAt += IsPeriod(m_nAt) ? 1 : 0;
    std::string name = m_sName;
    if (m_nAt < m_Words.size() && m_Words[m_nAt].kind == WordKind::Literal) {
        name = TextOfLiteral(m_Words[m_nAt]);
    } else if (m_nAt < m_Words.size() && m_Words[m_nAt].kind == WordKind::Word) {
        name = m_Words[m_nAt].text;
    }
    // A program without data is one of the dictionary, too.
    m_Programs.push_back({std::move(name), {}, {}});
    // A contained program goes by the special names and constants of the one around it.
    if (m_nNesting++ == 0) {
        m_Context.constants.clear();
        m_Context.items.clear();
        m_Context.symbols = {};
    }
}

void CKTProgramReader::TakeEndProgram() {
    EndArea();
    m_Place = Place::Elsewhere;
    m_nNesting -= m_nNesting > 0 ? 1 : 0;
    // The name behind it is passed over like all that stands outside data.
    m_nAt += 2;
}

/// What stands outside data is passed over. Where data or its special names may be missing because
/// of a fault, the fault counts.
void CKTProgramReader::TakeOutside() {
    const TextWord& word = m_Words[m_nAt];
    const bool counts = m_Place == Place::Environment || m_Place == Place::DataDivision;
    if (word.kind == WordKind::Fault && counts) {
        m_Context.report.Error(word.place, ComplaintOf(word));
        ++m_nAt;
    } else if (m_Place == Place::DataDivision && !IsSection(m_nAt + 1)) {
        m_Context.report.Error(word.place, TextOf<Message::OutsideSections>(ShownWord(word)));
        SkipPast(EndOfEntry());
    } else {
        TakeSpecialName();
    }
}

// DECIMAL-POINT IS COMMA; CURRENCY SIGN IS literal [WITH PICTURE SYMBOL literal]
void CKTProgramReader::TakeSpecialName() {
    // The words mean this in the ENVIRONMENT DIVISION only.
    const bool environment = m_Place == Place::Environment;
    const bool point = environment && Is(m_nAt, "DECIMAL-POINT");
    const bool currency = environment && (Is(m_nAt, "CURRENCY") || Is(m_nAt, "SYMBOL"));
    ++m_nAt;
    m_nAt += currency && Is(m_nAt, "SIGN") ? 1 : 0;
    m_nAt += (point || currency) && Is(m_nAt, "IS") ? 1 : 0;
    if (point && Is(m_nAt, "COMMA")) {
        m_Context.symbols.decimalComma = true;
    } else if (currency && m_nAt < m_Words.size() && m_Words[m_nAt].kind == WordKind::Literal &&
               m_Words[m_nAt].text.size() == 3) {
        // A currency sign is a single character here; the literal is that and its marks.
        m_Context.symbols.currency = m_Words[m_nAt].text[1];
    }
}

void CKTProgramReader::TakeEntry() {
    const TextWord& word = m_Words[m_nAt];
    if (word.kind == WordKind::Fault) {
        m_Context.report.Error(word.place, ComplaintOf(word));
        ++m_nAt;
        if (m_Builder) {
            // Items may be missing, so nothing is said about what would depend on them.
            m_Builder->MarkDamaged();
        }
    } else if (word.kind == WordKind::Period || IsListingWord(word)) {
        ++m_nAt;
    } else if (Is(m_nAt, "FD") || Is(m_nAt, "SD")) {
        TakeFile();
    } else if (IsLevel(word)) {
        TakeDataEntry();
    } else {
        TakeUnsupported();
    }
}

void CKTProgramReader::TakeUnsupported() {
    const TextWord& word = m_Words[m_nAt];
    if (!Is(m_nAt, "EXEC")) {
        m_Context.report.Error(word.place, TextOf<Message::NoEntry>(ShownWord(word)));
        SkipPast(EndOfEntry());
        return;
    }
    std::string text;
    for (std::size_t i = 1; i < 3 && m_nAt + i < m_Words.size(); ++i) {
        text += (i > 1 ? " " : "") + m_Words[m_nAt + i].text;
    }
    const bool alone = m_nAt + 1 == m_Words.size();
    m_Context.report.Error(word.place,
                           alone ? TextOf<Message::Exec>() : TextOf<Message::ExecOf>(text));
    // What is embedded has its own grammar, in which a period may end nothing.
    while (m_nAt < m_Words.size() && !Is(m_nAt, "END-EXEC")) {
        ++m_nAt;
    }
    SkipPast(m_nAt);
}

// FD or SD, a name, and clauses that say nothing about the data.
void CKTProgramReader::TakeFile() {
    const TextWord& word = m_Words[m_nAt];
    const bool named = m_nAt + 1 < m_Words.size() && m_Words[m_nAt + 1].kind == WordKind::Word;
    if (!named) {
        m_Context.report.Error(word.place, TextOf<Message::FileWithoutName>(ShownWord(word)));
    }
    // Without a name too: its records have to stand somewhere.
    BeginArea(true, named ? m_Words[m_nAt + 1].text : "");
    const std::size_t end = EndOfEntry();
    for (std::size_t at = m_nAt + 1; at < end; ++at) {
        const TextWord& part = m_Words[at];
        if (part.kind == WordKind::Fault) {
            m_Context.report.Error(part.place, ComplaintOf(part));
        } else if (BeginsMissedEntry(at)) {
            m_Context.report.Error(part.place, TextOf<Message::MissingPeriod>(part.text));
            m_nAt = at;
            return;
        }
    }
    SkipPast(end);
}

/// Whether an entry begins among the clauses of an FD, because the period before it is missing:
/// another FD, or a level number, which can be told from other numbers by what follows.
bool CKTProgramReader::BeginsMissedEntry(std::size_t at) const {
    const TextWord& word = m_Words[at];
    const bool beginsLine = word.place.line != m_Words[at - 1].place.line;
    if (beginsLine && (Is(at, "FD") || Is(at, "SD"))) {
        return true;
    }
    const bool number = IsLevel(word) && (beginsLine || word.text == "01");
    return number && word.text.size() <= 2 && at + 1 < m_Words.size() &&
           m_Words[at + 1].kind == WordKind::Word && !IsLevel(m_Words[at + 1]) &&
           !IsWordOf(kFileClauseWords, m_Words[at + 1]);
}

void CKTProgramReader::TakeDataEntry() {
    CKTReport& report = m_Context.report;
    const std::size_t end = EndOfEntry();
    if (m_Replace.line > 0) {
        report.Error(m_Replace, TextOf<Message::Replace>());
        // One complaint is enough for all that follows.
        m_Replace = {};
    }
    // A section without entries makes no area.
    if (!m_Builder) {
        const bool file = m_Place == Place::FileSection;
        if (file) {
            report.Error(m_Words[m_nAt].place, TextOf<Message::RecordWithoutFile>());
        }
        BeginArea(file, "");
    }
    NoteComment(end);
    // A bare copybook may be copied into any section.
    m_Context.inStorage = m_Place == Place::WorkingStorage && !m_bBare;
    CKTEntryReader reader(std::span<TextWord>(m_Words).subspan(m_nAt, end - m_nAt), m_Context);
    std::unique_ptr<DataItem> item = reader.Read();
    m_nAt += reader.WordsRead();
    if (reader.Failed()) {
        m_Builder->Skip(std::move(item));
    } else {
        if (!IsPeriod(end)) {
            report.Error(m_Words[end - 1].place, TextOf<Message::EntryWithoutPeriod>());
        }
        if (item->isConstant) {
            m_Context.constants[ToUpper(item->name)] = item->values.front().value;
        }
        m_Builder->Add(std::move(item));
    }
    // Short of the end, another entry begins where the reader stopped.
    if (m_nAt == end) {
        SkipPast(end);
    }
}

void CKTProgramReader::NoteComment(std::size_t end) {
    SourcePlace& comment = Program().comment;
    for (std::size_t at = m_nAt; at < end && comment.line == 0; ++at) {
        comment = m_Words[at].comment;
    }
}

void CKTProgramReader::BeginArea(bool isFile, std::string name) {
    EndArea();
    Program().areas.push_back({isFile, std::move(name), {}});
    m_Builder.emplace(Program().areas.back(), m_bBare, m_Context);
}

void CKTProgramReader::EndArea() {
    if (m_Builder) {
        m_Builder->Finish();
        m_Builder.reset();
    }
}

/// The program whose data comes now.
ProgramData& CKTProgramReader::Program() {
    // Only a program that names itself has been noted by then.
    if (m_Programs.empty()) {
        m_Programs.push_back({m_sName, {}, {}});
    }
    return m_Programs.back();
}

bool CKTProgramReader::Is(std::size_t at, std::string_view word) const {
    return at < m_Words.size() && IsWord(m_Words[at], word);
}

bool CKTProgramReader::IsPeriod(std::size_t at) const {
    return at < m_Words.size() && m_Words[at].kind == WordKind::Period;
}

bool CKTProgramReader::IsDivision(std::size_t at) const {
    return Is(at + 1, "DIVISION") &&
           (Is(at, "IDENTIFICATION") || Is(at, "ID") || Is(at, "ENVIRONMENT") || Is(at, "DATA") ||
            Is(at, "PROCEDURE"));
}

bool CKTProgramReader::IsSection(std::size_t at) const {
    return Is(at + 1, "SECTION") && m_Words[at].kind == WordKind::Word && !IsLevel(m_Words[at]);
}

/// The index of the period that ends the entry, of the header before which it is missing, or the
/// number of words. Looked for once until it is passed.
std::size_t CKTProgramReader::EndOfEntry() {
    if (m_nEnd <= m_nAt) {
        m_nEnd = m_nAt + 1;
        while (m_nEnd < m_Words.size() && !IsPeriod(m_nEnd) && !IsDivision(m_nEnd) &&
               !((InData() || m_Place == Place::DataDivision) && IsSection(m_nEnd))) {
            ++m_nEnd;
        }
    }
    return m_nEnd;
}

/// Goes on behind `end`, and behind the period that stands there.
void CKTProgramReader::SkipPast(std::size_t end) {
    m_nAt = std::min(end, m_Words.size());
    m_nAt += IsPeriod(m_nAt) || Is(m_nAt, "END-EXEC") ? 1 : 0;
}
