// From the scanner's events to what the builder makes of them. Every event that would build a node
// of the library is overridden, so that no document comes about. CDATA sections, comments and the
// like end a run of characters and leave nothing. On the way, the text of entities is counted and
// the content models of schemas are measured, since the library bounds neither; a refusal is a
// fatal error and leaves the pass.

#include "xml/TreeReader.h"

#include <xercesc/framework/XMLAttr.hpp>
#include <xercesc/framework/XMLElementDecl.hpp>
#include <xercesc/internal/XMLScanner.hpp>
#include <xercesc/sax/ErrorHandler.hpp>
#include <xercesc/sax/SAXParseException.hpp>
#include <xercesc/util/XMLResourceIdentifier.hpp>
#include <xercesc/util/XMLString.hpp>
#include <xercesc/util/XMLUni.hpp>
#include <xercesc/validators/DTD/DTDGrammar.hpp>
#include <xercesc/validators/common/GrammarResolver.hpp>
#include <xercesc/validators/schema/SchemaGrammar.hpp>

#include "support/Limits.h"
#include "support/Text.h"
#include "xml/Complaints.h"
#include "xml/ContentModels.h"

namespace {

/// The library offers no way to leave a reading pass but an exception; it ends in Read.
struct PassStopped {};

}  // namespace

CKTTreeReader::CKTTreeReader(xercesc::XMLValidator* validator)
    : xercesc::XercesDOMParser(validator) {}

CKTTreeReader::~CKTTreeReader() = default;

bool CKTTreeReader::Read(const xercesc::InputSource& source) {
    // An earlier pass may have been left midway.
    m_nDepth = 0;
    m_EntityText = {};
    m_bSchemaLoaded = false;
    // Declarations of a document type become no nodes; the scanner keeps what it needs of them. A
    // load of a grammar sets the handler anew.
    getScanner()->setDocTypeHandler(nullptr);
    try {
        parse(source);
    } catch (const PassStopped&) {
        return false;
    }
    return true;
}

void CKTTreeReader::Stop() {
    throw PassStopped{};
}

void CKTTreeReader::Refuse(const std::string& reason) {
    // Through the handler, so that the line has its place in the file and is counted.
    if (xercesc::ErrorHandler* handler = getErrorHandler()) {
        handler->fatalError(
            xercesc::SAXParseException(WidenText(reason).c_str(), *getScanner()->getLocator()));
    }
    Stop();
}

// The library's parser would make a document here.
void CKTTreeReader::startDocument() {}
void CKTTreeReader::endDocument() {}

void CKTTreeReader::startElement(const xercesc::XMLElementDecl& declaration, unsigned uriId,
                                 const XMLCh* prefix,
                                 const xercesc::RefVectorOf<xercesc::XMLAttr>& attributes,
                                 XMLSize_t count, bool isEmpty, bool isRoot) {
    if (isRoot) {
        NoteDocumentType();
    }
    ++m_nDepth;
    // A schema that this element names is loaded by now, and no content has been checked with it.
    if (m_bSchemaLoaded) {
        m_bSchemaLoaded = false;
        CheckContentModels();
    }
    if (m_bHasDocumentType) {
        CountAttributeText(attributes, count);
    }
    // The prefix is the event's: elements with different ones may share a declaration.
    const bool hasPrefix = uriId != getScanner()->getEmptyNamespaceId() && prefix != nullptr;
    m_Builder.BeginElement(hasPrefix ? prefix : u"", declaration.getBaseName(), attributes, count);
    // The scanner sends no end of its own for such an element.
    if (isEmpty) {
        endElement(declaration, uriId, isRoot, prefix);
    }
}

void CKTTreeReader::endElement(const xercesc::XMLElementDecl& /*declaration*/, unsigned /*uriId*/,
                               bool /*isRoot*/, const XMLCh* /*prefix*/) {
    if (m_nDepth == 0) {
        return;
    }
    --m_nDepth;
    m_Builder.EndElement();
}

void CKTTreeReader::docCharacters(const XMLCh* text, XMLSize_t length, bool isCData) {
    ignorableWhitespace(text, length, isCData);
    if (m_nDepth == 0) {
        return;
    }
    // Its text is lost, which is wanted.
    if (isCData) {
        m_Builder.EndText();
    } else {
        m_Builder.AddText(text, length);
    }
}

// White space that validation finds between elements: counted, and no text.
void CKTTreeReader::ignorableWhitespace(const XMLCh* /*text*/, XMLSize_t length, bool /*isCData*/) {
    RefuseUnless(m_EntityText.TakeText(length));
}

void CKTTreeReader::docComment(const XMLCh* /*comment*/) {
    m_Builder.EndText();
}

void CKTTreeReader::docPI(const XMLCh* /*target*/, const XMLCh* /*data*/) {
    m_Builder.EndText();
}

void CKTTreeReader::startEntityReference(const xercesc::XMLEntityDecl& /*entity*/) {
    m_EntityText.Open();
}

void CKTTreeReader::endEntityReference(const xercesc::XMLEntityDecl& /*entity*/) {
    m_EntityText.Close();
}

void CKTTreeReader::XMLDecl(const XMLCh* /*version*/, const XMLCh* /*encoding*/,
                            const XMLCh* /*standalone*/, const XMLCh* /*actualEncoding*/) {}

xercesc::InputSource* CKTTreeReader::resolveEntity(xercesc::XMLResourceIdentifier* resource) {
    m_bSchemaLoaded = m_bSchemaLoaded || resource->getResourceIdentifierType() ==
                                             xercesc::XMLResourceIdentifier::SchemaGrammar;
    return XercesDOMParser::resolveEntity(resource);
}

void CKTTreeReader::RefuseUnless(bool isBounded) {
    if (!isBounded) {
        Refuse(MessageText<XmlMessage::LongEntities>(kMaxEntityText));
    }
}

/// What the document type, if any, may have put into the attributes. It stands before the first
/// element, and the name of that one is among its elements even if it declares nothing.
void CKTTreeReader::NoteDocumentType() {
    const auto* dtd = dynamic_cast<const xercesc::DTDGrammar*>(
        getGrammarResolver()->getGrammar(xercesc::XMLUni::fgDTDEntityString));
    m_bHasDocumentType = dtd != nullptr && dtd->getElemEnumerator().hasMoreElements();
    m_bDeclaresEntities = dtd != nullptr && dtd->getEntityEnumerator().hasMoreElements();
}

/// Attributes do not tell how much of their text comes from entities: once there are any, all of it
/// may. Defaults are repeated text as well.
void CKTTreeReader::CountAttributeText(const xercesc::RefVectorOf<xercesc::XMLAttr>& attributes,
                                       XMLSize_t count) {
    for (XMLSize_t i = 0; i < count; ++i) {
        const xercesc::XMLAttr& attribute = *attributes.elementAt(i);
        if (m_bDeclaresEntities || !attribute.getSpecified()) {
            RefuseUnless(m_EntityText.Take(xercesc::XMLString::stringLen(attribute.getValue())));
        }
    }
}

/// Measures every schema that is loaded, since one that is named brings others with it.
void CKTTreeReader::CheckContentModels() {
    xercesc::RefHashTableOfEnumerator<xercesc::Grammar> grammars =
        getGrammarResolver()->getGrammarEnumerator();
    while (grammars.hasMoreElements()) {
        const auto* grammar = dynamic_cast<const xercesc::SchemaGrammar*>(&grammars.nextElement());
        std::u16string type;
        if (grammar == nullptr || AreContentModelsBounded(*grammar, type)) {
            continue;
        }
        // The library's own name for a type that has none.
        Refuse(type.starts_with(u"__Anon")
                   ? MessageText<XmlMessage::RepeatedGroup>(kMaxGroupRepetitions)
                   : MessageText<XmlMessage::RepeatedGroupOfType>(NarrowMessage(type),
                                                                  kMaxGroupRepetitions));
    }
}
