// What this room offers and no run calls: the counters and switches of the parser, whose runs take
// the defaults, and ways of writing through the formatter, which markup goes past where it can.

#include <fstream>
#include <iostream>

#include "support/Console.h"
#include "support/Text.h"
#include "xml/KTDOMFormatTarget.h"
#include "xml/ParserLibrary.h"

using xercesc::XMLFormatter;

void CKTDOMParser::InitializePlatform() {
    CKTPlatform::Start();
}

int CKTDOMParser::getErrorCount() const {
    return m_nErrorCount;
}

int CKTDOMParser::getWarningCount() const {
    return m_nWarningCount;
}

void CKTDOMParser::setVerboseError(bool verbose) {
    m_pLibrary->handler().setVerboseError(verbose);
}

void CKTDOMParser::ResetErrors() {
    m_pLibrary->handler().resetErrors();
}

void CKTDOMFormatTarget::setTarget(std::ofstream* file) {
    m_pFileBuffer = file->rdbuf();
    // What was written before belongs to the old buffer.
    std::cout.flush();
    std::cout.rdbuf(m_pFileBuffer);
}

void CKTDOMFormatTarget::restoreTarget() {
    std::cout.flush();
    std::cout.rdbuf(m_pSavedBuffer);
    m_pFileBuffer = nullptr;
}

void writeIndent(XMLFormatter& f, unsigned int n) {
    f << XMLFormatter::NoEscapes << std::string(n, ' ').c_str();
}

void writeElem(XMLFormatter& f, const char* name) {
    f << XMLFormatter::NoEscapes << "<" << name;
}

XMLFormatter& operator<<(XMLFormatter& f, const xercesc::DOMNode& node) {
    return f << node.getNodeName();
}

std::ostream& operator<<(std::ostream& stream, const XMLCh* text) {
    return stream << NarrowText(text);
}
