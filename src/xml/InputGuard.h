#ifndef DORVEX_XML_INPUTGUARD_H
#define DORVEX_XML_INPUTGUARD_H

#include <memory>
#include <string>
#include <unordered_map>
#include <unordered_set>

#include <xercesc/sax/InputSource.hpp>
#include <xercesc/util/XMLEntityResolver.hpp>

class CKTDOMErrorHandler;

XERCES_CPP_NAMESPACE_BEGIN
class SAX2XMLReaderImpl;
XERCES_CPP_NAMESPACE_END

/// Reads each schema once before the library works on it, because the library bounds neither the
/// nesting of a schema, which its grammar loader follows with its own stack, nor the size of its
/// patterns, nor the text that its entities expand to. As entity resolver it sees every file that
/// the library reaches and opens all of them. What it refuses is reported once through the error
/// handler, which is then muted for what follows from it.
class CKTInputGuard : public xercesc::XMLEntityResolver {
public:
    /// `handler` reports refusals; borrowed, must outlive the guard.
    explicit CKTInputGuard(CKTDOMErrorHandler& handler);
    ~CKTInputGuard() override;

    /// Begins a load: nothing is refused yet and the handler is not muted.
    void BeginLoad();

    /// Says whether the source would be fetched while the network is off. The first time in a load
    /// that is reported; the handler is muted for what the library says to it.
    bool RefusesToFetch(const xercesc::InputSource& source);

    /// Says whether anything was refused so in this load.
    [[nodiscard]] bool HasRefusedToFetch() const { return !m_NotFetched.empty(); }

    /// Opens what the library asks for. A schema that is refused, and the external subset of a
    /// schema's document type, which only describes schemas, are empty instead.
    xercesc::InputSource* resolveEntity(xercesc::XMLResourceIdentifier* resource) override;

    /// Reads a schema through and says whether it can be loaded safely. False after it was reported
    /// and the handler muted: nested too deeply, its patterns or its entities too large, or not
    /// well-formed together with a document type. A source that cannot be opened passes; the
    /// library reports it in its own words.
    bool AdmitSchema(const xercesc::InputSource& source);

    /// Says whether the library was given the schema file `fileName`, whatever name led to it.
    [[nodiscard]] bool HasReached(const std::string& fileName) const;

private:
    bool IsExternalSubset(const XMLCh* file, const XMLCh* name) const;

    CKTDOMErrorHandler& m_Handler;
    std::unique_ptr<xercesc::SAX2XMLReaderImpl> m_pReader;
    std::unordered_set<std::u16string> m_Admitted;
    std::unordered_set<std::string> m_Reached;
    std::unordered_set<std::string> m_NotFetched;
    std::unordered_map<std::u16string, std::u16string> m_ExternalSubsets;
};

#endif
