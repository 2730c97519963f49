#include "kcomp/Report.h"

void CKTReport::Error(const SourcePlace& place, std::string_view text) {
    if (place.file.empty()) {
        m_Out << "kcomp";
    } else {
        m_Out << place.file << '(' << place.line << ')';
    }
    m_Out << " : Error : " << text << '\n';
    ++m_nErrors;
}
