#ifndef DORVEX_XML_KTDOMERRORHANDLER_H
#define DORVEX_XML_KTDOMERRORHANDLER_H

#include <string>

#include <xercesc/sax/ErrorHandler.hpp>
#include <xercesc/sax/SAXParseException.hpp>

#include "xml/Complaints.h"

/// The diagnostics of a pass that are not printed yet: their lines, and what they count.
struct CKTHeldDiagnostics {
    std::string lines;
    int errors = 0;
    int warnings = 0;
    bool isComplete = true;  ///< false when there was more than is kept
};

/// Prints each diagnostic of the parser as one line on standard error and counts it in the
/// process-wide counters. It never throws an error of its own, so the parser library decides
/// whether parsing goes on.
class CKTDOMErrorHandler : public xercesc::ErrorHandler {
public:
    void warning(const xercesc::SAXParseException& e) override;
    void error(const xercesc::SAXParseException& e) override;
    void fatalError(const xercesc::SAXParseException& e) override;

    /// Sets both process-wide counters to 0.
    void resetErrors() override;

    /// Writes "E error(s), W warning(s)" with the process-wide counters on standard error.
    virtual void DisplayErrorMsgSummary();

    /// Chooses whether a line carries the message after its position.
    virtual void setVerboseError(bool verbose) { m_bVerbose = verbose; }

    /// Prints and counts, or holds, `line` as an error, muted or not; it is no diagnostic of the
    /// parser library and has its own words.
    void Refuse(const std::string& line) { Record(line + '\n', false); }

    /// While muted, diagnostics are neither printed nor counted: they only follow from one that
    /// was.
    void setMuted(bool muted) { m_bMuted = muted; }

    /// Sends diagnostics to `held` (borrowed) until it is set to null again. When there are too
    /// many to keep, the reading pass is stopped.
    void setHeld(CKTHeldDiagnostics* held) { m_pHeld = held; }

    /// Prints and counts what was held.
    static void Report(const CKTHeldDiagnostics& held);

private:
    template <XmlMessage kMessage>
    void DisplayErrorMsg(const xercesc::SAXParseException& e) const;
    void Record(const std::string& line, bool isWarning) const;

    bool m_bVerbose = false;
    bool m_bMuted = false;
    CKTHeldDiagnostics* m_pHeld = nullptr;
};

#endif
