#include "kcomp/SourceLines.h"

#include <array>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "kcomp/TextWords.h"

namespace {

// All words in one line: before the first of a source line stands its number, before a word that
// is glued to the one before it "~", before a complaint "!".
std::string Shown(std::string_view content, SourceFormat& format) {
    std::string shown;
    std::size_t line = 0;
    for (const TextWord& word : SplitIntoWords(ReadLogicalLines(content, format), "")) {
        shown += shown.empty() ? "" : " ";
        if (word.place.line != line) {
            line = word.place.line;
            shown += std::to_string(line) + ": ";
        }
        shown += word.glued && word.kind != WordKind::Period ? "~" : "";
        shown += word.kind == WordKind::Fault ? "!" : "";
        shown += word.text;
    }
    return shown;
}

std::string Fixed(std::string_view content, SourceFormat format = SourceFormat::Fixed) {
    return Shown(content, format);
}

std::string Free(std::string_view content) {
    return Fixed(content, SourceFormat::Free);
}

std::string Of(std::size_t count, char c) {
    return std::string(count, c);
}

const std::string kBody = Of(7, ' ');
const std::string kMore = "      -    ";

TEST(SourceLines, TheFirstColumnsTellTheFormat) {
    using Sources = std::vector<std::string>;
    const std::vector<std::pair<const char*, Sources>> rows = {
        {"as the caller says",
         {"", "\n   \n", "       01 A.\n", "\t01 A.\n", "      *> A note.\n",
          "      -    LONG.\n      $SET ANS\n      D    05 B.\n", "CR0815 01 A.\nCR0815*Note.\n"}},
        {"fixed",
         {"      * A note.\n       01 A.\n", "      / A note.\n", "000100 01 A.\n",
          "0001   01 A.\n", "000100 01 A.\n000200 05 B.\n05 C PIC X.\n"}},
        {"free",
         {"01 A.\n", "01    A.\n", "    05 B PIC X.\n", "      05 B PIC X.\n",
          "*> A note.\n       01 A.\n", ">>SOURCE FREE\n       01 A.\n",
          "000100 01 A.\n01 A.\n05 B PIC X.\n"}},
    };
    for (const auto& [expected, sources] : rows) {
        for (const std::string& source : sources) {
            const bool fixed = DetectFormat(source, SourceFormat::Fixed) == SourceFormat::Fixed;
            const bool free = DetectFormat(source, SourceFormat::Free) == SourceFormat::Free;
            const char* const one = fixed ? "fixed" : "free";
            EXPECT_STREQ(fixed && free ? "as the caller says" : one, expected) << source;
        }
    }
}

TEST(SourceLines, FixedTextStandsInColumns8To72) {
    const std::string wide = kBody + "01 A" + Of(61, ' ');
    const std::vector<std::array<std::string, 2>> rows = {
        {"000100 01 A.\r\n000200\r\n000300    05 B.", "1: 01 A . 3: 05 B ."},
        {wide + "IDENT001\n" + kBody + ".", "1: 01 A 2: ."},
        {kBody + "01 " + Of(62, 'A') + "BCD.\n", "1: 01 " + Of(62, 'A')},
        {"      * 01 A.\n      / 01 B.\n      D 01 C.\n      d 01 D.\n\f\n      \f01 E.\n",
         "6: 01 E ."},
        {"000100\t01\tA.\n\t02 B.\t*> \"a\n", "1: 01 A . 2: 02 B ."},
        {"      x 01 A.\n", "1: !Column 7 holds \"x\", which is no indicator of the fixed format"},
        {kBody + "01 A.\n" + kBody + "02\x01.\n" + kBody + "03 B.\x1A\n" + kBody + "04.",
         "1: 01 A . 2: !The line holds a control character 3: 03 B . !Text follows the mark of the "
         "end of file"},
    };
    for (const auto& [source, expected] : rows) {
        EXPECT_EQ(Fixed(source), expected) << source;
    }
}

TEST(SourceLines, ContinuedLinesAreOne) {
    const std::string open = kBody + "'" + Of(64, 'a');
    const std::vector<std::array<std::string, 2>> rows = {
        // A word goes on behind its last character, a literal behind column 72.
        {kBody + "01 CUST   \n      * A note.\n\n" + kMore + "OMER PIC X.\n",
         "1: 01 CUSTOMER 4: PIC X ."},
        {kBody + "01 A VALUE 'a\n" + kMore + "'b''c'.\n",
         "1: 01 A VALUE 'a" + Of(52, ' ') + "b''c' 2: ."},
        {kBody + "\"" + Of(64, 'a') + "IDENT\n" + kMore + "\"" + Of(54, 'b') + "\n" + kMore +
             "\" c\"\n",
         "1: \"" + Of(64, 'a') + Of(54, 'b') + Of(6, ' ') + " c\""},
        // Two marks begin the second line: one restarts the literal, one ends the pair.
        {kBody + "'" + Of(63, 'a') + "'\n" + kMore + "''b'.\n", "1: '" + Of(63, 'a') + "''b' 2: ."},
        {kBody + "'" + Of(63, 'a') + "'\n" + kMore + "'''\n" + kMore + ".\n",
         "1: '" + Of(63, 'a') + "''' 3: ."},
        {kBody + "'" + Of(63, 'a') + "'\n" + kMore + ".\n" + kBody + "''c'\n",
         "1: '" + Of(63, 'a') + "' 2: . 3: '' ~c !The literal has no end"},
        {open + "b'.\n", "1: !The literal has no end; text behind column 72 is not read"},
        {open + "b'.\n" + kMore + "'b\n", "1: !The literal has no end"},
        {kMore + "A.\n", "1: !There is no line to continue"},
        {kBody + "A VALUE 'a\n" + kMore + "\"b\".\n" + kMore + "C.\n",
         "1: A VALUE !The literal has no end 2: !A continued literal begins with its "
         "quotation mark 3: !There is no line to continue"},
        {kBody + "A 'a\n" + kBody + "B.\n", "1: A !The literal has no end 2: B ."},
    };
    for (const auto& [source, expected] : rows) {
        EXPECT_EQ(Fixed(source), expected) << source;
    }
    EXPECT_EQ(Free("A 'a\n- 'b' \"*>\" *> 'c\n"), "1: A !The literal has no end 2: - 'b' \"*>\"");
}

TEST(SourceLines, DirectivesSetTheFormatFromTheNextLineOn) {
    const std::vector<std::array<const char*, 2>> rows = {
        {">>SOURCE FORMAT IS FREE\n01 A.\n", "2: 01 A . (free)"},
        {"       >>source free.\n05 A.\n", "2: 05 A . (free)"},
        {"      $SET SOURCEFORMAT\"FREE\"\n05 A.\n", "2: 05 A . (free)"},
        {"$set ans85 sourceformat(free)\n05 A.\n", "2: 05 A . (free)"},
        {">>SOURCE FREE\nA\n>>SOURCE FORMAT FIXED\n000400 B\n", "2: A 4: B (fixed)"},
        {"$SET ANS85\n>>PAGE\n>>LISTING OFF\n000400 A\n", "4: A (fixed)"},
        {"$IF A = 1\n>>SOURCE FORMAT VARIABLE\n",
         "1: !Directive \"$IF A = 1\" is not supported 2: !Directive \">>SOURCE FORMAT VARIABLE\" "
         "is not supported (fixed)"},
    };
    for (const auto& [source, expected] : rows) {
        SourceFormat used = SourceFormat::Fixed;
        const std::string shown = Shown(source, used);
        EXPECT_EQ(shown + (used == SourceFormat::Fixed ? " (fixed)" : " (free)"), expected);
    }
}

TEST(SourceLines, WordsEndAtSeparatorsMarksAndLiterals) {
    const std::vector<std::array<const char*, 2>> rows = {
        {"A, B; C.", "1: A B C ."},
        {"1,2 1.5. 1;2.", "1: 1,2 1.5 . 1;2 ."},
        {"'A','B'", "1: 'A' 'B'"},
        {"PIC Z(3).99.", "1: PIC Z ~( ~3 ~) ~.99 ."},
        {"PIC\n$9,999.", "1: PIC 2: $9,999 ."},
        {"==:A:==BY ==B C==.", "1: == ~: ~A ~: ~== ~BY == ~B C ~== ."},
        {"WS-:A:-NAME", "1: WS- ~: ~A ~: ~-NAME"},
        {"A==B==", "1: A ~== ~B ~=="},
        {"VALUE'it''s'.", "1: VALUE ~'it''s' ."},
        {"\"say \"\"*>\"\" twice\"\"\"", "1: \"say \"\"*>\"\" twice\"\"\""},
        {"x\"41\" nx'0041' Z\"a\" Y\"b\"", "1: x\"41\" nx'0041' Z\"a\" Y ~\"b\""},
        {"VALUE \"a", "1: VALUE !The literal has no end"},
        {"..A", "1: ..A"},
    };
    for (const auto& [source, expected] : rows) {
        EXPECT_EQ(Free(source), expected) << source;
    }
}

}  // namespace
