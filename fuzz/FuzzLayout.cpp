// Each input is the free-form text of one entry, laid out in fixed format.

#include <algorithm>
#include <iterator>
#include <sstream>

#include "FuzzSupport.h"
#include "cobol/KTCOBOLRecordItem.h"

namespace {

/// The text without what the layout may add or drop: blanks, quotation marks and, when it is
/// `laidOut`, the indicators of further lines.
std::string Essence(const std::string& text, bool laidOut) {
    std::istringstream lines(text);
    std::string kept;
    bool further = false;
    for (std::string line; std::getline(lines, line); further = laidOut) {
        std::copy_if(
            line.begin() + (further ? 7 : 0), line.end(), std::back_inserter(kept),
            [](char c) { return std::string_view(" \t\r\"'").find(c) == std::string_view::npos; });
    }
    return kept;
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string entry = std::string(data, data + size).c_str();  // up to the first NUL
    std::ostringstream out;
    CKTCOBOLRecordItem::OutputFixedFormatCOBOL(entry.c_str(), out);
    RequireFixedFormat(out.str());
    Require(Essence(out.str(), true) == Essence(entry, false), "nothing of an entry is lost");
    return 0;
}
