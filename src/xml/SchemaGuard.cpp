#include "xml/SchemaGuard.h"

#include <memory>
#include <optional>
#include <string>
#include <unordered_set>

#include <xercesc/framework/LocalFileInputSource.hpp>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/framework/URLInputSource.hpp>
#include <xercesc/framework/XMLPScanToken.hpp>
#include <xercesc/sax/Locator.hpp>
#include <xercesc/sax2/DefaultHandler.hpp>
#include <xercesc/sax2/SAX2XMLReader.hpp>
#include <xercesc/sax2/XMLReaderFactory.hpp>
#include <xercesc/util/BinInputStream.hpp>
#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/SecurityManager.hpp>
#include <xercesc/util/XMLResourceIdentifier.hpp>
#include <xercesc/util/XMLUni.hpp>

#include "support/Text.h"
#include "xml/KTDOMErrorHandler.h"

using xercesc::SAXParseException;

namespace {

constexpr int kMaxSchemaDepth = 20000;

/// Watches one reading pass: nesting, and a fatal error in a document that may declare entities.
class CKTGuardHandler : public xercesc::DefaultHandler {
public:
    void setDocumentLocator(const xercesc::Locator* locator) override { m_pLocator = locator; }
    void startDTD(const XMLCh*, const XMLCh*, const XMLCh*) override { m_bDocumentType = true; }
    void startElement(const XMLCh*, const XMLCh*, const XMLCh*,
                      const xercesc::Attributes&) override {
        if (++m_nDepth == kMaxSchemaDepth + 1) {
            const std::u16string text = WidenText(
                ("elements are nested deeper than " + std::to_string(kMaxSchemaDepth) + " levels")
                    .c_str());
            m_Refusal.emplace(text.c_str(), *m_pLocator);
        }
    }
    void endElement(const XMLCh*, const XMLCh*, const XMLCh*) override { --m_nDepth; }
    void fatalError(const SAXParseException& e) override {
        if (m_bDocumentType) {
            m_Refusal.emplace(e);
        }
    }

    [[nodiscard]] const std::optional<SAXParseException>& refusal() const { return m_Refusal; }

private:
    const xercesc::Locator* m_pLocator = nullptr;
    std::optional<SAXParseException> m_Refusal;
    int m_nDepth = 0;
    bool m_bDocumentType = false;
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
    while (more && !handler.refusal()) {
        more = reader->parseNext(token);
    }
}

std::unique_ptr<xercesc::InputSource> SourceOf(const xercesc::XMLResourceIdentifier& resource) {
    xercesc::XMLURL url;
    if (!url.setURL(resource.getBaseURI(), resource.getSystemId(), url) || url.isRelative()) {
        return std::make_unique<xercesc::LocalFileInputSource>(resource.getBaseURI(),
                                                               resource.getSystemId());
    }
    return std::make_unique<xercesc::URLInputSource>(url);
}

/// The schema files that were read through in this process and found acceptable.
std::unordered_set<std::u16string>& AcceptedFiles() {
    static std::unordered_set<std::u16string> files;
    return files;
}

}  // namespace

bool CKTSchemaGuard::IsAcceptable(const xercesc::InputSource& source) {
    const std::u16string name = source.getSystemId();
    if (AcceptedFiles().contains(name)) {
        return true;
    }
    CKTGuardHandler handler;
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
    AcceptedFiles().insert(name);
    return true;
}

xercesc::InputSource* CKTSchemaGuard::resolveEntity(xercesc::XMLResourceIdentifier* resource) {
    using Resource = xercesc::XMLResourceIdentifier;
    const Resource::ResourceIdentifierType type = resource->getResourceIdentifierType();
    const bool schema = type == Resource::SchemaGrammar || type == Resource::SchemaImport ||
                        type == Resource::SchemaInclude || type == Resource::SchemaRedefine;
    if (!schema || resource->getSystemId() == nullptr) {
        return nullptr;
    }
    try {
        if (IsAcceptable(*SourceOf(*resource))) {
            return nullptr;
        }
    } catch (const xercesc::XMLException&) {
        return nullptr;
    }
    static constexpr XMLByte kNothing = ' ';
    return std::make_unique<xercesc::MemBufInputSource>(&kNothing, 1, resource->getSystemId())
        .release();
}
