#ifndef DORVEX_KCOMP_REPLACING_H
#define DORVEX_KCOMP_REPLACING_H

#include <cstddef>
#include <optional>
#include <vector>

#include "kcomp/TextWords.h"

/// One "... BY ..." of a REPLACING phrase.
struct Replacement {
    enum class Part { Whole, Leading, Trailing };
    Part part = Part::Whole;
    std::vector<TextWord> from;  ///< at least one word; exactly one for a part of a word
    std::vector<TextWord> by;
};

/// Replaces, from left to right, what the first fitting pair names. What was put in is not
/// replaced again. Words that stand side by side without a blank in the end are one word.
/// What is put in for whole words stands, for messages, where the first of these stood. Returns
/// nothing when the result grows beyond `most` words before all of `words` are read.
std::optional<std::vector<TextWord>> ReplaceWords(const std::vector<TextWord>& words,
                                                  const std::vector<Replacement>& pairs,
                                                  std::size_t most);

#endif
