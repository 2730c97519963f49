// Lines are written as they come. All complaints are counted, but only the first ones are shown:
// one mistake early in a source can bring thousands, and those behind it say nothing new.

#include "kcomp/Report.h"

namespace {

constexpr std::size_t kMostShown = 100;

}  // namespace

void CKTReport::Error(const SourcePlace& place, const CKTMessageText& text) {
    ++m_nErrors;
    if (m_nErrors <= kMostShown) {
        WriteLine(place, " : Error : ", text);
    } else if (m_nErrors == kMostShown + 1) {
        // Said once, and of no place.
        WriteLine({}, " : Error : ", TextOf<Message::MoreErrors>());
    }
}

void CKTReport::Note(const SourcePlace& place, const CKTMessageText& text) {
    WriteLine(place, " : Note : ", text);
}

void CKTReport::WriteLine(const SourcePlace& place, std::string_view kind,
                          const CKTMessageText& text) {
    if (place.file.empty()) {
        m_Out << "kcomp";
    } else {
        m_Out << place.file << '(' << place.line << ')';
    }
    m_Out << kind << text.Text() << '\n';
}
