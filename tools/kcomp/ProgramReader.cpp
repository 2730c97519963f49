#include "kcomp/ProgramReader.h"

#include <algorithm>
#include <array>

#include "kcomp/Text.h"

namespace {

// Lines that steer a listing and may stand between entries.
constexpr std::array<std::string_view, 4> kListingWords = {"EJECT", "SKIP1", "SKIP2", "SKIP3"};

bool IsListingWord(const TextWord& word) {
    return std::any_of(kListingWords.begin(), kListingWords.end(),
                       [&word](std::string_view text) { return IsWord(word, text); });
}

bool IsLevel(const TextWord& word) {
    return word.kind == WordKind::Word && IsDigits(word.text);
}

}  // namespace

CKTProgramReader::CKTProgramReader(std::vector<TextWord> words, std::string name, CKTReport& report)
    : m_Words(std::move(words)), m_sName(std::move(name)), m_Context{report, {}, {}} {}

std::deque<ProgramData> CKTProgramReader::Read() {
    const auto first = std::find_if_not(m_Words.begin(), m_Words.end(), IsListingWord);
    if (first != m_Words.end()) {
        const bool file = IsWord(*first, "FD") || IsWord(*first, "SD");
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
            TakeSpecialName();
        }
    }
    EndArea();
    if (m_Programs.empty() && m_Context.report.Errors() == 0) {
        const SourcePlace none;
        m_Context.report.Error(m_Words.empty() ? none : m_Words[0].place,
                               "The source holds no program and no data description");
    }
    return std::move(m_Programs);
}

bool CKTProgramReader::InData() const {
    return m_Place == Place::WorkingStorage || m_Place == Place::FileSection;
}

bool CKTProgramReader::TakeHeader() {
    return TakeDivision() || TakeSection() || TakeProgramName() || TakeEndProgram();
}

bool CKTProgramReader::TakeDivision() {
    if (!Is(m_nAt + 1, "DIVISION")) {
        return false;
    }
    EndArea();
    m_Place = Is(m_nAt, "ENVIRONMENT") ? Place::Environment : Place::Elsewhere;
    m_bBare = false;
    m_nAt = std::min(EndOfEntry() + 1, m_Words.size());
    return true;
}

bool CKTProgramReader::TakeSection() {
    if (!Is(m_nAt + 1, "SECTION") || IsLevel(m_Words[m_nAt])) {
        return false;
    }
    const bool storage = Is(m_nAt, "WORKING-STORAGE");
    const bool files = Is(m_nAt, "FILE");
    if (storage || files) {
        EndArea();
        m_Place = storage ? Place::WorkingStorage : Place::FileSection;
    } else if (InData()) {
        EndArea();
        m_Place = Place::Elsewhere;
    }
    m_nAt = std::min(EndOfEntry() + 1, m_Words.size());
    return true;
}

// PROGRAM-ID. name
bool CKTProgramReader::TakeProgramName() {
    if (!Is(m_nAt, "PROGRAM-ID")) {
        return false;
    }
    EndArea();
    m_Place = Place::Elsewhere;
    ++m_nAt;
    m_nAt += m_nAt < m_Words.size() && m_Words[m_nAt].kind == WordKind::Period ? 1 : 0;
    const bool named = m_nAt < m_Words.size() && (m_Words[m_nAt].kind == WordKind::Word ||
                                                  m_Words[m_nAt].kind == WordKind::Literal);
    m_Programs.push_back({named ? m_Words[m_nAt].text : m_sName, {}});
    std::erase_if(m_Programs.back().name, [](char c) { return c == '"' || c == '\''; });
    m_Context.constants.clear();
    m_nAt = std::min(EndOfEntry() + 1, m_Words.size());
    return true;
}

bool CKTProgramReader::TakeEndProgram() {
    if (!Is(m_nAt, "END") || !Is(m_nAt + 1, "PROGRAM")) {
        return false;
    }
    EndArea();
    m_Place = Place::Elsewhere;
    m_nAt = std::min(EndOfEntry() + 1, m_Words.size());
    return true;
}

// DECIMAL-POINT IS COMMA; CURRENCY SIGN IS literal [WITH PICTURE SYMBOL literal]
void CKTProgramReader::TakeSpecialName() {
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
        m_Context.symbols.currency = m_Words[m_nAt].text[1];
    }
}

void CKTProgramReader::TakeEntry() {
    const TextWord& word = m_Words[m_nAt];
    if (word.kind == WordKind::Fault) {
        m_Context.report.Error(word.place, word.text);
        ++m_nAt;
    } else if (word.kind == WordKind::Period || IsListingWord(word)) {
        ++m_nAt;
    } else if (Is(m_nAt, "EXEC") || !(IsLevel(word) || Is(m_nAt, "FD") || Is(m_nAt, "SD"))) {
        TakeUnsupported();
    } else if (IsLevel(word)) {
        TakeDataEntry(EndOfEntry());
    } else {
        TakeFile();
    }
}

void CKTProgramReader::TakeUnsupported() {
    const TextWord& word = m_Words[m_nAt];
    if (!Is(m_nAt, "EXEC")) {
        m_Context.report.Error(word.place, Quoted(word.text) + " begins no data description entry");
        m_nAt = std::min(EndOfEntry() + 1, m_Words.size());
        return;
    }
    std::string text = "\"EXEC";
    for (std::size_t i = 1; i < 3 && m_nAt + i < m_Words.size(); ++i) {
        text += ' ' + m_Words[m_nAt + i].text;
    }
    m_Context.report.Error(word.place, text + "\" is not supported");
    while (m_nAt < m_Words.size() && !Is(m_nAt, "END-EXEC")) {
        ++m_nAt;
    }
    m_nAt = std::min(m_nAt + 1, m_Words.size());
}

// FD or SD, a name, and clauses that say nothing about the data.
void CKTProgramReader::TakeFile() {
    const TextWord& word = m_Words[m_nAt];
    const bool named = m_nAt + 1 < m_Words.size() && m_Words[m_nAt + 1].kind == WordKind::Word;
    if (!named) {
        m_Context.report.Error(word.place, Quoted(word.text) + " names no file");
    }
    BeginArea(true, named ? m_Words[m_nAt + 1].text : "");
    m_nAt = std::min(EndOfEntry() + 1, m_Words.size());
}

void CKTProgramReader::TakeDataEntry(std::size_t end) {
    CKTReport& report = m_Context.report;
    const std::span<TextWord> entry(m_Words.begin() + static_cast<std::ptrdiff_t>(m_nAt),
                                    m_Words.begin() + static_cast<std::ptrdiff_t>(end));
    const auto fault = std::find_if(entry.begin(), entry.end(), [](const TextWord& word) {
        return word.kind == WordKind::Fault;
    });
    if (fault != entry.end()) {
        report.Error(fault->place, fault->text);
        m_nAt = std::min(end + 1, m_Words.size());
        return;
    }
    if (!m_Builder) {
        const bool file = m_Place == Place::FileSection;
        if (file) {
            report.Error(entry[0].place, "The record stands under no FD or SD");
        }
        BeginArea(file, "");
    }
    CKTEntryReader reader(entry, m_Context);
    std::unique_ptr<DataItem> item = reader.Read();
    m_nAt += reader.WordsRead();
    if (m_nAt == m_Words.size() && item != nullptr) {
        report.Error(m_Words.back().place, "The last entry does not end with a period");
    }
    m_nAt += m_nAt == end && end < m_Words.size() ? 1 : 0;
    if (item == nullptr) {
        return;
    }
    if (item->level == kConstantLevel) {
        m_Context.constants[ToUpper(item->name)] = item->values.front().value;
    }
    m_Builder->Add(std::move(item));
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
    if (m_Programs.empty()) {
        m_Programs.push_back({m_sName, {}});
    }
    return m_Programs.back();
}

bool CKTProgramReader::Is(std::size_t at, std::string_view word) const {
    return at < m_Words.size() && IsWord(m_Words[at], word);
}

/// The index of the period that ends the entry, or the number of words when there is none.
std::size_t CKTProgramReader::EndOfEntry() const {
    const auto begin = m_Words.begin() + static_cast<std::ptrdiff_t>(m_nAt);
    const auto end = std::find_if(
        begin, m_Words.end(), [](const TextWord& word) { return word.kind == WordKind::Period; });
    return static_cast<std::size_t>(end - m_Words.begin());
}
