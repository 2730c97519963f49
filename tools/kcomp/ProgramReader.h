#ifndef DORVEX_KCOMP_PROGRAMREADER_H
#define DORVEX_KCOMP_PROGRAMREADER_H

#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "kcomp/DataItem.h"
#include "kcomp/EntryReader.h"
#include "kcomp/RecordBuilder.h"
#include "kcomp/TextWords.h"

/// Finds the data descriptions of a source: those of the WORKING-STORAGE SECTION and the FILE
/// SECTION of each program, or those that a bare copybook consists of. Other sections are passed
/// over, and so is the PROCEDURE DIVISION with whatever is wrong in it.
class CKTProgramReader {
public:
    /// `words` is the whole source, copies included, and `start` its first line. `name` is the name
    /// of a program that names itself nowhere, a bare copybook above all.
    CKTProgramReader(std::vector<TextWord> words, std::string name, SourcePlace start,
                     CKTReport& report);

    /// Returns the programs in the order of the source. Complains of what cannot be read, and of a
    /// source that holds no program and no data description.
    std::deque<ProgramData> Read();

private:
    /// Where the words at hand stand.
    enum class Place { Elsewhere, Environment, DataDivision, WorkingStorage, FileSection };

    /// These take what stands at the current word and go on behind it; those that answer say
    /// whether there was anything of their kind.
    bool TakeHeader();
    void TakeReplace();
    bool TakeDeclareSection();
    void TakeDivision();
    void TakeSection();
    void TakeProgramName();
    void TakeEndProgram();
    void TakeSpecialName();
    void TakeOutside();
    void TakeEntry();
    void TakeFile();
    void TakeDataEntry();
    /// Keeps the place of the first comment up to `end`, if the program has none yet.
    void NoteComment(std::size_t end);
    void TakeUnsupported();
    /// An area gets entries until the next one begins or its section ends.
    void BeginArea(bool isFile, std::string name);
    void EndArea();
    ProgramData& Program();

    /// Questions about the word at `at`, which may lie behind the last one.
    [[nodiscard]] bool Is(std::size_t at, std::string_view word) const;
    [[nodiscard]] bool IsPeriod(std::size_t at) const;
    [[nodiscard]] bool IsDivision(std::size_t at) const;
    [[nodiscard]] bool IsSection(std::size_t at) const;
    [[nodiscard]] bool BeginsMissedEntry(std::size_t at) const;
    [[nodiscard]] bool InData() const;
    std::size_t EndOfEntry();
    void SkipPast(std::size_t end);

    std::vector<TextWord> m_Words;
    std::string m_sName;
    ReadingContext m_Context;
    std::deque<ProgramData> m_Programs;
    std::optional<CKTRecordBuilder> m_Builder;
    SourcePlace m_Start;
    SourcePlace m_Replace;  // of the REPLACE statement that changes what comes
    // All indices are those of the words.
    std::size_t m_nAt = 0;
    std::size_t m_nEnd = 0;      // where the entry ends, once it was looked for
    std::size_t m_nNesting = 0;  // programs that are open
    Place m_Place = Place::Elsewhere;
    bool m_bBare = false;
};

#endif
