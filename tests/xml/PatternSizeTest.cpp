#include "xml/PatternSize.h"

#include <vector>

#include <gtest/gtest.h>

namespace {

TEST(PatternSize, RepetitionsAreWrittenOut) {
    constexpr std::uint64_t kEndless = 2147483648;
    struct Row {
        std::u16string_view pattern;
        std::uint64_t parts;  // the pattern as a whole is one
        std::size_t depth;
    };
    const std::vector<Row> rows = {
        {u"", 1, 0},
        {u"ab*", 4, 0},
        {u"a{3}b", 5, 0},
        {u"a{2,5}b{3,}", 9, 0},
        {u"(ab){10}c", 32, 1},
        {u"((a{9}){9}){9}", 820, 2},
        {u"[{9}a-z-[(b]]{4}", 5, 0},
        {u"\\p{L}\\({3}\\[", 6, 0},
        {u"a{99999999999999999999}", kEndless, 0},
        {u"(a{65536}){65536}{65536}b", kEndless, 1},
        {u"((a", 4, 2},
        {u"{9}a)b{", 3, 0},
    };
    for (const auto& row : rows) {
        const PatternSize size = MeasurePattern(row.pattern);
        EXPECT_EQ(size.parts, row.parts) << &row - rows.data();
        EXPECT_EQ(size.depth, row.depth) << &row - rows.data();
    }
}

}  // namespace
