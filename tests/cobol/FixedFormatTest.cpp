#include <iostream>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "RedirectedStream.h"
#include "cobol/KTCOBOLRecordItem.h"

namespace {

std::string Of(std::size_t count, char c) {
    return std::string(count, c);
}

const std::string kEntry = Of(7, ' ');
const std::string kNextLine = "\n" + Of(10, ' ');
const std::string kContinued = "\n      -   ";
const std::string kComment = "\n      *   ";
const std::string kQuote = "\"";

TEST(FixedFormat, EntriesStayWithinColumn72) {
    // A run of 314 blanks is written as 254 and 60 blanks, each piece cut like a word.
    const std::string full = kContinued + Of(62, ' ');
    const std::string cutBlanks = kNextLine + Of(62, ' ') + full + full + full + kContinued;
    const std::string lit = "01 A identified by \"";
    const std::string litStart = kEntry + "01 A identified by " + kNextLine + kQuote;
    struct Row {
        const char* what;
        std::string line;
        std::string expected;
    };
    const std::vector<Row> rows = {
        {"up to column 72", "01 A " + Of(60, 'w'), kEntry + "01 A " + Of(60, 'w')},
        {"one more", "01 A " + Of(61, 'w'), kEntry + "01 A " + kNextLine + Of(61, 'w')},
        {"blank behind 72", Of(65, 'w') + "  B.", kEntry + Of(65, 'w') + kNextLine + "  B."},
        {"long word", "01 " + Of(125, 'w'),
         kEntry + "01 " + kNextLine + Of(62, 'w') + kContinued + Of(62, 'w') + kContinued + "w"},
        {"long first word", Of(66, 'w'), kEntry + Of(65, 'w') + kContinued + "w"},
        {"long literal", lit + Of(80, 'a') + "\".",
         litStart + Of(61, 'a') + kContinued + kQuote + Of(19, 'a') + "\"."},
        {"literal of three lines", lit + Of(123, 'a') + "\".",
         litStart + Of(61, 'a') + kContinued + kQuote + Of(61, 'a') + kContinued + "\"a\"."},
        {"period left", lit + Of(60, 'a') + "\".",
         litStart + Of(60, 'a') + kQuote + kNextLine + "."},
        {"more than a period left", lit + Of(59, 'a') + "\",\"b c\".",
         litStart + Of(59, 'a') + kQuote + kNextLine + ",\"b c\"."},
        {"doubled before the cut", lit + Of(59, 'a') + "\"\"b\".",
         litStart + Of(59, 'a') + "\"\"" + kContinued + "\"b\"."},
        {"doubled at the end", lit + Of(58, 'a') + "\"\"\".",
         litStart + Of(58, 'a') + "\"\"\"" + kNextLine + "."},
        {"doubled around the cut", lit + Of(60, 'a') + "\"\"b\".",
         litStart + Of(60, 'a') + kQuote + kContinued + "\"\"b\"."},
        {"blanks in a literal", "01 A \"" + Of(40, 'a') + "  b " + Of(14, 'c') + "\".",
         kEntry + "01 A " + kNextLine + kQuote + Of(40, 'a') + "  b " + Of(14, 'c') + "\"."},
        {"blanks at the cut", lit + Of(58, 'a') + " \t\nb c\".",
         litStart + Of(58, 'a') + "   " + kContinued + "\"b c\"."},
        {"literal that fits", "01 A \"a  b\" \"c\".", kEntry + "01 A \"a  b\" \"c\"."},
        {"apostrophes", "01 A '" + Of(40, 'a') + " it''s \"" + Of(20, 'b') + "'.",
         kEntry + "01 A " + kNextLine + "'" + Of(40, 'a') + " it''s \"" + Of(13, 'b') + kContinued +
             "'" + Of(7, 'b') + "'."},
        {"a letter before it", "01 A x\"" + Of(30, '0') + " " + Of(40, '0') + "\".",
         kEntry + "01 A " + kNextLine + "x\"" + Of(30, '0') + " " + Of(29, '0') + kContinued +
             kQuote + Of(11, '0') + "\"."},
        {"nothing closes it", "01 \"" + Of(70, 'a') + "\"\" b.",
         kEntry + "01 " + kNextLine + kQuote + Of(61, 'a') + kContinued + Of(9, 'a') + "\"\" b."},
        {"no literal within a word", "01 ab'c " + Of(52, 'w') + " d'.",
         kEntry + "01 ab'c " + Of(52, 'w') + " d'."},
        {"nor across words", "01 ab'c " + Of(54, 'w') + " d'.",
         kEntry + "01 ab'c " + Of(54, 'w') + " " + kNextLine + "d'."},
        {"seven blanks", Of(7, ' ') + "01 A.", kEntry + "01 A."},
        {"nine blanks", Of(9, ' ') + "02 A " + Of(60, 'w'),
         kEntry + "  02 A " + kNextLine + "  " + Of(60, 'w')},
        {"most blanks", Of(300, ' ') + "49 " + Of(18, 'w'),
         Of(55, ' ') + "49 " + kNextLine + Of(48, ' ') + Of(14, 'w') + kContinued + Of(48, ' ') +
             "wwww"},
        {"comment", "* a note", "      * a note"},
        {"indented comment", Of(9, ' ') + "* a note", Of(8, ' ') + "* a note"},
        {"no comment", "*note", kEntry + "*note"},
        {"wrapped comment", "* " + Of(60, 'w') + " more",
         "      * " + Of(60, 'w') + " " + kComment + "more"},
        {"long word of a comment", "* " + Of(70, 'w'),
         "      * " + kComment + Of(62, 'w') + kComment + Of(8, 'w')},
        {"tabs", "01\t\tA  \t B.  ", kEntry + "01  A    B."},
        {"line breaks", "01 A\r\nB\n\nC.\n", kEntry + "01 A  B  C."},
        {"long blanks", "01" + Of(314, ' ') + "A.",
         kEntry + "01" + cutBlanks + Of(6, ' ') + kNextLine + Of(60, ' ') + "A."},
        {"empty", "", ""},
        {"only blanks", " \t ", ""},
    };
    for (const auto& row : rows) {
        std::ostringstream out;
        CKTCOBOLRecordItem::OutputFixedFormatCOBOL(row.line.c_str(), out);
        EXPECT_EQ(out.str(), row.expected + "\n") << row.what;
    }
}

TEST(FixedFormat, AFailedStreamIsLeftAlone) {
    std::ostringstream failed;
    failed.setstate(std::ios::badbit);
    int column = 73;
    const CKTRedirectedStream console(std::cout);
    CKTCOBOLRecordItem::OutputCOBOLToken("01", failed, 0, column, false);
    EXPECT_EQ(console.Text(), "");
    CKTCOBOLRecordItem::OutputFixedFormatCOBOL("01 A.", failed);
    EXPECT_EQ(console.Text(), "       01 A.\n");
}

}  // namespace
