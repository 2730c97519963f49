#ifndef DORVEX_XML_INPUTGUARD_H
#define DORVEX_XML_INPUTGUARD_H

#include <xercesc/sax/InputSource.hpp>
#include <xercesc/util/XMLEntityResolver.hpp>

class CKTDOMErrorHandler;

/// Reads inputs once before the library works on them, because the library bounds neither the
/// nesting of a schema, which its grammar loader follows with its own stack, nor the size of its
/// patterns, nor the text that entities expand to. As entity resolver it also sees every schema
/// that the library reaches by include, import or redefine. What it refuses is reported once
/// through the error handler, which is then muted for what follows from it.
class CKTInputGuard : public xercesc::XMLEntityResolver {
public:
    /// `handler` reports refusals; borrowed, must outlive the guard.
    explicit CKTInputGuard(CKTDOMErrorHandler& handler) : m_Handler(handler) {}

    /// Lets the library open an acceptable schema, and gives it an empty one for any other.
    xercesc::InputSource* resolveEntity(xercesc::XMLResourceIdentifier* resource) override;

    /// Says whether the schema can be loaded safely. False after it was reported: nested too
    /// deeply, its patterns or its entities too large, or not well-formed together with a document
    /// type. A source that cannot be opened is left to the library's own report.
    bool IsAcceptableSchema(const xercesc::InputSource& source);

    /// Says whether a document can be parsed safely; only one with a document type is read to its
    /// end. False after its entities were reported as too large.
    bool IsAcceptableDocument(const xercesc::InputSource& source);

private:
    bool IsAcceptable(const xercesc::InputSource& source, bool schema);

    CKTDOMErrorHandler& m_Handler;
};

/// The number of entity expansions after which a document is refused.
inline constexpr XMLSize_t kMaxEntityExpansions = 50000;

#endif
