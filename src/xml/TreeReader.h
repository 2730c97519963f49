#ifndef DORVEX_XML_TREEREADER_H
#define DORVEX_XML_TREEREADER_H

#include <string>

#include <xercesc/parsers/XercesDOMParser.hpp>

#include "xml/EntityText.h"
#include "xml/TreeBuilder.h"

/// The parser library's parser with its document left out: it turns the events of the scanner into
/// the program's element tree at once, or into nothing. Memory does not grow with the length of a
/// document of which nothing is built. It may read any number of files, one after the other; error
/// handler, entity resolver and security manager are set from outside and borrowed.
class CKTTreeReader : public xercesc::XercesDOMParser {
public:
    /// `validator` may be null; it is taken over.
    explicit CKTTreeReader(xercesc::XMLValidator* validator);
    ~CKTTreeReader() override;

    /// What to do with what is read next. `root` (borrowed, null for nothing) receives the document
    /// element; `owner` is the parser that its elements name. In a schema, the blanks around names
    /// and locations are left off.
    void BuildBelow(CKTXMLElement* root, CKTDOMParser* owner, bool isSchema) {
        m_Builder.BuildBelow(root, owner, isSchema);
    }

    /// Reads `source` to its end with the settings of the parser, or up to the point where its
    /// entities become too large or the schemas behind it repeat their content too often, which is
    /// then reported as fatal error. Throws the library's exceptions. Returns whether it was read
    /// to the end.
    bool Read(const xercesc::InputSource& source);

    /// Leaves the reading pass, from a report in its midst: to be called below Read only, which
    /// then answers false. The exception that carries it ends there.
    [[noreturn]] static void Stop();

    // The scanner's events.
    void startDocument() override;
    void endDocument() override;
    void startElement(const xercesc::XMLElementDecl& declaration, unsigned uriId,
                      const XMLCh* prefix, const xercesc::RefVectorOf<xercesc::XMLAttr>& attributes,
                      XMLSize_t count, bool isEmpty, bool isRoot) override;
    void endElement(const xercesc::XMLElementDecl& declaration, unsigned uriId, bool isRoot,
                    const XMLCh* prefix) override;
    void docCharacters(const XMLCh* text, XMLSize_t length, bool isCData) override;
    void ignorableWhitespace(const XMLCh* text, XMLSize_t length, bool isCData) override;
    void docComment(const XMLCh* comment) override;
    void docPI(const XMLCh* target, const XMLCh* data) override;
    void startEntityReference(const xercesc::XMLEntityDecl& entity) override;
    void endEntityReference(const xercesc::XMLEntityDecl& entity) override;
    xercesc::InputSource* resolveEntity(xercesc::XMLResourceIdentifier* resource) override;
    void XMLDecl(const XMLCh* version, const XMLCh* encoding, const XMLCh* standalone,
                 const XMLCh* actualEncoding) override;

private:
    /// Refuses the document when its entities expand to too much.
    void RefuseUnless(bool isBounded);
    void NoteDocumentType();
    void CountAttributeText(const xercesc::RefVectorOf<xercesc::XMLAttr>& attributes,
                            XMLSize_t count);
    /// Refuses the document when a schema behind it repeats its content too often.
    void CheckContentModels();
    /// Reports `reason` as a fatal error at the current place and leaves the pass.
    [[noreturn]] void Refuse(const std::string& reason);

    CKTTreeBuilder m_Builder;
    CKTEntityText m_EntityText;
    unsigned m_nDepth = 0;
    bool m_bHasDocumentType = false;
    bool m_bDeclaresEntities = false;
    bool m_bSchemaLoaded = false;
};

#endif
