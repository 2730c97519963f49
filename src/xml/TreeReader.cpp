// From the scanner's events to an element tree. The shape of the tree is that of a library document
// that was copied: attributes in the order of their names, one text per run of characters between
// two other nodes, of which the last one stays; CDATA sections, comments and the like end a run and
// leave nothing. Every event that would build a node is overridden, so that no document comes
// about. There is no recursion here: the place in the tree is a pointer that goes down and up. On
// the way, the text of entities is counted and the content models of schemas are measured, since
// the library bounds neither; a refusal is a fatal error and leaves the pass.

#include "xml/TreeReader.h"

#include <algorithm>
#include <array>
#include <optional>
#include <type_traits>
#include <vector>

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
#include "xml/KTXMLElement.h"

namespace {

// Texts of the library are taken for u16string and back without a copy.
static_assert(std::is_same_v<XMLCh, char16_t>);

/// The library offers no way to leave a reading pass but an exception; it ends in Read.
struct PassStopped {};

/// Names, lists of names and locations, around which blanks do not count in a schema.
constexpr std::array<std::string_view, 8> kTrimmedAttributes = {
    "name",        "ref",       "type",          "base", "substitutionGroup",
    "memberTypes", "namespace", "schemaLocation"};

std::string Trimmed(const std::string& value) {
    constexpr std::string_view kBlanks = " \t\r\n";
    const std::size_t first = value.find_first_not_of(kBlanks);
    return first == std::string::npos
               ? std::string()
               : value.substr(first, value.find_last_not_of(kBlanks) - first + 1);
}

}  // namespace

CKTTreeReader::CKTTreeReader(xercesc::XMLValidator* validator)
    : xercesc::XercesDOMParser(validator) {}

CKTTreeReader::~CKTTreeReader() = default;

void CKTTreeReader::BuildBelow(CKTXMLElement* root, CKTDOMParser* owner, bool isSchema) {
    m_pCurrent = root;
    m_pOwner = owner;
    m_bSchema = isSchema;
}

bool CKTTreeReader::Read(const xercesc::InputSource& source) {
    // An earlier pass may have been left midway.
    m_nDepth = 0;
    m_nOpenEntities = 0;
    m_nEntityText = 0;
    m_bInText = false;
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
    if (m_pCurrent != nullptr) {
        EndText();
        m_sQualifiedName.clear();
        // The prefix is the event's: elements with different ones may share a declaration.
        if (uriId != getScanner()->getEmptyNamespaceId() && prefix != nullptr && *prefix != 0) {
            m_sQualifiedName.append(prefix).push_back(u':');
        }
        m_sQualifiedName += declaration.getBaseName();
        auto element = std::make_unique<CKTXMLElement>(*NarrowName(m_sQualifiedName));
        element->setParent(m_pCurrent);
        element->setParser(m_pOwner);
        AddAttributes(*element, attributes, count);
        m_pCurrent = m_pCurrent->addChildElement(std::move(element));
    }
    // The scanner sends no end of its own for such an element.
    if (isEmpty) {
        endElement(declaration, uriId, isRoot, prefix);
    }
}

void CKTTreeReader::AddAttributes(CKTXMLElement& element,
                                  const xercesc::RefVectorOf<xercesc::XMLAttr>& attributes,
                                  XMLSize_t count) {
    m_Attributes.clear();
    for (XMLSize_t i = 0; i < count; ++i) {
        m_Attributes.push_back(attributes.elementAt(i));
    }
    std::stable_sort(m_Attributes.begin(), m_Attributes.end(),
                     [](const xercesc::XMLAttr* a, const xercesc::XMLAttr* b) {
                         return std::u16string_view(a->getQName()) < b->getQName();
                     });
    element.reserveAttributes(count);
    for (const xercesc::XMLAttr* source : m_Attributes) {
        const std::string* name = NarrowName(source->getQName());
        std::string value = NarrowText(source->getValue());
        if (m_bSchema && std::find(kTrimmedAttributes.begin(), kTrimmedAttributes.end(), *name) !=
                             kTrimmedAttributes.end()) {
            value = Trimmed(value);
        }
        auto attribute = std::make_unique<CKTXMLAttribute>(*name, std::move(value));
        attribute->setParent(&element);
        element.addAttribute(std::move(attribute));
    }
}

void CKTTreeReader::endElement(const xercesc::XMLElementDecl& /*declaration*/, unsigned /*uriId*/,
                               bool /*isRoot*/, const XMLCh* /*prefix*/) {
    if (m_nDepth == 0) {
        return;
    }
    --m_nDepth;
    if (m_pCurrent != nullptr) {
        EndText();
        m_pCurrent = m_pCurrent->getParent();
    }
}

void CKTTreeReader::docCharacters(const XMLCh* text, XMLSize_t length, bool isCData) {
    if (m_nOpenEntities > 0) {
        CountEntityText(length);
    }
    if (m_pCurrent == nullptr || m_nDepth == 0) {
        return;
    }
    // Its text is lost, which is wanted.
    if (isCData) {
        EndText();
    } else {
        m_bInText = true;
        m_sText.append(text, length);
    }
}

// White space that validation finds between elements: counted, and no text.
void CKTTreeReader::ignorableWhitespace(const XMLCh* /*text*/, XMLSize_t length, bool /*isCData*/) {
    if (m_nOpenEntities > 0) {
        CountEntityText(length);
    }
}

void CKTTreeReader::docComment(const XMLCh* /*comment*/) {
    EndText();
}

void CKTTreeReader::docPI(const XMLCh* /*target*/, const XMLCh* /*data*/) {
    EndText();
}

void CKTTreeReader::startEntityReference(const xercesc::XMLEntityDecl& /*entity*/) {
    ++m_nOpenEntities;
}

void CKTTreeReader::endEntityReference(const xercesc::XMLEntityDecl& /*entity*/) {
    --m_nOpenEntities;
}

void CKTTreeReader::XMLDecl(const XMLCh* /*version*/, const XMLCh* /*encoding*/,
                            const XMLCh* /*standalone*/, const XMLCh* /*actualEncoding*/) {}

xercesc::InputSource* CKTTreeReader::resolveEntity(xercesc::XMLResourceIdentifier* resource) {
    m_bSchemaLoaded = m_bSchemaLoaded || resource->getResourceIdentifierType() ==
                                             xercesc::XMLResourceIdentifier::SchemaGrammar;
    return XercesDOMParser::resolveEntity(resource);
}

/// Names repeat, so each is converted once; a failed conversion is reported each time.
const std::string* CKTTreeReader::NarrowName(std::u16string_view name) {
    const auto known = m_Names.find(name);
    if (known != m_Names.end()) {
        return known->second;
    }
    const std::string* narrow = CKTXMLNode::InternName(NarrowText(name));
    // One that failed is empty.
    if (!narrow->empty()) {
        m_Names.emplace(name, narrow);
    }
    return narrow;
}

void CKTTreeReader::EndText() {
    if (m_bInText) {
        m_bInText = false;
        m_pCurrent->setValue(NarrowText(m_sText));
        m_sText.clear();
    }
}

void CKTTreeReader::CountEntityText(XMLSize_t length) {
    m_nEntityText += length;
    if (m_nEntityText > kMaxEntityText) {
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
            CountEntityText(xercesc::XMLString::stringLen(attribute.getValue()));
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
