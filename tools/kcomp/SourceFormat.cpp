// Fixed or free? Columns 1 to 7 of a fixed line hold a sequence number and an indicator; in a free
// source text stands there. Each line has a vote, and the majority decides, so that a few odd lines
// do no harm; a line that begins further right fits both. A directive that names the format is not
// looked for here.

#include <algorithm>

#include "kcomp/SourceLines.h"
#include "kcomp/Text.h"

namespace {

constexpr std::size_t kIndicator = 6;
constexpr int kSpeaksForFixed = -1;
constexpr int kFitsBoth = 0;
constexpr int kSpeaksForFree = 1;

int VoteOfIndicator(std::string_view line) {
    const char indicator = line[kIndicator];
    const char next = line.size() > kIndicator + 1 ? line[kIndicator + 1] : ' ';
    if (indicator == '*' || indicator == '/') {
        // The mark of a free comment may stand here, too.
        return next == '>' ? kFitsBoth : kSpeaksForFixed;
    }
    // A hyphen may be a sign or continue a line; the others begin directives.
    if (indicator == '-' || indicator == '$' || indicator == '>') {
        return kFitsBoth;
    }
    const bool debugLine = (indicator == 'D' || indicator == 'd') && next == ' ';
    return debugLine ? kFitsBoth : kSpeaksForFree;
}

bool IsSequenceNumber(std::string_view area) {
    const std::size_t digits = std::min(area.find_first_not_of("0123456789"), area.size());
    // A level number of a free source has fewer digits.
    return digits >= 4 && area.find_first_not_of(' ', digits) == std::string_view::npos;
}

int VoteOf(std::string_view line) {
    const std::size_t first = line.find_first_not_of(' ');
    if (first == std::string_view::npos || first > kIndicator) {
        return kFitsBoth;
    }
    if (first == kIndicator) {
        return VoteOfIndicator(line);
    }
    const std::string_view area = line.substr(0, kIndicator);
    if (IsSequenceNumber(area)) {
        return kSpeaksForFixed;
    }
    // Some mark their lines in these columns; six characters without a blank may be such a mark.
    const bool tagged = area.size() == kIndicator && area.find(' ') == std::string_view::npos &&
                        line.substr(first, 2) != "*>" && line.substr(first, 2) != ">>";
    const char indicator = line.size() > kIndicator ? line[kIndicator] : ' ';
    if (tagged && std::string_view(" *-/").find(indicator) != std::string_view::npos) {
        return kFitsBoth;
    }
    return kSpeaksForFree;
}

}  // namespace

SourceFormat DetectFormat(std::string_view content, SourceFormat otherwise) {
    long sum = 0;
    content = content.substr(0, content.find(kEndOfFileMark));
    while (!content.empty()) {
        sum += VoteOf(ExpandTabs(TakeLine(content)));
    }
    if (sum == 0) {
        return otherwise;
    }
    return sum > 0 ? SourceFormat::Free : SourceFormat::Fixed;
}
