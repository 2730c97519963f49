#include "xml/KTDOMErrorHandler.h"

#include <iostream>

#include "support/Console.h"
#include "support/Text.h"

void CKTDOMErrorHandler::warning(const xercesc::SAXParseException& e) {
    if (!m_bMuted) {
        DisplayErrorMsg("Warning", e);
        ++m_nWarningCount;
    }
}

void CKTDOMErrorHandler::error(const xercesc::SAXParseException& e) {
    if (!m_bMuted) {
        DisplayErrorMsg("Error", e);
        ++m_nErrorCount;
    }
}

void CKTDOMErrorHandler::fatalError(const xercesc::SAXParseException& e) {
    if (!m_bMuted) {
        DisplayErrorMsg("Fatal Error", e);
        ++m_nErrorCount;
    }
}

void CKTDOMErrorHandler::resetErrors() {
    m_nErrorCount = 0;
    m_nWarningCount = 0;
}

void CKTDOMErrorHandler::DisplayErrorMsgSummary() {
    std::cerr << std::to_string(m_nErrorCount) + " error(s), " + std::to_string(m_nWarningCount) +
                     " warning(s)\n";
}

// Written as a string object, past the counting operator: the handler counts by itself.
void CKTDOMErrorHandler::DisplayErrorMsg(const std::string& kind,
                                         const xercesc::SAXParseException& e) const {
    const XMLCh* file = e.getSystemId();
    const XMLCh* message = e.getMessage();
    std::string line = kind + " : " + (file == nullptr ? "" : NarrowMessage(file)) + "(Line " +
                       std::to_string(e.getLineNumber()) + ", Col " +
                       std::to_string(e.getColumnNumber()) + ")";
    if (m_bVerbose) {
        line += " : " + (message == nullptr ? std::string() : NarrowMessage(message));
    }
    std::cerr << line + "\n";
}
