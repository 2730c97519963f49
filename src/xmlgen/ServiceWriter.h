#ifndef DORVEX_XMLGEN_SERVICEWRITER_H
#define DORVEX_XMLGEN_SERVICEWRITER_H

#include <string>

#include "xml/Markup.h"
#include "xmlgen/DictionaryWriter.h"

/// Writes the older description of a record as a service: a `parameter` for the record, a `field`
/// for each item below it, and a `mapping` that binds each to COBOL. Reports nothing.
class CKTServiceWriter : public CKTDictionaryWriter {
public:
    /// `markup` is borrowed; `dataDictFile` is the dictionary's name as the description gives it.
    CKTServiceWriter(CKTMarkup& markup, std::string dataDictFile)
        : m_Markup(markup), m_sDataDictFile(std::move(dataDictFile)) {}

    /// The root elements for the program, the two elements of a named item.
    bool Begin(const DictionaryItem& item) override;

    /// The ends of the root elements.
    void End(const DictionaryItem& item) override;

private:
    void WriteRoot(const DictionaryItem& program);

    CKTMarkup& m_Markup;
    std::string m_sDataDictFile;
};

#endif
