#ifndef DORVEX_XMLGEN_MAPPINGWRITER_H
#define DORVEX_XMLGEN_MAPPINGWRITER_H

#include <string>

#include "xml/Markup.h"
#include "xmlgen/DictionaryWriter.h"

/// Writes a mapping file: an entry with the defaults for each named data item that is no
/// redefinition, those of a group before those of its members. What a mapping set says plays no
/// part. Reports nothing.
class CKTMappingWriter : public CKTDictionaryWriter {
public:
    /// `markup` is borrowed; `countIn` is written into each entry.
    CKTMappingWriter(CKTMarkup& markup, bool countIn) : m_Markup(markup), m_bCountIn(countIn) {}

    /// The root element for the program, an entry for an item.
    bool Begin(const DictionaryItem& item) override;

    /// The end of the root element; entries are complete when they begin.
    void End(const DictionaryItem& item) override;

private:
    void WriteEntry(const DictionaryItem& item, const CKTItemClauses& clauses);
    void WriteField(const char* name, const std::string& text);

    CKTMarkup& m_Markup;
    bool m_bCountIn;
};

#endif
