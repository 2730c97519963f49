// Reads each schema once before the library works on it, with a plain reader of the library that
// validates nothing and follows no schema. The pass goes step by step, so that it ends at the first
// refusal; it costs time in the length of the file and keeps only counts. Everything that the
// library or the pass asks for is opened here. What is wrong with a schema otherwise is left to its
// load, which says so in the library's words.

#include "xml/InputGuard.h"

#include <memory>
#include <optional>
#include <string>

#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/framework/XMLPScanToken.hpp>
#include <xercesc/parsers/SAX2XMLReaderImpl.hpp>
#include <xercesc/sax/Locator.hpp>
#include <xercesc/sax2/Attributes.hpp>
#include <xercesc/sax2/DefaultHandler.hpp>
#include <xercesc/util/BinInputStream.hpp>
#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/SecurityManager.hpp>
#include <xercesc/util/XMLResourceIdentifier.hpp>
#include <xercesc/util/XMLString.hpp>
#include <xercesc/util/XMLUni.hpp>

#include "support/Limits.h"
#include "support/Text.h"
#include "xml/Complaints.h"
#include "xml/EntityText.h"
#include "xml/InputSources.h"
#include "xml/KTDOMErrorHandler.h"
#include "xml/Locations.h"
#include "xml/Paths.h"
#include "xml/PatternSize.h"

using xercesc::SAXParseException;
using xercesc::XMLUni;

namespace {

/// Watches one reading pass of a schema: nesting, the text that comes from entities, the patterns,
/// and a fatal error behind a document type.
class CKTGuardHandler : public xercesc::DefaultHandler {
public:
    void setDocumentLocator(const xercesc::Locator* locator) override { m_pLocator = locator; }
    void startDTD(const XMLCh*, const XMLCh*, const XMLCh* systemId) override {
        m_bDocumentType = true;
        if (systemId != nullptr) {
            m_ExternalSubset = systemId;
        }
    }
    void internalEntityDecl(const XMLCh*, const XMLCh*) override { m_bDeclaresText = true; }
    void externalEntityDecl(const XMLCh*, const XMLCh*, const XMLCh*) override {
        m_bDeclaresText = true;
    }
    // Defaults are text that comes out of a declaration again and again.
    void attributeDecl(const XMLCh*, const XMLCh*, const XMLCh*, const XMLCh*,
                       const XMLCh* value) override {
        m_bDeclaresText = m_bDeclaresText || value != nullptr;
    }
    void startElement(const XMLCh*, const XMLCh*, const XMLCh* name,
                      const xercesc::Attributes& attributes) override {
        // Equal, not above, so that the place reported is the first one.
        if (++m_nDepth == kMaxSchemaDepth + 1) {
            Refuse(MessageText<XmlMessage::DeepElements>(kMaxSchemaDepth));
        }
        // An attribute does not tell which of its text entities made, so all of it counts.
        if (m_bDeclaresText) {
            for (XMLSize_t i = 0; i < attributes.getLength(); ++i) {
                RefuseUnless(
                    m_EntityText.Take(xercesc::XMLString::stringLen(attributes.getValue(i))));
            }
        }
        CountPattern(name, attributes);
    }
    void endElement(const XMLCh*, const XMLCh*, const XMLCh*) override { --m_nDepth; }
    void startEntity(const XMLCh*) override { m_EntityText.Open(); }
    void endEntity(const XMLCh*) override { m_EntityText.Close(); }
    void characters(const XMLCh*, const XMLSize_t length) override {
        RefuseUnless(m_EntityText.TakeText(length));
    }
    void fatalError(const SAXParseException& e) override {
        // The bound on entities ends the pass as a fatal error. The load does not have that bound,
        // so it must not come to see such a file; without a document type there is no entity to be
        // afraid of.
        if (m_bDocumentType) {
            m_Refusal.emplace(e);
        }
    }

    [[nodiscard]] const std::optional<SAXParseException>& refusal() const { return m_Refusal; }

    /// The name of the external subset as written, which may be empty.
    [[nodiscard]] const std::optional<std::u16string>& externalSubset() const {
        return m_ExternalSubset;
    }

private:
    void RefuseUnless(bool isBounded) {
        if (!isBounded) {
            Refuse(MessageText<XmlMessage::LongEntities>(kMaxEntityText));
        }
    }
    void CountPattern(std::u16string_view name, const xercesc::Attributes& attributes) {
        // Judged by the name alone: the pass knows no namespaces.
        const XMLCh* pattern = attributes.getValue(u"value");
        if (pattern == nullptr || (name != u"pattern" && !name.ends_with(u":pattern"))) {
            return;
        }
        const PatternSize size = MeasurePattern(pattern);
        m_nPatternParts += size.parts;
        if (size.depth > kMaxSchemaDepth) {
            Refuse(MessageText<XmlMessage::DeepPattern>(kMaxSchemaDepth));
        } else if (m_nPatternParts > kMaxPatternParts) {
            Refuse(MessageText<XmlMessage::LongPatterns>(kMaxPatternParts));
        }
    }
    void Refuse(const std::string& reason) {
        m_Refusal.emplace(WidenText(reason).c_str(), *m_pLocator);
    }

    const xercesc::Locator* m_pLocator = nullptr;
    std::optional<SAXParseException> m_Refusal;
    int m_nDepth = 0;
    CKTEntityText m_EntityText;
    std::uint64_t m_nPatternParts = 0;
    bool m_bDocumentType = false;
    bool m_bDeclaresText = false;  ///< entities or defaults, which attributes may hold unseen
    std::optional<std::u16string> m_ExternalSubset;
};

void ReadThrough(const xercesc::InputSource& source, xercesc::SAX2XMLReaderImpl& reader,
                 CKTGuardHandler& handler) {
    xercesc::SecurityManager limits;
    limits.setEntityExpansionLimit(kMaxEntityExpansions);
    // The reader outlives this manager, but uses it in the pass alone; each pass sets its own.
    reader.setProperty(XMLUni::fgXercesSecurityManager, &limits);
    reader.setContentHandler(&handler);
    reader.setErrorHandler(&handler);
    reader.setLexicalHandler(&handler);
    reader.setDeclarationHandler(&handler);
    xercesc::XMLPScanToken token;
    bool more = reader.parseFirst(source, token);
    while (more && !handler.refusal()) {
        more = reader.parseNext(token);
    }
    // A pass that is left midway keeps its inputs open until it is reset.
    if (more) {
        reader.parseReset(token);
    }
}

std::unique_ptr<xercesc::SAX2XMLReaderImpl> MakePlainReader(CKTInputGuard& guard) {
    std::unique_ptr<xercesc::SAX2XMLReaderImpl> reader =
        std::make_unique<xercesc::SAX2XMLReaderImpl>();
    for (const XMLCh* feature : {XMLUni::fgSAX2CoreNameSpaces, XMLUni::fgSAX2CoreValidation,
                                 XMLUni::fgXercesSchema, XMLUni::fgXercesLoadExternalDTD}) {
        reader->setFeature(feature, false);
    }
    // Entities of a schema are opened, or refused, like schemas.
    reader->setXMLEntityResolver(&guard);
    return reader;
}

bool IsSchema(xercesc::XMLResourceIdentifier::ResourceIdentifierType type) {
    using Resource = xercesc::XMLResourceIdentifier;
    return type == Resource::SchemaGrammar || type == Resource::SchemaImport ||
           type == Resource::SchemaInclude || type == Resource::SchemaRedefine;
}

/// An input of one blank, under the name of what it stands for.
std::unique_ptr<xercesc::InputSource> NothingInsteadOf(const XMLCh* systemId) {
    static constexpr XMLByte kNothing = ' ';
    return std::make_unique<xercesc::MemBufInputSource>(&kNothing, 1, systemId);
}

}  // namespace

CKTInputGuard::CKTInputGuard(CKTDOMErrorHandler& handler) : m_Handler(handler) {}
CKTInputGuard::~CKTInputGuard() = default;

void CKTInputGuard::BeginLoad() {
    m_NotFetched.clear();
    m_Handler.setMuted(false);
}

bool CKTInputGuard::RefusesToFetch(const xercesc::InputSource& source) {
    const std::optional<std::string> location = RefusedLocation(source);
    if (!location) {
        return false;
    }
    if (m_NotFetched.insert(*location).second) {
        m_Handler.Refuse(MessageText<XmlMessage::NotFetched>(*location));
        m_Handler.setMuted(true);
    }
    return true;
}

bool CKTInputGuard::AdmitSchema(const xercesc::InputSource& source) {
    const std::u16string name = source.getSystemId();
    // The library asks for a file as often as it is named.
    if (m_Admitted.contains(name)) {
        return true;
    }
    // Before the verdict: a refused file was reached too, and its load fails anyway.
    m_Reached.insert(FileIdentity(OpenedName(source)));
    CKTGuardHandler handler;
    try {
        const std::unique_ptr<xercesc::BinInputStream> probe(source.makeStream());
        if (probe != nullptr) {
            if (m_pReader == nullptr) {
                m_pReader = MakePlainReader(*this);
            }
            ReadThrough(source, *m_pReader, handler);
        }
    } catch (const xercesc::XMLException&) {
        return true;  // The library meets the same failure and reports it in its own words.
    } catch (const xercesc::OutOfMemoryException&) {
        return true;
    }
    if (handler.refusal()) {
        // Muted behind it, because the library complains of the empty input next.
        m_Handler.fatalError(*handler.refusal());
        m_Handler.setMuted(true);
        return false;
    }
    if (handler.externalSubset()) {
        // The library asks for it by the name written, together with the file, so both are kept.
        m_ExternalSubsets.emplace(name, *handler.externalSubset());
    }
    m_Admitted.insert(name);
    return true;
}

bool CKTInputGuard::HasReached(const std::string& fileName) const {
    return m_Reached.contains(FileIdentity(OpenedLocation(fileName)));
}

bool CKTInputGuard::IsExternalSubset(const XMLCh* file, const XMLCh* name) const {
    if (file == nullptr) {
        return false;
    }
    const auto found = m_ExternalSubsets.find(file);
    return found != m_ExternalSubsets.end() && found->second == name;
}

xercesc::InputSource* CKTInputGuard::resolveEntity(xercesc::XMLResourceIdentifier* resource) {
    const XMLCh* name = resource->getSystemId();
    const XMLCh* file = resource->getBaseURI();
    // Nothing is named, so there is nothing to open.
    if (name == nullptr) {
        return nullptr;
    }
    try {
        if (IsExternalSubset(file, name)) {
            return NothingInsteadOf(name).release();
        }
        std::unique_ptr<xercesc::InputSource> source = MakeInputSource(file, name);
        // Of what is not fetched the library finds that it cannot be opened.
        if (!RefusesToFetch(*source) && IsSchema(resource->getResourceIdentifierType()) &&
            !AdmitSchema(*source)) {
            source = NothingInsteadOf(name);
        }
        return source.release();
    } catch (const xercesc::XMLException&) {
        return nullptr;  // The library makes its own source and reports the failure.
    }
}
