#ifndef DORVEX_KCOMP_SOURCEREADER_H
#define DORVEX_KCOMP_SOURCEREADER_H

#include <optional>
#include <string>
#include <vector>

#include "kcomp/CopyLibrary.h"
#include "kcomp/Replacing.h"
#include "kcomp/Report.h"
#include "kcomp/SourceLines.h"
#include "kcomp/TextWords.h"

/// Reads a source with everything that its COPY statements bring in.
class CKTSourceReader {
public:
    /// The report keeps the names of the files; both must outlive the reader.
    CKTSourceReader(CKTReport& report, const CKTCopyLibrary& library)
        : m_Report(report), m_Library(library) {}

    /// Reads the file `path` and returns its words. `format` is the source's format when a
    /// directive file names one; otherwise the text itself decides. Returns nothing, with a
    /// complaint, when the file cannot be read. What is wrong inside (a copy file that is not
    /// found, a literal without an end) becomes a fault among the words, for whoever needs them;
    /// of a REPLACE statement, which is not obeyed, one word of that kind is left.
    std::optional<std::vector<TextWord>> Read(const std::string& path,
                                              std::optional<SourceFormat> format);

private:
    struct CopyStatement {
        TextWord name;
        std::vector<Replacement> pairs;
        std::size_t end = 0;   // the index behind the next period
        CKTMessageText fault;  // the complaint about a statement that cannot be read
    };

    /// The words of one file, without what it copies; nothing when the file cannot be read.
    /// `format` is what the file begins with unless `detect` finds another, and what it ends with.
    std::optional<std::vector<TextWord>> WordsOf(const std::string& path, SourceFormat& format,
                                                 bool detect);
    /// `words` with the text of the copy files in place of the COPY statements, which take over
    /// `format` where they fit both.
    std::vector<TextWord> Expand(std::vector<TextWord> words, SourceFormat format);
    /// The words that a statement brings in; one fault instead when it brings none.
    std::vector<TextWord> Copied(const CopyStatement& copy, SourceFormat format);

    /// Reads the statement whose COPY stands at `at`.
    static CopyStatement ReadCopy(const std::vector<TextWord>& words, std::size_t at);
    /// Reads one "... BY ..." from `at` on, which goes behind it; false when it is none.
    static bool ReadPair(const std::vector<TextWord>& words, std::size_t& at, Replacement& pair);
    /// Reads a word or pseudo-text, likewise.
    static bool ReadOperand(const std::vector<TextWord>& words, std::size_t& at,
                            std::vector<TextWord>& operand);

    CKTReport& m_Report;
    const CKTCopyLibrary& m_Library;
    std::vector<std::string> m_Open;  // the files that are being read, each from the one before
    std::size_t m_nCopied = 0;  // words that COPY statements brought in, and a share for each file
};

#endif
