#include "xml/KTDOMParser.h"

#include <iostream>
#include <new>
#include <vector>

#include <xercesc/dom/DOMException.hpp>
#include <xercesc/dom/DOMNamedNodeMap.hpp>
#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLUni.hpp>
#include <xercesc/validators/common/Grammar.hpp>

#include "support/Console.h"
#include "support/Text.h"
#include "xml/InputSources.h"

using xercesc::DOMNode;
using xercesc::XercesDOMParser;

namespace {

void ReportException(const char* prefix, const xercesc::XMLException& e) {
    WriteLine(std::cerr, {prefix, NarrowMessage(e.getMessage())});
}

}  // namespace

CKTDOMParser::CKTDOMParser() : CKTDOMParser(nullptr) {}

CKTDOMParser::CKTDOMParser(std::unique_ptr<xercesc::XMLValidator> validator) {
    InitializePlatform();
    m_pDOMParser = std::make_unique<XercesDOMParser>(validator.release());
    InitializeParser();
}

CKTDOMParser::~CKTDOMParser() {
    m_pFormatter.reset();
    m_pFormatTarget.reset();
    m_pDOMParser.reset();
    m_pInputGuard.reset();
    m_pErrorHandler.reset();
    try {
        xercesc::XMLPlatformUtils::Terminate();
    } catch (const xercesc::XMLException& e) {
        ReportException("Error during Xerces-c termination. Exception message: ", e);
    }
}

void CKTDOMParser::InitializePlatform() {
    try {
        xercesc::XMLPlatformUtils::Initialize();
    } catch (const xercesc::XMLException& e) {
        ReportException("Error during Xerces-c Initialization. Exception message: ", e);
    }
}

void CKTDOMParser::InitializeParser() {
    m_pDOMParser->setDoNamespaces(true);
    m_pDOMParser->setDoSchema(true);
    m_pDOMParser->setIncludeIgnorableWhitespace(false);
    m_pDOMParser->setCreateEntityReferenceNodes(false);
    m_Limits.setEntityExpansionLimit(kMaxEntityExpansions);
    m_pDOMParser->setSecurityManager(&m_Limits);
    m_bParsed = false;
    try {
        m_pErrorHandler = std::make_unique<CKTDOMErrorHandler>();
    } catch (const std::bad_alloc&) {
        WriteLine(std::cerr, {"Failed to create KTDOMErrorHandler"});
        return;
    }
    m_pDOMParser->setErrorHandler(m_pErrorHandler.get());
    setVerboseError(true);
    m_pInputGuard = std::make_unique<CKTInputGuard>(*m_pErrorHandler);
    m_pDOMParser->setXMLEntityResolver(m_pInputGuard.get());
}

bool CKTDOMParser::ParseFile(const std::string& fileName, FILE_TYPE type, bool validate) {
    if (m_pErrorHandler != nullptr) {
        m_pErrorHandler->setMuted(false);
    }
    if (type == XML_SCHEMA) {
        std::cout << "\n";
        WriteLine(std::cout, {"Validating ", fileName, " for well-formedness."});
    }
    const std::unique_ptr<xercesc::InputSource> source = OpenSource(fileName);
    if (source == nullptr) {
        m_bParsed = false;
        return false;
    }
    switch (type) {
        case XML_DOCUMENT:
            m_pDOMParser->setDoSchema(validate);
            m_pDOMParser->setValidationScheme(validate ? XercesDOMParser::Val_Always
                                                       : XercesDOMParser::Val_Never);
            break;
        case XML_SCHEMA:
            m_pDOMParser->setValidationScheme(XercesDOMParser::Val_Auto);
            if (!LoadSchema(*source)) {
                return false;
            }
            break;
        default:
            m_pDOMParser->setValidationScheme(XercesDOMParser::Val_Always);
            break;
    }
    if (type != XML_SCHEMA && m_pInputGuard != nullptr &&
        !m_pInputGuard->IsAcceptableDocument(*source)) {
        m_bParsed = false;
        return false;
    }
    return Parse(*source);
}

/// Makes the input source of a file. One that cannot be read as a file is reported here in the
/// library's words: on its way to them the library loses memory, and a pipe would hold it up.
std::unique_ptr<xercesc::InputSource> CKTDOMParser::OpenSource(const std::string& fileName) {
    std::u16string fault = u"unable to read data from file";
    try {
        auto source = MakeInputSource(nullptr, WidenText(fileName).c_str());
        if (!IsUnreadableFile(*source)) {
            return source;
        }
    } catch (const xercesc::XMLException& e) {
        fault = e.getMessage();
    }
    if (m_pErrorHandler != nullptr) {
        m_pErrorHandler->fatalError(
            xercesc::SAXParseException(fault.c_str(), nullptr, nullptr, 0, 0));
    }
    return nullptr;
}

bool CKTDOMParser::LoadSchema(const xercesc::InputSource& source) {
    try {
        if (m_pInputGuard == nullptr || m_pInputGuard->IsAcceptableSchema(source)) {
            m_pDOMParser->loadGrammar(source, xercesc::Grammar::SchemaGrammarType, true);
            m_pDOMParser->useCachedGrammarInParse(true);
        }
    } catch (const xercesc::XMLException& e) {
        ReportException("Error : Unable to load schema. Exception Message: ", e);
    } catch (const xercesc::DOMException& e) {
        WriteLine(std::cerr,
                  {"Error : Unable to load schema. DOMException code: ", std::to_string(e.code)});
    } catch (const xercesc::OutOfMemoryException&) {
        WriteLine(std::cerr, {"Error : Unable to load schema. Out of memory"});
    }
    return m_pErrorHandler == nullptr || (m_nErrorCount == 0 && m_nWarningCount == 0);
}

bool CKTDOMParser::Parse(const xercesc::InputSource& source) {
    bool usable = false;
    try {
        // An earlier document stays in memory until its pool is emptied.
        m_pDOMParser->resetDocumentPool();
        m_pDOMParser->parse(source);
        usable = m_pDOMParser->getErrorCount() < 1;
    } catch (const xercesc::XMLException& e) {
        ReportException("An error occured during parsing. Exception Message: ", e);
        ++m_nErrorCount;
        usable = true;
    } catch (const xercesc::DOMException& e) {
        WriteLine(std::cerr, {"A DOM error occured during parsing. DOMException code: ",
                              std::to_string(e.code)});
        ++m_nErrorCount;
    } catch (...) {
        WriteLine(std::cerr, {"An error occured during parsing"});
        ++m_nErrorCount;
    }
    m_bParsed = usable;
    return usable;
}

std::unique_ptr<CKTXMLElement> CKTDOMParser::getXMLDocument() {
    if (!m_bParsed || m_pDOMParser->getDocument() == nullptr) {
        return nullptr;
    }
    try {
        m_pFormatter.reset();
        m_pFormatTarget = std::make_unique<CKTDOMFormatTarget>();
        m_pFormatter = std::make_unique<xercesc::XMLFormatter>(
            xercesc::XMLUni::fgUTF8EncodingString, m_pFormatTarget.get(),
            xercesc::XMLFormatter::NoEscapes, xercesc::XMLFormatter::UnRep_CharRef);
        auto root = std::make_unique<CKTXMLElement>();
        root->setParser(this);
        getXMLElement(*m_pDOMParser->getDocument(), root.get());
        return root;
    } catch (const xercesc::XMLException& e) {
        ReportException("An error occurred during creation of output transcoder. Msg is: ", e);
        return nullptr;
    }
}

// Walks the library's document with a stack of its own, because it may be nested without bound. The
// way up is remembered: the library finds a parent only by casts at run time.
void CKTDOMParser::getXMLElement(const DOMNode& node, CKTXMLElement* parent) {
    struct Place {
        const DOMNode* node;
        CKTXMLElement* parent;
    };
    std::vector<Place> pending = {{&node, parent}};
    while (!pending.empty()) {
        Place& place = pending.back();
        const DOMNode* at = place.node;
        CKTXMLElement* above = place.parent;
        place.node = at == &node ? nullptr : at->getNextSibling();
        if (place.node == nullptr) {
            pending.pop_back();
        }
        CKTXMLElement* element = copyNode(*at, above);
        if (element != nullptr && at->getFirstChild() != nullptr) {
            pending.push_back({at->getFirstChild(), element});
        }
    }
}

/// Copies one node without what is below it. Returns the element that its children belong to, null
/// for a node whose subtree is left out.
CKTXMLElement* CKTDOMParser::copyNode(const DOMNode& node, CKTXMLElement* parent) {
    switch (node.getNodeType()) {
        case DOMNode::ELEMENT_NODE:
            return copyElement(node, parent);
        case DOMNode::TEXT_NODE:
            if (parent != nullptr) {
                parent->setValue(NarrowText(node.getNodeValue()));
            }
            return nullptr;
        case DOMNode::DOCUMENT_NODE:
            return parent;
        case DOMNode::CDATA_SECTION_NODE:
        case DOMNode::ENTITY_REFERENCE_NODE:
        case DOMNode::ENTITY_NODE:
        case DOMNode::PROCESSING_INSTRUCTION_NODE:
        case DOMNode::COMMENT_NODE:
        case DOMNode::DOCUMENT_TYPE_NODE:
            return nullptr;
        default:
            WriteLine(std::cerr, {"Unrecognized node type = ", std::to_string(node.getNodeType())});
            return nullptr;
    }
}

CKTXMLElement* CKTDOMParser::copyElement(const DOMNode& node, CKTXMLElement* parent) {
    auto element = std::make_unique<CKTXMLElement>(NarrowText(node.getNodeName()));
    element->setParent(parent);
    element->setParser(this);
    const xercesc::DOMNamedNodeMap* attributes = node.getAttributes();
    for (XMLSize_t i = 0; i < attributes->getLength(); ++i) {
        const DOMNode* source = attributes->item(i);
        auto attribute = std::make_unique<CKTXMLAttribute>(NarrowText(source->getNodeName()),
                                                           NarrowText(source->getNodeValue()));
        attribute->setParent(element.get());
        element->addAttribute(std::move(attribute));
    }
    return parent->addChildElement(std::move(element));
}

void CKTDOMParser::ReleaseDocument() {
    m_pDOMParser->resetDocumentPool();
    m_pDOMParser->resetCachedGrammarPool();
    m_bParsed = false;
}

int CKTDOMParser::getErrorCount() const {
    return m_pErrorHandler == nullptr ? 1 : m_nErrorCount;
}

int CKTDOMParser::getWarningCount() const {
    return m_pErrorHandler == nullptr ? 1 : m_nWarningCount;
}

void CKTDOMParser::setVerboseError(bool verbose) {
    if (m_pErrorHandler != nullptr) {
        m_pErrorHandler->setVerboseError(verbose);
    }
}

void CKTDOMParser::DisplayErrorSummary() {
    if (m_pErrorHandler != nullptr) {
        m_pErrorHandler->DisplayErrorMsgSummary();
    }
}

void CKTDOMParser::ResetErrors() {
    if (m_pErrorHandler != nullptr) {
        m_pErrorHandler->resetErrors();
    }
}
