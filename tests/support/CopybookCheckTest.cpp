#include "CopybookCheck.h"

#include <stdexcept>

#include <gtest/gtest.h>

namespace {

TEST(CopybookCheck, JoinsContinuedLiteralsAndWords) {
    const std::string copybook =
        "      * a comment. with periods.\n"
        "       01 REC identified by \"r\".\n"
        "          05 NAME pic x(3\n"
        "      -       0) value is \"ab\n"
        "      -   \"cd\"\n"
        "      -   .\n"
        "          05 SAID pic x(9) value \"" +
        std::string(37, 'a') +
        "\"\n"
        "      -   \"\"b\".\n";
    // The b stands in column 29, so 43 blanks belong to the literal.
    const std::vector<Entry> expected = {
        {"01", "REC", "identified", "by", "\"r\""},
        {"05", "NAME", "pic", "x(30)", "value", "is", "\"ab" + std::string(43, ' ') + "cd\""},
        {"05", "SAID", "pic", "x(9)", "value", "\"" + std::string(37, 'a') + "\"\"b\""}};
    EXPECT_EQ(ReadEntries(copybook), expected);
}

TEST(CopybookCheck, IgnoresWhatStandsBehindColumn72) {
    const std::string line = "       01 REC pic x.";
    EXPECT_EQ(ReadEntries(line + std::string(72 - line.size(), ' ') + "NUMBER01\n"),
              (std::vector<Entry>{{"01", "REC", "pic", "x"}}));
}

TEST(CopybookCheck, RefusesWhatFixedFormatDoesNotAllow) {
    for (const char* copybook :
         {"       88 A value is \"one\n          two\".\n", "      -   two\".\n",
          "       88 A value is \"one\n      -   two\".\n", "       01 A pic x\n"}) {
        EXPECT_THROW(ReadEntries(copybook), std::runtime_error) << copybook;
    }
}

TEST(CopybookCheck, StripsEveryXmlClauseAndNothingElse) {
    const Entry entry = {"05",
                         "ITEM",
                         "pic",
                         "x(4)",
                         "value",
                         "is",
                         "\"count in A\"",
                         "identified",
                         "by",
                         "\"is attribute\"",
                         "NAMESPACE",
                         "IS",
                         "\"urn:a\"",
                         "is",
                         "attribute",
                         "count",
                         "in",
                         "ITEM-count",
                         "sync"};
    const Entry expected = {"05", "ITEM", "pic", "x(4)", "value", "is", "\"count in A\"", "sync"};
    EXPECT_EQ(WithoutXmlClauses(entry), expected);
}

TEST(CopybookCheck, PutsAFragmentUnderARecordOfItsOwn) {
    EXPECT_EQ(ProgramAround("           05 A pic x.\n"),
              "identification division.\nprogram-id. checked-program.\n"
              "data division.\nworking-storage section.\n"
              "01 checked-record.\n05 A pic x.\nprocedure division.\n    stop run.\n");
}

}  // namespace
