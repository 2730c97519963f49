#ifndef DORVEX_KCOMP_REPORT_H
#define DORVEX_KCOMP_REPORT_H

#include <cstddef>
#include <deque>
#include <ostream>
#include <string>
#include <string_view>

#include "kcomp/Messages.h"

/// Where a word or an entry stands.
struct SourcePlace {
    std::string_view file;  ///< the name that messages show, kept by the report
    std::size_t line = 0;   ///< counted from 1
};

/// Writes the complaints and notes of one run, one a line, and counts the complaints.
class CKTReport {
public:
    /// Complaints go to `out`, which must outlive the report.
    explicit CKTReport(std::ostream& out) : m_Out(out) {}

    /// Keeps `name` for the places that point at it and returns the kept text.
    std::string_view KeepName(std::string name) { return m_Names.emplace_back(std::move(name)); }

    /// Writes "FILE(LINE) : Error : text" and counts it. A place without a file gives the
    /// name of this program alone. After a hundred complaints a last line says that there are more.
    void Error(const SourcePlace& place, const CKTMessageText& text);

    /// Writes "FILE(LINE) : Note : text", which is not counted.
    void Note(const SourcePlace& place, const CKTMessageText& text);

    /// How many complaints there were, those that are not shown among them.
    [[nodiscard]] std::size_t Errors() const { return m_nErrors; }

private:
    void WriteLine(const SourcePlace& place, std::string_view kind, const CKTMessageText& text);

    std::ostream& m_Out;
    std::deque<std::string> m_Names;
    std::size_t m_nErrors = 0;
};

#endif
