#ifndef DORVEX_XMLGEN_COPYBOOKWRITER_H
#define DORVEX_XMLGEN_COPYBOOKWRITER_H

#include <string>
#include <vector>

#include "xmlgen/DictionaryWriter.h"

/// Writes the enriched copybook to standard output: an entry in fixed format for each item, with
/// the clauses that bind it to its XML. Reports redefinitions, renamings and items that are too
/// deep, which it leaves out, on standard error.
class CKTCopybookWriter : public CKTDictionaryWriter {
public:
    /// `passed` (borrowed) holds what stands before the record and is reported with it; `prefix` is
    /// put before the names of count fields, of which there are none without `countIn`.
    CKTCopybookWriter(const std::vector<const CKTXMLElement*>& passed, std::string prefix,
                      bool countIn)
        : m_Passed(passed), m_sPrefix(std::move(prefix)), m_bCountIn(countIn) {}

    /// The whole entry of an item.
    bool Begin(const DictionaryItem& item) override;

    /// Nothing: levels tell where a group ends.
    void End(const DictionaryItem& item) override;

private:
    // The steps of an entry, in the order of its clauses. All but the first add to m_sLine.

    /// Writes the entry of a data item, or reports why there is none; then false.
    bool BeginDataItem(const DictionaryItem& item);

    /// Starts the line: indentation by level, level number, data name or FILLER.
    void BeginLine(const CKTItemClauses& clauses, int level, const std::string& number);

    void AppendOccurs(const CKTItemClauses& clauses);
    void AppendUsage(DictionaryKind kind, const CKTItemClauses& clauses);

    /// Binds the item to its XML; nothing for one without an XML name.
    void AppendXmlClauses(const DictionaryItem& item);
    void AppendValues(const DictionaryItem& condition, const CKTItemClauses& clauses);

    /// Ends the entry with its period and lays it out.
    void EndLine();

    const std::vector<const CKTXMLElement*>& m_Passed;
    std::string m_sPrefix;
    bool m_bCountIn;
    std::string m_sLine;  ///< the entry being built
};

#endif
