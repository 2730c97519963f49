// One pass over the words. At each word the pairs are tried in their order, the first that fits is
// put in, and the pass goes on behind what it replaced. What was put in is never looked at, so the
// pass ends even when a pair holds the text that it looks for. Pieces of a word that a mark kept
// apart are joined while the result grows. Reading the phrase is left to the source reader.

#include "kcomp/Replacing.h"

#include <algorithm>

#include "kcomp/Text.h"

namespace {

bool SameText(const TextWord& a, const TextWord& b) {
    // The case of letters counts within a literal only.
    return a.kind == b.kind &&
           (a.kind == WordKind::Literal ? a.text == b.text : SameWord(a.text, b.text));
}

bool FitsWhole(const std::vector<TextWord>& words, std::size_t at, const Replacement& pair) {
    return words.size() - at >= pair.from.size() &&
           std::equal(pair.from.begin(), pair.from.end(),
                      words.begin() + static_cast<std::ptrdiff_t>(at), SameText);
}

bool FitsPart(const TextWord& word, const Replacement& pair) {
    const std::string_view text = word.text;
    const std::string_view part = pair.from.front().text;
    if (word.kind != WordKind::Word || text.size() < part.size()) {
        return false;
    }
    return SameWord(part, pair.part == Replacement::Part::Leading
                              ? text.substr(0, part.size())
                              : text.substr(text.size() - part.size()));
}

class CKTReplacer {
public:
    CKTReplacer(const std::vector<TextWord>& words, const std::vector<Replacement>& pairs)
        : m_Words(words), m_Pairs(pairs) {}

    std::optional<std::vector<TextWord>> Replace(std::size_t most) {
        // Asked at each word, because a short one may be replaced by a long text.
        for (std::size_t at = 0; at < m_Words.size() && m_Result.size() <= most;) {
            const auto pair = std::find_if(m_Pairs.begin(), m_Pairs.end(),
                                           [this, at](const Replacement& candidate) {
                                               return candidate.part == Replacement::Part::Whole
                                                          ? FitsWhole(m_Words, at, candidate)
                                                          : FitsPart(m_Words[at], candidate);
                                           });
            if (pair == m_Pairs.end()) {
                Put(m_Words[at++]);
            } else if (pair->part == Replacement::Part::Whole) {
                PutReplacement(m_Words[at], pair->by);
                at += pair->from.size();
            } else {
                PutPart(m_Words[at++], *pair);
            }
        }
        if (m_Result.size() > most) {
            return std::nullopt;
        }
        return std::move(m_Result);
    }

private:
    void PutReplacement(const TextWord& replaced, const std::vector<TextWord>& by) {
        bool first = true;
        for (TextWord word : by) {
            // Messages about the new words point at the place of the old ones.
            word.place = replaced.place;
            word.comment = first ? replaced.comment : SourcePlace{};
            word.glued = first ? replaced.glued : word.glued;
            Put(std::move(word));
            first = false;
        }
        // A word behind a blank that is taken away leaves a gap, a glued one leaves none.
        m_bApart = by.empty() && (m_bApart || !replaced.glued);
    }

    void PutPart(TextWord word, const Replacement& pair) {
        const std::string by = pair.by.empty() ? std::string() : pair.by.front().text;
        const std::size_t length = pair.from.front().text.size();
        if (pair.part == Replacement::Part::Leading) {
            word.text.replace(0, length, by);
        } else {
            word.text.replace(word.text.size() - length, length, by);
        }
        // Nothing is left of a word that was the part and no more.
        if (!word.text.empty()) {
            Put(std::move(word));
        }
    }

    void Put(TextWord word) {
        // Marks end words, so :X:-NO is four of them; with PRE put in for three, PRE-NO is one.
        word.glued = word.glued && !m_bApart;
        m_bApart = false;
        const bool joins = word.glued && word.kind == WordKind::Word && !m_Result.empty() &&
                           m_Result.back().kind == WordKind::Word;
        if (joins) {
            m_Result.back().text += word.text;
        } else {
            m_Result.push_back(std::move(word));
        }
    }

    const std::vector<TextWord>& m_Words;
    const std::vector<Replacement>& m_Pairs;
    std::vector<TextWord> m_Result;
    bool m_bApart = false;  // a word was taken away, so that the next one joins nothing
};

}  // namespace

std::optional<std::vector<TextWord>> ReplaceWords(const std::vector<TextWord>& words,
                                                  const std::vector<Replacement>& pairs,
                                                  std::size_t most) {
    return CKTReplacer(words, pairs).Replace(most);
}
