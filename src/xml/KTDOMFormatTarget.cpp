// The last step of an output: the formatter escapes and encodes, the target hands the bytes to
// standard output, which may be lent to a file. By that, formatter and plain output reach a file in
// one order. The free functions set the escaping that they need and leave it off.

#include "xml/KTDOMFormatTarget.h"

#include <iostream>
#include <string>

#include <xercesc/util/XMLUni.hpp>

#include "support/Text.h"

using xercesc::XMLFormatter;

CKTDOMFormatTarget::CKTDOMFormatTarget() : m_pSavedBuffer(std::cout.rdbuf()) {}

void CKTDOMFormatTarget::writeChars(const XMLByte* bytes, XMLSize_t count, XMLFormatter*) {
    std::cout.write(reinterpret_cast<const char*>(bytes), static_cast<std::streamsize>(count));
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

CKTXMLFormatter::CKTXMLFormatter(CKTDOMFormatTarget& target)
    : XMLFormatter(xercesc::XMLUni::fgUTF8EncodingString, &target, NoEscapes, UnRep_CharRef) {}

void writeIndent(XMLFormatter& f, unsigned int n) {
    f << XMLFormatter::NoEscapes << std::string(n, ' ').c_str();
}

void writeElem(XMLFormatter& f, const char* name) {
    f << XMLFormatter::NoEscapes << "<" << name;
}

void writeAttr(XMLFormatter& f, const char* name, const char* value) {
    f << XMLFormatter::NoEscapes << " " << name << "=\"" << XMLFormatter::AttrEscapes << value
      << XMLFormatter::NoEscapes << "\"";
}

XMLFormatter& operator<<(XMLFormatter& f, const char* text) {
    // Text that the locale cannot decode is reported there and leaves nothing to write.
    const std::u16string wide = WidenText(text);
    if (!wide.empty()) {
        f.formatBuf(wide.c_str(), wide.size());
    }
    return f;
}

XMLFormatter& operator<<(XMLFormatter& f, const xercesc::DOMNode& node) {
    return f << node.getNodeName();
}

std::ostream& operator<<(std::ostream& stream, const XMLCh* text) {
    return stream << NarrowText(text);
}
