#include "xml/InputGuard.h"

#include <memory>
#include <optional>
#include <string>
#include <unordered_set>

#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/framework/XMLPScanToken.hpp>
#include <xercesc/sax/Locator.hpp>
#include <xercesc/sax2/Attributes.hpp>
#include <xercesc/sax2/DefaultHandler.hpp>
#include <xercesc/sax2/SAX2XMLReader.hpp>
#include <xercesc/sax2/XMLReaderFactory.hpp>
#include <xercesc/util/BinInputStream.hpp>
#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/SecurityManager.hpp>
#include <xercesc/util/XMLResourceIdentifier.hpp>
#include <xercesc/util/XMLString.hpp>
#include <xercesc/util/XMLUni.hpp>

#include "support/Text.h"
#include "xml/InputSources.h"
#include "xml/KTDOMErrorHandler.h"
#include "xml/PatternSize.h"

using xercesc::SAXParseException;

namespace {

constexpr int kMaxSchemaDepth = 20000;
constexpr XMLSize_t kMaxEntityText = 20'000'000;
constexpr std::uint64_t kMaxPatternParts = 5'000'000;

/// Watches one reading pass: nesting, the text that comes from entities, the patterns of a schema,
/// and a fatal error in a schema that may declare entities.
class CKTGuardHandler : public xercesc::DefaultHandler {
public:
    explicit CKTGuardHandler(bool schema) : m_bSchema(schema) {}

    void setDocumentLocator(const xercesc::Locator* locator) override { m_pLocator = locator; }
    void startDTD(const XMLCh*, const XMLCh*, const XMLCh*) override { m_bDocumentType = true; }
    void startElement(const XMLCh*, const XMLCh*, const XMLCh* name,
                      const xercesc::Attributes& attributes) override {
        m_bStarted = true;
        if (++m_nDepth == kMaxSchemaDepth + 1 && m_bSchema) {
            Refuse("elements are nested deeper than " + std::to_string(kMaxSchemaDepth) +
                   " levels");
        }
        if (m_bDocumentType) {
            for (XMLSize_t i = 0; i < attributes.getLength(); ++i) {
                CountText(xercesc::XMLString::stringLen(attributes.getValue(i)));
            }
        }
        if (m_bSchema) {
            CountPattern(name, attributes);
        }
    }
    void endElement(const XMLCh*, const XMLCh*, const XMLCh*) override { --m_nDepth; }
    void startEntity(const XMLCh*) override { ++m_nOpenEntities; }
    void endEntity(const XMLCh*) override { --m_nOpenEntities; }
    void characters(const XMLCh*, const XMLSize_t length) override {
        if (m_nOpenEntities > 0) {
            CountText(length);
        }
    }
    void fatalError(const SAXParseException& e) override {
        if (m_bDocumentType && m_bSchema) {
            m_Refusal.emplace(e);
        }
    }

    [[nodiscard]] const std::optional<SAXParseException>& refusal() const { return m_Refusal; }

    /// Nothing is left to be found: the input is refused, or a document that declares no entities.
    [[nodiscard]] bool isDone() const {
        return m_Refusal || (m_bStarted && !m_bSchema && !m_bDocumentType);
    }

private:
    void CountText(XMLSize_t length) {
        m_nEntityText += length;
        if (m_nEntityText > kMaxEntityText) {
            Refuse("entities expand to more than " + std::to_string(kMaxEntityText) +
                   " characters");
        }
    }
    void CountPattern(std::u16string_view name, const xercesc::Attributes& attributes) {
        const XMLCh* pattern = attributes.getValue(u"value");
        if (pattern == nullptr || (name != u"pattern" && !name.ends_with(u":pattern"))) {
            return;
        }
        const PatternSize size = MeasurePattern(pattern);
        m_nPatternParts += size.parts;
        if (size.depth > kMaxSchemaDepth) {
            Refuse("a pattern is nested deeper than " + std::to_string(kMaxSchemaDepth) +
                   " levels");
        } else if (m_nPatternParts > kMaxPatternParts) {
            Refuse("patterns repeat to more than " + std::to_string(kMaxPatternParts) + " parts");
        }
    }
    void Refuse(const std::string& reason) {
        m_Refusal.emplace(WidenText(reason).c_str(), *m_pLocator);
    }

    bool m_bSchema;
    const xercesc::Locator* m_pLocator = nullptr;
    std::optional<SAXParseException> m_Refusal;
    int m_nDepth = 0;
    int m_nOpenEntities = 0;
    XMLSize_t m_nEntityText = 0;
    std::uint64_t m_nPatternParts = 0;
    bool m_bDocumentType = false;
    bool m_bStarted = false;
};

void ReadThrough(const xercesc::InputSource& source, CKTGuardHandler& handler) {
    const std::unique_ptr<xercesc::SAX2XMLReader> reader(
        xercesc::XMLReaderFactory::createXMLReader());
    xercesc::SecurityManager limits;
    limits.setEntityExpansionLimit(kMaxEntityExpansions);
    reader->setProperty(xercesc::XMLUni::fgXercesSecurityManager, &limits);
    reader->setFeature(xercesc::XMLUni::fgSAX2CoreNameSpaces, false);
    reader->setFeature(xercesc::XMLUni::fgSAX2CoreValidation, false);
    reader->setFeature(xercesc::XMLUni::fgXercesSchema, false);
    reader->setContentHandler(&handler);
    reader->setErrorHandler(&handler);
    reader->setLexicalHandler(&handler);
    xercesc::XMLPScanToken token;
    bool more = reader->parseFirst(source, token);
    while (more && !handler.isDone()) {
        more = reader->parseNext(token);
    }
}

/// The schema files that were read through in this process and found acceptable.
std::unordered_set<std::u16string>& AcceptedFiles() {
    static std::unordered_set<std::u16string> files;
    return files;
}

}  // namespace

bool CKTInputGuard::IsAcceptableSchema(const xercesc::InputSource& source) {
    const std::u16string name = source.getSystemId();
    if (AcceptedFiles().contains(name)) {
        return true;
    }
    const bool acceptable = IsAcceptable(source, true);
    if (acceptable) {
        AcceptedFiles().insert(name);
    }
    return acceptable;
}

bool CKTInputGuard::IsAcceptableDocument(const xercesc::InputSource& source) {
    return IsAcceptable(source, false);
}

bool CKTInputGuard::IsAcceptable(const xercesc::InputSource& source, bool schema) {
    CKTGuardHandler handler(schema);
    try {
        const std::unique_ptr<xercesc::BinInputStream> probe(source.makeStream());
        if (probe != nullptr) {
            ReadThrough(source, handler);
        }
    } catch (const xercesc::XMLException&) {
        return true;  // The library meets the same failure and reports it in its own words.
    } catch (const xercesc::OutOfMemoryException&) {
        return true;
    }
    if (handler.refusal()) {
        m_Handler.fatalError(*handler.refusal());
        m_Handler.setMuted(true);
        return false;
    }
    return true;
}

xercesc::InputSource* CKTInputGuard::resolveEntity(xercesc::XMLResourceIdentifier* resource) {
    using Resource = xercesc::XMLResourceIdentifier;
    const Resource::ResourceIdentifierType type = resource->getResourceIdentifierType();
    const bool schema = type == Resource::SchemaGrammar || type == Resource::SchemaImport ||
                        type == Resource::SchemaInclude || type == Resource::SchemaRedefine;
    if (!schema || resource->getSystemId() == nullptr) {
        return nullptr;
    }
    try {
        if (IsAcceptableSchema(*MakeInputSource(resource->getBaseURI(), resource->getSystemId()))) {
            return nullptr;
        }
    } catch (const xercesc::XMLException&) {
        return nullptr;
    }
    static constexpr XMLByte kNothing = ' ';
    return std::make_unique<xercesc::MemBufInputSource>(&kNothing, 1, resource->getSystemId())
        .release();
}
