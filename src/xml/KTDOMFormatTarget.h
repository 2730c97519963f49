#ifndef DORVEX_XML_KTDOMFORMATTARGET_H
#define DORVEX_XML_KTDOMFORMATTARGET_H

#include <fstream>
#include <ostream>
#include <string>
#include <string_view>

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

/// Writes `n` spaces, unescaped.
void writeIndent(xercesc::XMLFormatter& f, unsigned int n);

/// Writes "<" and `name`, unescaped; the caller ends the tag.
void writeElem(xercesc::XMLFormatter& f, const char* name);

/// Writes a space and `name="value"`, the value with attribute escaping; leaves escaping off.
void writeAttr(xercesc::XMLFormatter& f, const char* name, const char* value);

/// Collects markup and writes it in large pieces. Plain ASCII is the same in the output's encoding
/// and goes straight to the target; the formatter, which looks at every character, gets the rest.
/// What is collected is written when the object ends, or earlier by Flush.
class CKTMarkup {
public:
    CKTMarkup(xercesc::XMLFormatter& formatter, CKTDOMFormatTarget& target)
        : m_Formatter(formatter), m_Target(target) {}
    ~CKTMarkup() { Flush(); }
    CKTMarkup(const CKTMarkup&) = delete;
    CKTMarkup& operator=(const CKTMarkup&) = delete;

    /// Adds ASCII text as it stands, after `indent` spaces.
    void Add(std::string_view text, unsigned indent = 0);

    /// Adds "<" and `name` after `indent` spaces; the caller ends the tag.
    void AddTag(std::string_view name, unsigned indent);

    /// Adds a space and `name="value"` with attribute escaping. A control character that XML cannot
    /// hold becomes a question mark, here and in content.
    void AddAttribute(const char* name, const std::string& value);

    /// Adds element content, escaped so that it reads back as it is.
    void AddContent(const std::string& text);

    /// Writes what was collected so far.
    void Flush();

private:
    xercesc::XMLFormatter& m_Formatter;
    CKTDOMFormatTarget& m_Target;
    std::string m_sPending;
};

/// Writes narrow text of the locale, or a node's name, with the formatter's current escaping; empty
/// text writes nothing.
xercesc::XMLFormatter& operator<<(xercesc::XMLFormatter& f, const char* text);
xercesc::XMLFormatter& operator<<(xercesc::XMLFormatter& f, const xercesc::DOMNode& node);

/// Writes the parser's text to a stream in the locale's encoding.
std::ostream& operator<<(std::ostream& stream, const XMLCh* text);

#endif
