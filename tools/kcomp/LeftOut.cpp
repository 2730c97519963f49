// What a schema and a copybook made from the dictionary have no place for: clauses that the
// dictionary passes on as they are, and comments, which it does not hold at all. One walk over all
// items keeps the first place of each kind, so that no source gives more notes than there are
// kinds.

#include "kcomp/LeftOut.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

namespace {

struct Clause {
    std::string_view attribute;  // of the dictionary
    std::string_view shown;      // clauses that are shown alike are one kind
};

constexpr std::string_view kValueAttribute = "value";

// In the order of the notes.
constexpr std::array<Clause, 13> kClauses = {{
    {kValueAttribute, "VALUE"},
    {"indexedBy", "INDEXED BY"},
    {"ascendingKey", "KEY"},
    {"descendingKey", "KEY"},
    {"synchronized", "SYNCHRONIZED"},
    {"falseValue", "FALSE"},
    {"external", "EXTERNAL"},
    {"global", "GLOBAL"},
    {"based", "BASED"},
    {"identifiedBy", "the XML clauses"},
    {"namespace", "the XML clauses"},
    {"attribute", "the XML clauses"},
    {"countIn", "the XML clauses"},
}};

/// The first clause for which `fits`; the number of clauses when there is none.
template <typename Test>
std::size_t IndexOf(Test fits) {
    const auto* const found = std::find_if(kClauses.begin(), kClauses.end(), fits);
    return static_cast<std::size_t>(found - kClauses.begin());
}

class CKTNoteTaker {
public:
    /// Nests no deeper than levels do.
    void Visit(const DataItem& item) {
        // Constants and condition-names are what their values are, and those are kept.
        if (!item.values.empty() && !item.isConstant && item.level != kConditionLevel) {
            Take(kValueAttribute, item.place);
        }
        for (const auto& [attribute, text] : item.notes) {
            Take(attribute, item.place);
        }
        for (const auto& child : item.children) {
            Visit(*child);
        }
    }

    void Report(CKTReport& report, const SourcePlace& comment) const {
        for (std::size_t i = 0; i < kClauses.size(); ++i) {
            if (m_First.at(i).line > 0) {
                report.Note(m_First.at(i), TextOf<Message::LeftOut>(kClauses.at(i).shown));
            }
        }
        if (comment.line > 0) {
            report.Note(comment, TextOf<Message::LeftOut>("comments"));
        }
    }

private:
    /// Each kind has its place at the first of its clauses.
    void Take(std::string_view attribute, const SourcePlace& place) {
        const std::size_t clause =
            IndexOf([attribute](const Clause& row) { return row.attribute == attribute; });
        if (clause == kClauses.size()) {
            return;
        }
        const std::string_view shown = kClauses.at(clause).shown;
        const std::size_t kind = IndexOf([shown](const Clause& row) { return row.shown == shown; });
        if (m_First.at(kind).line == 0) {
            m_First.at(kind) = place;
        }
    }

    std::array<SourcePlace, kClauses.size()> m_First = {};
};

}  // namespace

void NoteWhatIsLeftOut(const std::deque<ProgramData>& programs, CKTReport& report) {
    CKTNoteTaker notes;
    SourcePlace comment;
    for (const ProgramData& program : programs) {
        for (const RecordArea& area : program.areas) {
            for (const auto& item : area.items) {
                notes.Visit(*item);
            }
        }
        comment = comment.line == 0 ? program.comment : comment;
    }
    notes.Report(report, comment);
}
