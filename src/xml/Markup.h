#ifndef DORVEX_XML_MARKUP_H
#define DORVEX_XML_MARKUP_H

#include <string>
#include <string_view>

class CKTDOMFormatTarget;
class CKTXMLFormatter;

/// Collects markup and writes it in large pieces. Plain ASCII is the same in the output's encoding
/// and goes straight to the target; the formatter, which looks at every character, gets the rest.
/// What is collected is written when the object ends, or earlier by Flush.
class CKTMarkup {
public:
    /// Both are borrowed and outlive the object.
    CKTMarkup(CKTXMLFormatter& formatter, CKTDOMFormatTarget& target)
        : m_Formatter(formatter), m_Target(target) {}
    ~CKTMarkup() { Flush(); }
    CKTMarkup(const CKTMarkup&) = delete;
    CKTMarkup& operator=(const CKTMarkup&) = delete;

    /// The name of the encoding that the output has.
    [[nodiscard]] std::string EncodingName() const;

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
    CKTXMLFormatter& m_Formatter;
    CKTDOMFormatTarget& m_Target;
    std::string m_sPending;
};

#endif
