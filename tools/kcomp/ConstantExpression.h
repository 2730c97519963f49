#ifndef DORVEX_KCOMP_CONSTANTEXPRESSION_H
#define DORVEX_KCOMP_CONSTANTEXPRESSION_H

#include <span>
#include <string>

#include "kcomp/EntryReader.h"
#include "kcomp/TextWords.h"

/// What the value of a named constant came to.
struct ExpressionResult {
    std::string value;     ///< the number; empty after a fault
    CKTMessageText fault;  ///< the complaint about the word at `end`
    std::size_t end = 0;   ///< the index behind the expression
};

/// Whether an expression begins or goes on at `at`: with a parenthesis, LENGTH OF, or an operator.
bool IsPartOfExpression(std::span<const TextWord> words, std::size_t at);

/// Works out an expression of whole numbers, named constants and LENGTH OF, which begins at `at`.
/// With `precedence` multiplication comes before addition; without it, as in level 78, the
/// operators act from left to right.
ExpressionResult ReadExpression(std::span<const TextWord> words, std::size_t at, bool precedence,
                                ReadingContext& context);

#endif
