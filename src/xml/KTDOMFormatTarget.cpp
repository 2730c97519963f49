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

CKTXMLFormatter::CKTXMLFormatter(CKTDOMFormatTarget& target)
    : XMLFormatter(xercesc::XMLUni::fgUTF8EncodingString, &target, NoEscapes, UnRep_CharRef) {}

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
