#ifndef DORVEX_XML_KTDOMERRORHANDLER_H
#define DORVEX_XML_KTDOMERRORHANDLER_H

#include <string>

#include <xercesc/sax/ErrorHandler.hpp>
#include <xercesc/sax/SAXParseException.hpp>

/// Prints each diagnostic of the parser as one line on standard error and counts it in the
/// process-wide counters. It never throws, so the parser library decides whether parsing goes on.
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

    /// While muted, diagnostics are neither printed nor counted: they only follow from one that
    /// was.
    void setMuted(bool muted) { m_bMuted = muted; }

private:
    void DisplayErrorMsg(const std::string& kind, const xercesc::SAXParseException& e) const;

    bool m_bVerbose = false;
    bool m_bMuted = false;
};

#endif
