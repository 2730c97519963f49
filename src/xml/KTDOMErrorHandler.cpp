#include "xml/KTDOMErrorHandler.h"

#include <iostream>

#include "support/Console.h"
#include "support/Text.h"
#include "xml/TreeReader.h"

namespace {

/// Enough for what a person reads; more is read from the document once again.
constexpr std::size_t kMaxHeldBytes = 65536;

}  // namespace

void CKTDOMErrorHandler::warning(const xercesc::SAXParseException& e) {
    DisplayErrorMsg("Warning", e, true);
}

void CKTDOMErrorHandler::error(const xercesc::SAXParseException& e) {
    DisplayErrorMsg("Error", e, false);
}

void CKTDOMErrorHandler::fatalError(const xercesc::SAXParseException& e) {
    DisplayErrorMsg("Fatal Error", e, false);
}

void CKTDOMErrorHandler::resetErrors() {
    m_nErrorCount = 0;
    m_nWarningCount = 0;
}

void CKTDOMErrorHandler::DisplayErrorMsgSummary() {
    std::cerr << std::to_string(m_nErrorCount) + " error(s), " + std::to_string(m_nWarningCount) +
                     " warning(s)\n";
}

void CKTDOMErrorHandler::DisplayErrorMsg(const std::string& kind,
                                         const xercesc::SAXParseException& e,
                                         bool isWarning) const {
    if (m_bMuted) {
        return;
    }
    const XMLCh* file = e.getSystemId();
    const XMLCh* message = e.getMessage();
    std::string line = kind + " : " + (file == nullptr ? "" : NarrowMessage(file)) + "(Line " +
                       std::to_string(e.getLineNumber()) + ", Col " +
                       std::to_string(e.getColumnNumber()) + ")";
    if (m_bVerbose) {
        line += " : " + (message == nullptr ? std::string() : NarrowMessage(message));
    }
    Record(line + '\n', isWarning);
}

void CKTDOMErrorHandler::Record(const std::string& line, bool isWarning) const {
    if (m_pHeld == nullptr) {
        Report({line, isWarning ? 0 : 1, isWarning ? 1 : 0});
        return;
    }
    if (m_pHeld->lines.size() + line.size() > kMaxHeldBytes) {
        m_pHeld->isComplete = false;
        CKTTreeReader::Stop();
    }
    m_pHeld->lines += line;
    ++(isWarning ? m_pHeld->warnings : m_pHeld->errors);
}

// Written as a string object, past the counting operator: the handler counts by itself.
void CKTDOMErrorHandler::Report(const CKTHeldDiagnostics& held) {
    std::cerr << held.lines;
    m_nErrorCount += held.errors;
    m_nWarningCount += held.warnings;
}
