#ifndef DORVEX_XML_SCHEMAGUARD_H
#define DORVEX_XML_SCHEMAGUARD_H

#include <xercesc/sax/InputSource.hpp>
#include <xercesc/util/XMLEntityResolver.hpp>

class CKTDOMErrorHandler;

/// Reads each schema file once before the library loads it as a grammar: the grammar loader follows
/// nesting with its own stack and expands entities without a bound. As entity resolver it also sees
/// every schema that the library reaches by include, import or redefine. What it refuses is
/// reported once through the error handler, which is then muted for what follows from it.
class CKTSchemaGuard : public xercesc::XMLEntityResolver {
public:
    /// `handler` reports refusals; borrowed, must outlive the guard.
    explicit CKTSchemaGuard(CKTDOMErrorHandler& handler) : m_Handler(handler) {}

    /// Lets the library open an acceptable schema, and gives it an empty one for any other.
    xercesc::InputSource* resolveEntity(xercesc::XMLResourceIdentifier* resource) override;

    /// Says whether the schema can be loaded safely. False after it was reported: nested too
    /// deeply, or not well-formed together with a document type. A source that cannot be opened is
    /// left to the library's own report.
    bool IsAcceptable(const xercesc::InputSource& source);

private:
    CKTDOMErrorHandler& m_Handler;
};

/// The number of entity expansions after which a document is refused.
inline constexpr XMLSize_t kMaxEntityExpansions = 50000;

#endif
