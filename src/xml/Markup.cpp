// Markup in large pieces: most of an output is plain ASCII, which needs no look from the formatter.
// What does need one goes through it piece by piece; whatever was collected is written before, so
// the order holds. Only values and content are escaped: names and the rest come from the writers.

#include "xml/Markup.h"

#include <algorithm>

#include "support/Text.h"
#include "xml/KTDOMFormatTarget.h"

using xercesc::XMLFormatter;

namespace {

constexpr std::size_t kMarkupPiece = 8192;

/// Says whether `text` is ASCII without a character that markup or attribute values escape.
bool NeedsNoEscape(const std::string& text) {
    return std::all_of(text.begin(), text.end(), [](char c) {
        // A byte above ASCII goes the other way: the formatter knows the encoding of the locale.
        const auto code = static_cast<unsigned char>(c);
        return code >= ' ' && code < 0x80 && c != '&' && c != '<' && c != '>' && c != '"' &&
               c != '\'';
    });
}

/// XML 1.0 has no way to write most control characters; they become question marks.
std::string WithoutControls(std::string text) {
    std::replace_if(
        text.begin(), text.end(),
        // Bytes above ASCII are left alone: they are part of characters.
        [](char c) {
            return static_cast<unsigned char>(c) < ' ' && c != '\t' && c != '\n' && c != '\r';
        },
        '?');
    return text;
}

}  // namespace

std::string CKTMarkup::EncodingName() const {
    return NarrowText(m_Formatter.getEncodingName());
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
