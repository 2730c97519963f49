#include "kcomp/Report.h"

namespace {

constexpr std::size_t kMostShown = 100;

}  // namespace

void CKTReport::Error(const SourcePlace& place, std::string_view text) {
    if (++m_nErrors > kMostShown) {
        m_Out << (m_nErrors == kMostShown + 1 ? "kcomp : Error : There are more errors\n" : "");
        return;
    }
    WriteLine(place, " : Error : ", text);
}

void CKTReport::Note(const SourcePlace& place, std::string_view text) {
    WriteLine(place, " : Note : ", text);
}

void CKTReport::WriteLine(const SourcePlace& place, std::string_view kind, std::string_view text) {
    if (place.file.empty()) {
        m_Out << "kcomp";
    } else {
        m_Out << place.file << '(' << place.line << ')';
    }
    m_Out << kind << text << '\n';
}
