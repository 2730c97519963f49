// Makes one line of each diagnostic, which is printed and counted at once or, during a pass whose
// verdict is awaited, held with its count. It counts for itself, past the counting operator, so
// such a line brings up no banner, and a fatal error counts as an error. What the locale cannot
// show becomes a question mark. Whether reading goes on is the library's to decide.

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
    DisplayErrorMsg<XmlMessage::Warning>(e);
}

void CKTDOMErrorHandler::error(const xercesc::SAXParseException& e) {
    DisplayErrorMsg<XmlMessage::Error>(e);
}

void CKTDOMErrorHandler::fatalError(const xercesc::SAXParseException& e) {
    DisplayErrorMsg<XmlMessage::FatalError>(e);
}

void CKTDOMErrorHandler::resetErrors() {
    m_nErrorCount = 0;
    m_nWarningCount = 0;
}

void CKTDOMErrorHandler::DisplayErrorMsgSummary() {
    std::cerr << MessageText<XmlMessage::Summary>(m_nErrorCount, m_nWarningCount) + '\n';
}

template <XmlMessage kMessage>
void CKTDOMErrorHandler::DisplayErrorMsg(const xercesc::SAXParseException& e) const {
    if (m_bMuted) {
        return;
    }
    const XMLCh* file = e.getSystemId();
    const XMLCh* message = e.getMessage();
    const std::string text = message == nullptr || !m_bVerbose ? "" : NarrowMessage(message);
    std::string line = MessageText<kMessage>(file == nullptr ? "" : NarrowMessage(file),
                                             e.getLineNumber(), e.getColumnNumber(), text);
    if (!m_bVerbose) {
        line.resize(line.rfind(" : "));  // ends behind the place
    }
    Record(line + '\n', kMessage == XmlMessage::Warning);
}

void CKTDOMErrorHandler::Record(const std::string& line, bool isWarning) const {
    if (m_pHeld == nullptr) {
        Report({line, isWarning ? 0 : 1, isWarning ? 1 : 0});
        return;
    }
    if (m_pHeld->lines.size() + line.size() > kMaxHeldBytes) {
        m_pHeld->isComplete = false;
        // Leaves the pass from here, so nothing of this diagnostic is kept.
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
