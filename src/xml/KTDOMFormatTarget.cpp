#include "xml/KTDOMFormatTarget.h"

#include <algorithm>
#include <iostream>
#include <string>

#include "support/Text.h"

using xercesc::XMLFormatter;

namespace {

constexpr std::size_t kMarkupPiece = 8192;

/// Says whether `text` is ASCII without a character that markup or attribute values escape.
bool NeedsNoEscape(const std::string& text) {
    return std::all_of(text.begin(), text.end(), [](char c) {
        return c >= ' ' && c != '&' && c != '<' && c != '>' && c != '"' && c != '\'';
    });
}

/// XML 1.0 has no way to write most control characters; they become question marks.
std::string WithoutControls(std::string text) {
    std::replace_if(
        text.begin(), text.end(),
        [](char c) { return c >= 0 && c < ' ' && c != '\t' && c != '\n' && c != '\r'; }, '?');
    return text;
}

}  // namespace

CKTDOMFormatTarget::CKTDOMFormatTarget() : m_pSavedBuffer(std::cout.rdbuf()) {}

void CKTDOMFormatTarget::writeChars(const XMLByte* bytes, XMLSize_t count, XMLFormatter*) {
    std::cout.write(reinterpret_cast<const char*>(bytes), static_cast<std::streamsize>(count));
}

void CKTDOMFormatTarget::setTarget(std::ofstream* file) {
    m_pFileBuffer = file->rdbuf();
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

void writeAttr(XMLFormatter& f, const char* name, const char* value) {
    f << XMLFormatter::NoEscapes << " " << name << "=\"" << XMLFormatter::AttrEscapes << value
      << XMLFormatter::NoEscapes << "\"";
}

void CKTMarkup::Add(std::string_view text, unsigned indent) {
    if (m_sPending.size() > kMarkupPiece) {
        Flush();
    }
    m_sPending.append(indent, ' ');
    m_sPending += text;
}

void CKTMarkup::AddTag(std::string_view name, unsigned indent) {
    Add("<", indent);
    Add(name);
}

void CKTMarkup::AddAttribute(const char* name, const std::string& value) {
    if (NeedsNoEscape(value)) {
        Add(" ");
        Add(name);
        Add("=\"");
        Add(value);
        Add("\"");
    } else {
        Flush();
        writeAttr(m_Formatter, name, WithoutControls(value).c_str());
    }
}

void CKTMarkup::AddContent(const std::string& text) {
    if (NeedsNoEscape(text)) {
        Add(text);
    } else {
        Flush();
        m_Formatter << XMLFormatter::CharEscapes << WithoutControls(text).c_str()
                    << XMLFormatter::NoEscapes;
    }
}

void CKTMarkup::Flush() {
    m_Target.writeChars(reinterpret_cast<const XMLByte*>(m_sPending.data()), m_sPending.size(),
                        &m_Formatter);
    m_sPending.clear();
}

XMLFormatter& operator<<(XMLFormatter& f, const char* text) {
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
