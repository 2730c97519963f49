#ifndef DORVEX_XML_KTDOMFORMATTARGET_H
#define DORVEX_XML_KTDOMFORMATTARGET_H

#include <fstream>
#include <ostream>

#include <xercesc/dom/DOMNode.hpp>
#include <xercesc/framework/XMLFormatter.hpp>

/// Sends what the XML formatter encodes to standard output, which can be lent to a file.
class CKTDOMFormatTarget : public xercesc::XMLFormatTarget {
public:
    CKTDOMFormatTarget();

    /// Writes exactly `count` encoded bytes to standard output, unchanged.
    void writeChars(const XMLByte* bytes, XMLSize_t count, xercesc::XMLFormatter*) override;

    /// Points standard output at `file`, so that formatter and plain output reach it in order.
    void setTarget(std::ofstream* file);

    /// Gives standard output back the buffer it had when the target was made.
    void restoreTarget();

private:
    std::streambuf* m_pSavedBuffer;
    std::streambuf* m_pFileBuffer = nullptr;
};

/// The formatter behind one document's output, under a name that callers of the parser can hold
/// without knowing the library.
class CKTXMLFormatter : public xercesc::XMLFormatter {
public:
    /// Encodes in UTF-8 for `target` (borrowed); escapes nothing until told to. Throws the
    /// library's exceptions.
    explicit CKTXMLFormatter(CKTDOMFormatTarget& target);
};

/// Writes `n` spaces, unescaped.
void writeIndent(xercesc::XMLFormatter& f, unsigned int n);

/// Writes "<" and `name`, unescaped; the caller ends the tag.
void writeElem(xercesc::XMLFormatter& f, const char* name);

/// Writes a space and `name="value"`, the value with attribute escaping; leaves escaping off.
void writeAttr(xercesc::XMLFormatter& f, const char* name, const char* value);

/// Writes narrow text of the locale, or a node's name, with the formatter's current escaping; empty
/// text writes nothing.
xercesc::XMLFormatter& operator<<(xercesc::XMLFormatter& f, const char* text);
xercesc::XMLFormatter& operator<<(xercesc::XMLFormatter& f, const xercesc::DOMNode& node);

/// Writes the parser's text to a stream in the locale's encoding.
std::ostream& operator<<(std::ostream& stream, const XMLCh* text);

#endif
