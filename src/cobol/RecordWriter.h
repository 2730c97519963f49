#ifndef DORVEX_COBOL_RECORDWRITER_H
#define DORVEX_COBOL_RECORDWRITER_H

#include <string>
#include <string_view>

class CKTCOBOLRecordItem;
class CKTUniqueNames;

/// Writes record items to standard output as fixed-format entries. The text of a record is gathered
/// and goes out in large pieces, but never later than a message that is written after it.
class CKTRecordWriter {
public:
    /// Each data name is written with `prefix` before it, count-in clauses when `countIn`. `names`
    /// (null: names stay as they are) makes the names of a record unique. All are borrowed.
    CKTRecordWriter(std::string_view prefix, bool countIn, CKTUniqueNames* names);
    ~CKTRecordWriter() { Flush(); }
    CKTRecordWriter(const CKTRecordWriter&) = delete;
    CKTRecordWriter& operator=(const CKTRecordWriter&) = delete;

    /// Writes `item` and what is below it. Returns whether it was written; an item that is not
    /// valid is left out with its children.
    bool Write(CKTCOBOLRecordItem& item);

private:
    bool IsValid(CKTCOBOLRecordItem& item);
    void BuildLine(const CKTCOBOLRecordItem& item);
    void AppendCondition(std::string_view value);
    void AppendRedefines(const CKTCOBOLRecordItem& redefined);
    void AppendXmlClauses(const CKTCOBOLRecordItem& item);
    void Flush();

    std::string_view m_sPrefix;
    bool m_bCountIn;
    CKTUniqueNames* m_pNames;
    std::string m_sLine;  // the entry being built
    std::string m_sText;  // what is laid out and not yet written
};

#endif
