#include "kcomp/ProgramReader.h"

#include <algorithm>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "kcomp/DictionaryWriter.h"

namespace {

// The complaints about a bare copybook of the free format, each with its place, or else its items
// as the dictionary holds them: in one line, with apostrophes, without the container.
std::string Read(const std::string& source) {
    SourceFormat format = SourceFormat::Free;
    std::ostringstream complaints;
    CKTReport report(complaints);
    CKTProgramReader reader(SplitIntoWords(ReadLogicalLines(source, format), "a"), "A", {"a", 1},
                            report);
    const auto programs = reader.Read();
    std::string shown = complaints.str();
    if (shown.empty()) {
        std::istringstream lines(DictionaryOf(programs));
        for (std::string line; std::getline(lines, line);) {
            shown += line.substr(line.find_first_not_of(' '));
        }
        const std::string start = "<dataItems>";
        shown.erase(0, shown.find(start) + start.size());
        shown.erase(shown.rfind("</dataItems>"));
    }
    std::replace(shown.begin(), shown.end(), '"', '\'');
    return shown;
}

// What stands in the only element of `01 A clauses.` behind its name and level.
std::string Element(const std::string& clauses) {
    std::string shown = Read("01 A " + clauses + ".");
    for (const std::string part : {" name='A' level='01'", " picture='X' length='1'", "/>"}) {
        const std::size_t at = shown.find(part);
        shown.erase(std::min(at, shown.size()), at == std::string::npos ? 0 : part.size());
    }
    return shown.substr(1);
}

// The complaint about a source of one line.
std::string Complaint(const std::string& source) {
    const std::string shown = Read(source);
    const std::string place = "a(1) : Error : ";
    const bool whole = shown.starts_with(place) && shown.find('\n') + 1 == shown.size();
    return whole ? shown.substr(place.size(), shown.size() - place.size() - 1) : shown;
}

// Reads the lines of a table, each "input => expected".
void Check(std::string (*read)(const std::string&), const std::string& table) {
    std::istringstream lines(table.substr(1));
    for (std::string line; std::getline(lines, line);) {
        const std::string input = line.substr(0, line.find(" => "));
        EXPECT_EQ(input + " => " + read(input), line);
    }
}

const char* const kClauses = R"(
picture is a(5) usage is display => alphanumeric picture='a(5)' length='5'
PIC XB(2)X => alphanumericEdited picture='XB(2)X' length='4'
PIC N(4) => national picture='N(4)' usage='national' length='8'
PIC S9(4) NATIONAL LEADING SEPARATE => numeric picture='S9(4)' usage='national' digits='4' sign='ls'
PIC S9(5)V99 => numeric picture='S9(5)V99' digits='7' alignment='2'
COMP-1 => numeric usage='comp-1'
USAGE FLOAT-LONG => numeric usage='comp-2'
PIC 9 BINARY => numeric picture='9' usage='comp-4' digits='1'
PIC 9 PACKED-DECIMAL => numeric picture='9' usage='comp-3' digits='1'
PIC S9(3) COMP-X => numeric picture='S9(3)' usage='comp-x' digits='3'
COMPUTATIONAL-X PIC X(2) => numeric picture='X(2)' usage='comp-x' digits='5'
PIC 9(4)V9 COMP-6 => numeric picture='9(4)V9' usage='comp-6' digits='5' alignment='1'
USAGE PROCEDURE-POINTER => numeric usage='procedure-pointer'
COMPUTATIONAL-5 PIC 9V9 => numeric picture='9V9' usage='comp-5' digits='2' alignment='1'
INDEX => numeric usage='index'
USAGE POINTER => numeric usage='pointer'
BINARY-CHAR UNSIGNED => numeric picture='9(2)' usage='comp-5' digits='3'
BINARY-SHORT => numeric picture='S9(4)' usage='comp-5' digits='5'
BINARY-LONG SIGNED => numeric picture='S9(9)' usage='comp-5' digits='10'
BINARY-DOUBLE UNSIGNED => numeric picture='9(18)' usage='comp-5' digits='20'
PIC S9 SIGN IS LEADING => numeric picture='S9' digits='1' sign='li'
PIC S9 LEADING SEPARATE CHARACTER => numeric picture='S9' digits='1' sign='ls'
PIC S9 SIGN TRAILING SEPARATE => numeric picture='S9' digits='1' sign='ts'
TRAILING PIC S9 => numeric picture='S9' digits='1'
PIC XX JUST RIGHT => alphanumeric picture='XX' length='2' justified='right'
PIC 99 BLANK WHEN ZEROES => numericEdited picture='99' length='2' blankWhenZero='true'
PIC X OCCURS 012 => alphanumeric maxOccurs='12'
OCCURS 0 TO 5 TIMES DEPENDING N IN R OF S PIC X => alphanumeric minOccurs='0' maxOccurs='5' odo='N OF R OF S'
PIC X OCCURS 5 DEPENDING ON N => alphanumeric minOccurs='1' maxOccurs='5' odo='N'
OCCURS 1 TO UNBOUNDED DEPENDING ON N PIC X => alphanumeric minOccurs='1' maxOccurs='unbounded' odo='N'
OCCURS 2 ASCENDING KEY IS K L OF M DESCENDING A INDEXED BY I, J PIC X => alphanumeric maxOccurs='2' ascendingKey='K L OF M' descendingKey='A' indexedBy='I J'
PIC 9 SYNC LEFT IS GLOBAL => numeric picture='9' digits='1' synchronized='left' global='true'
IS EXTERNAL AS 'it''s' SYNCHRONIZED PIC X BASED => alphanumeric external='it's' synchronized='true' based='true'
PIC X IDENTIFIED BY "a<b" NAMESPACE IS 'u&v' IS ATTRIBUTE COUNT IN N => alphanumeric identifiedBy='a&lt;b' namespace='u&amp;v' attribute='true' countIn='N'
PIC X(3) VALUE ALL 'a"b''c' => alphanumeric picture='X(3)' length='3' value='ALL &quot;a&quot;&quot;b'c&quot;'
PIC X VALUE 'a' & "b" => alphanumeric value='&quot;ab&quot;'
PIC S9V9 VALUE -.5 => numeric picture='S9V9' digits='2' alignment='1' value='-.5'
COMP-2 VALUE +1.5E-3 => numeric usage='comp-2' value='+1.5E-3'
)";

TEST(ProgramReader, ClausesOfOneItem) {
    Check(Element, kClauses);
}

TEST(ProgramReader, ItemsTakeFromGroupsAndOtherItems) {
    const std::vector<std::array<const char*, 2>> rows = {
        // USAGE and SIGN reach down to what they fit, unless an item has its own.
        {"01 G COMP-3 SIGN LEADING SEPARATE. 02 B PIC S9. 02 C PIC S9 DISPLAY. 02 D PIC 9 DISPLAY. "
         "02 H SIGN TRAILING. 49 E PIC S9 DISPLAY. 49 F COMP-1. 77 I PIC S9.",
         "<group name='G' level='01'><numeric name='B' level='02' picture='S9' usage='comp-3' "
         "digits='1'/><numeric name='C' level='02' picture='S9' digits='1' sign='ls'/><numeric "
         "name='D' level='02' picture='9' digits='1'/><group name='H' level='02'><numeric name='E' "
         "level='49' picture='S9' digits='1'/><numeric name='F' level='49' usage='comp-1'/></group>"
         "</group><numeric name='I' level='77' picture='S9' digits='1'/>"},
        // Unnamed items; a redefinition; the levels of a copybook that belongs under a record.
        {"05 FILLER. 10 INDEX. 10 filler INDEX. 05 B INDEX. 05 C REDEFINES b INDEX.",
         "<group name='filler' level='05'><numeric name='filler' level='10' usage='index'/>"
         "<numeric name='filler' level='10' usage='index'/></group><numeric name='B' level='05' "
         "usage='index'/><numeric name='C' level='05' redefines='true' redefinedItem='b' "
         "usage='index'/>"},
        // Conditions; constants stand for numbers and values.
        {"78 N VALUE 3. 01 M CONSTANT AS -1. 01 B PIC 9(n) OCCURS N. 88 C VALUE 1,2 M, N THRU 5.",
         "<numericConstant name='N' value='3'/><numericConstant name='M' value='-1'/><numeric "
         "name='B' level='01' picture='9(3)' digits='3' maxOccurs='3'><numericCondition name='C'>"
         "<numericConstant value='1'/><numericConstant value='2'/><numericConstant value='-1'/>"
         "<numericRange from='3' to='5'/></numericCondition></numeric>"},
        {"78 N VALUE 3. 01 B PIC 9. 88 C VALUE ZERO,1 THRU N,7 'A',SPACE.",
         "<numericConstant name='N' value='3'/><numeric name='B' level='01' picture='9' digits='1'>"
         "<numericCondition name='C'><numericConstant value='ZERO'/><numericRange from='1' to='3'/>"
         "<numericConstant value='7'/><numericConstant value='&quot;A&quot;'/><numericConstant "
         "value='SPACE'/></numericCondition></numeric>"},
        {"01 G. 88 C VALUES ARE 'a' THROUGH 'c' \"x\" WHEN SET TO FALSE SPACE. 02 D COMP-1.",
         "<group name='G' level='01'><alphanumericCondition name='C' falseValue='SPACE'>"
         "<alphanumericRange from='&quot;a&quot;' to='&quot;c&quot;'/><alphanumericConstant "
         "value='&quot;x&quot;'/></alphanumericCondition><numeric name='D' level='02' "
         "usage='comp-1'/></group>"},
    };
    for (const auto& [source, expected] : rows) {
        EXPECT_EQ(Read(source), expected);
    }
}

// Level 78 goes from left to right, CONSTANT by precedence; quotients lose their fraction.
const char* const kExpressions = R"(
78 N VALUE 2 + 3 * 4. => 20
78 N VALUE 2 + (3 * (4 - 6)). => -4
78 N VALUE - 2. => A whole number, a constant or LENGTH OF is expected in the expression
78 M VALUE -7. 78 N VALUE M / 2 ** 2. => 9
01 N CONSTANT AS 2 + 3 * 2 ** 3 - 1. => 25
01 N CONSTANT 9 / 2. => 4
78 N VALUE -1 ** 999999999999999999. => -1
78 N VALUE LENGTH OF 'it''s' + LENGTH "a". => 5
78 N VALUE LENGTH OF X"4142". => 2
01 A. 02 B PIC X(3) OCCURS 4. 02 C REDEFINES B PIC X(9). 78 N VALUE LENGTH OF A. => 12
01 A. 02 B PIC X. 78 M VALUE LENGTH A. 02 C PIC 9(M) COMP-3. 02 D PIC X. 78 N VALUE LENGTH A. => 3
01 A OCCURS 3. 02 B. 03 C PIC NN. 03 D. 78 N VALUE LENGTH OF B IN A * 2 + LENGTH OF A. 04 E PIC X. => 20
01 A COMP-3 SIGN LEADING SEPARATE. 02 B PIC 9(5). 02 C PIC S9 DISPLAY. 78 N VALUE LENGTH A. => 5
01 A COMP-X. 02 B PIC 9(7). 02 C PIC 9(8). 02 D PIC S9(7). 02 E PIC X(5). 01 F PIC X. 78 N VALUE LENGTH A. => 16
01 A COMP-6. 02 B PIC 9(6). 02 C PIC 9(7). 02 D PROCEDURE-POINTER. 77 E PIC X. 78 N VALUE LENGTH A. => 15
78 N VALUE 1 +. => A whole number, a constant or LENGTH OF is expected in the expression
78 N VALUE 1.5 + 1. => A whole number, a constant or LENGTH OF is expected in the expression
78 N VALUE (1 + 2. => A parenthesis of the expression is not closed
78 N VALUE 9 / 0. => The expression has no whole number of 64 bits as its value
78 N VALUE 10 ** 19. => The expression has no whole number of 64 bits as its value
78 N VALUE LENGTH OF A. => LENGTH OF names 'A', which does not stand before it
01 A. 02 B PIC X. 01 C. 02 B PIC X. 78 N VALUE LENGTH OF B. => LENGTH OF names 'B', of which there are several
)";

// The value of the constant N, or the complaint.
std::string ValueOfN(const std::string& source) {
    const std::string shown = Read(source);
    const std::string constant = "name='N' value='";
    const std::size_t at = shown.find(constant);
    const std::string place = "a(1) : Error : ";
    return at != std::string::npos
               ? shown.substr(at + constant.size(),
                              shown.find('\'', at + constant.size()) - at - constant.size())
               : shown.substr(place.size(), shown.find('\n') - place.size());
}

TEST(ProgramReader, ConstantsAreWorkedOut) {
    Check(ValueOfN, kExpressions);
}

// Another name for an item, or the bytes of several: 3 + 3 + 2 + 4 + 8 + 4 + 8 + 4 + 4 + 3 + 8 + 4
// + 4 + 16, the redefinition not counted.
TEST(ProgramReader, RenamesDescribesAnItemOrARange) {
    const std::string shown = Read(
        "01 F. 02 B INDEX. 66 A RENAMES B. 01 G. 02 B PIC X(3). 02 C PIC S9(5) COMP-3. 02 D PIC "
        "9(4) COMP. 02 E COMP-1. 02 F COMP-2. "
        "02 H INDEX. 02 I POINTER. 02 J PIC NN. 02 K PIC S9(3) SIGN LEADING SEPARATE. "
        "02 L. 03 M PIC X OCCURS 3. 02 N PIC 9(10) COMP-5. 02 O REDEFINES n. 03 C PIC X(8). "
        "02 P. 03 Q PIC 9(9) BINARY. 03 V PIC 9(5) COMP. 03 R PIC 9(19) COMP. 66 S RENAMES B THRU "
        "R OF P. "
        "66 T RENAMES K IN G. 66 U RENAMES D THROUGH C OF O.");
    EXPECT_EQ(shown.substr(shown.find("<alphanumeric name='S'")),
              "<alphanumeric name='S' level='66' renames='B THRU R' length='75'/>"
              "<numeric name='T' level='66' renames='K' picture='S9(3)' digits='3' sign='ls'/>"
              "<alphanumeric name='U' level='66' renames='D THRU C' length='45'/></group>");
}

const char* const kComplaints = R"(
50 A PIC X. => Level 50 is none of 01 to 49, 66, 77, 78 and 88
001 A PIC X. => Level 001 is none of 01 to 49, 66, 77, 78 and 88
01 A PIC X 05 B PIC X. => The period before 05 is missing
01 A OBJECT. => Clause 'OBJECT' is not supported
01 A PIC S9 COMP-6. => Item 'A' has USAGE COMP-6, which does not go with PICTURE 'S9'
01 A PIC X(9) COMP-X. => Item 'A' has USAGE COMP-X, which does not go with PICTURE 'X(9)'
01 A PIC 9 COMP-X BLANK ZERO. => Item 'A' cannot be BLANK WHEN ZERO
01 A PIC X(0)9. => PICTURE 'X(0)9' has a count of zero
01 A. 05 B. 10 C PIC X. 07 D PIC X. 05 E PIC X. => The level of 'D' is that of no item before it in its group
FD F. 77 A PIC X. => 'A' is of level 77, which is no record of a file
01 A. 02 B PIC X(3). 02 C REDEFINES B. 03 D PIC X OCCURS 4. => Item 'C' is larger than 'B', which it redefines
05 A PIC 9(4) COMP. 05 B REDEFINES A PIC X(3). => Item 'B' is larger than 'A', which it redefines
01 A. 02 B PIC XX. 02 C REDEFINES B PIC X. 02 D REDEFINES C PIC X(3). => Item 'D' is larger than 'C', which it redefines
WORKING-STORAGE SECTION. 01 A. 02 B PIC X OCCURS UNBOUNDED. => OCCURS UNBOUNDED has no storage in the WORKING-STORAGE SECTION
01 A PIC X PICTURE X. => Clause PICTURE is given twice
01 A PIC X. 88 C PIC X VALUE 'a'. => A condition-name has a name, a VALUE clause and nothing else
66 C VALUE 1. => An entry of level 66 has a name, a RENAMES clause and nothing else
78 N VALUE 1 2. => A constant has a name, one value and nothing else
01 A. 02 B PIC X. 02 C RENAMES B. => RENAMES belongs to level 66
01 A PIC X VALUE 'a' 'b'. => Only a condition-name has several values
01 A PIC X INDEXED BY I. => DEPENDING ON, INDEXED BY and keys belong to an OCCURS clause
01 A PIC X ASCENDING KEY B. => DEPENDING ON, INDEXED BY and keys belong to an OCCURS clause
01 A PIC X OCCURS UNBOUNDED TO 5. => Clause 'TO' is not supported
01 T IS TYPEDEF PIC X. => Clause 'TYPEDEF' is not supported
01 A PIC X OCCURS 1 TO 5. => OCCURS with TO needs DEPENDING ON
01 A PIC 9 BLANK WHEN. => BLANK WHEN ZERO is not complete
01 A PIC X IS. => 'IS' is not expected here
01 A PIC X OCCURS 5 TO 5 DEPENDING ON N. => OCCURS has no rising bounds
01 A PIC X OCCURS 0. => OCCURS has no rising bounds
01 A PIC. => PICTURE has no character-string
01 A SIGN PIC S9. => SIGN is neither LEADING nor TRAILING
01 A PIC 9 USAGE IS. => USAGE is not complete
01 A USAGE FUNCTION-POINTER. => USAGE 'FUNCTION-POINTER' is not supported
01 A PIC 9 BINARY-LONG. => Item 'A' has a binary type, which takes no PICTURE
01 A- PIC X. => 'A-' is no name
01 A REDEFINES. => A name is missing at the end of the entry
01 A PIC X OCCURS 1234567890. => A whole number of at most nine digits is expected
01 A PIC X NAMESPACE N. => A literal is expected
01 A PIC X VALUE 'a' & X'41'. => Only plain literals can be joined by '&'
01 A PIC X VALUE. => A value is missing at the end of the entry
01 A PIC X VALUE B. => 'B' is no value
01 A PIC X VALUE 'a. => The literal has no end
01 A JUST. 02 B PIC X. => Item 'A' is a group, which is neither JUSTIFIED nor BLANK WHEN ZERO
01 A COMP-1 PIC 9. => Item 'A' has a usage that takes neither PICTURE nor JUSTIFIED nor BLANK
01 A. => Item 'A' has neither a PICTURE nor items below it
01 A PIC K. => PICTURE 'K' holds what is no PICTURE symbol
01 A COMP. 02 B PIC X. => Item 'B' has USAGE COMP, which does not go with PICTURE 'X'
01 PIC Z9 JUST. => Item 'FILLER' is numeric and cannot be JUSTIFIED
01 A PIC S9 BLANK ZERO. => Item 'A' cannot be BLANK WHEN ZERO
01 A PIC 9 COMP BLANK ZERO. => Item 'A' cannot be BLANK WHEN ZERO
01 A PIC 9 LEADING. => Item 'A' has a SIGN clause but is no signed numeric item of USAGE DISPLAY
DATA DIVISION. WORKING-STORAGE SECTION. 05 A PIC X. => 'A' stands under no level 01
01 A PIC X. 02 B PIC X. => 'B' stands under an item that has a PICTURE
88 C VALUE 1. => Condition-name 'C' stands behind no item
01 A PIC X. 66 B RENAMES A. => 'B' renames items of no record
01 A. 02 B PIC X. 01 C REDEFINES B PIC X. => REDEFINES names 'B', which does not stand before it beside it
01 A. 02 B PIC X. 02 C PIC X. 66 D RENAMES C THRU B. => RENAMES names 'B', which does not stand behind 'C'
01 A. 02 B. 03 C PIC X. 66 D RENAMES B THRU C. => RENAMES names 'C', which does not stand behind 'B'
01 A. 02 B PIC X. 66 D RENAMES C. => RENAMES names 'C', which the record does not have
01 A. 02 B. 03 D PIC X. 02 C. 03 D PIC X. 66 E RENAMES D. => RENAMES names 'D', of which the record has several
01 A. 02 B OCCURS 2. 03 D PIC X. 66 E RENAMES D. => RENAMES names 'D', which has OCCURS
01 A. 02 B PIC X. 66 D RENAMES B. 02 C PIC X. => 'C' stands under no level 01
PROCEDURE DIVISION. => The source holds no program and no data description
01 A PIC X. AREA B. => 'AREA' begins no data description entry
EXEC SQL INCLUDE SQLCA END-EXEC. => 'EXEC SQL INCLUDE' is not supported
FD. => 'FD' names no file
DATA DIVISION. 01 A PIC X. => '01' stands in no section
DATA DIVISION. STORAGE SECTION. 01 A PIC X. => Section 'STORAGE' is not known
ENVIRONMENT DIVISION. CURRENCY 'F. => The literal has no end
WORKING-STORAGE SECTION. 01 A PIC X. PROCEDURE DIVISION. B SECTION. DISPLAY 'x. => <alphanumeric name='A' level='01' picture='X' length='1'/>
FILE SECTION. 01 A PIC X. => The record stands under no FD or SD
01 A PIC X => The entry does not end with a period
01 A COLOUR RED. 02 B PIC X. 02 C REDEFINES A. 88 D VALUE 1. 66 E RENAMES B. => Clause 'COLOUR' is not supported
WORKING-STORAGE SECTION 01 A PIC X. => The section header has no period
)";

TEST(ProgramReader, EachComplaintNamesWhatIsWrong) {
    Check(Complaint, kComplaints);
}

// What may be right on some system, or says nothing about data.
TEST(ProgramReader, WhatIsNotSurelyWrongIsTaken) {
    for (const std::string source : {
             "01 A PIC X. 01 B REDEFINES A PIC XX.",
             "77 A PIC X. 77 B REDEFINES A PIC XX.",
             "01 A. 02 B PIC XX. 02 C REDEFINES B PIC X. 02 D REDEFINES C PIC XX.",
             "01 A. 02 B PIC X(3). 02 C REDEFINES B PIC 9(5) COMP.",
             "01 A. 02 B PIC X(4). 02 C REDEFINES B POINTER.",
             "01 A. 02 B. 03 C PIC X. 03 D COMP-2 SYNC. 02 E REDEFINES B PIC X(16).",
             "10 A PIC X. 05 B PIC X.",
             "FILE SECTION. FD F. 01 A. 02 B PIC X OCCURS UNBOUNDED. WORKING-STORAGE SECTION. 01 C "
             "PIC X.",
             "01 A PIC X. EXEC SQL BEGIN DECLARE SECTION END-EXEC. 01 B PIC X. EXEC SQL END "
             "DECLARE SECTION END-EXEC",
             "DATA DIVISION. EXEC SQL BEGIN DECLARE SECTION END-EXEC. WORKING-STORAGE SECTION. 01 "
             "A PIC X.",
         }) {
        EXPECT_EQ(Read(source).find("Error"), std::string::npos) << source << '\n' << Read(source);
    }
}

TEST(ProgramReader, AMissingPeriodLosesNothing) {
    const std::string error = " : Error : ";
    EXPECT_EQ(Read("FD F\n01 A PIC X.\n"), "a(2)" + error + "The period before 01 is missing\n");
    EXPECT_EQ(Read("FD F\nFD G LABEL RECORD STANDARD 01 A PIC X."),
              "a(2)" + error + "The period before FD is missing\na(2)" + error +
                  "The period before 01 is missing\n");
    // Numbers of an FD are no levels.
    EXPECT_EQ(Read("FD F RECORD CONTAINS\n01 TO\n40\nLABEL RECORD IS STANDARD.\n01 A PIC Q."),
              "a(5)" + error + "PICTURE 'Q' holds what is no PICTURE symbol\n");
    EXPECT_EQ(Read("01 A.\n02 E PIC 9.\n88 B VALUE 1\n88 C VALUE 2\n02 D FOO.\n"),
              "a(4)" + error + "The period before 88 is missing\na(5)" + error +
                  "The period before 02 is missing\na(5)" + error +
                  "Clause 'FOO' is not supported\n");
    EXPECT_EQ(Read("01 A PIC X\nPROCEDURE DIVISION. MOVE A TO B. MOVE C TO D."),
              "a(1)" + error + "The entry does not end with a period\n");
    const std::string many = Read("01 A." + std::string(300, '.') + [] {
        std::string entries;
        for (int i = 0; i < 200; ++i) {
            entries += " FOO.";
        }
        return entries;
    }());
    EXPECT_TRUE(many.ends_with("\nkcomp : Error : There are more errors\n"));
    EXPECT_EQ(std::count(many.begin(), many.end(), '\n'), 101);
}

TEST(ProgramReader, SpecialNamesEndWithTheirProgram) {
    const std::string special = "ENVIRONMENT DIVISION. DECIMAL-POINT IS COMMA. CURRENCY 'F'. ";
    const std::string data = "DATA DIVISION. WORKING-STORAGE SECTION. ";
    const std::string shown =
        Read("PROGRAM-ID. A. " + special + data + "01 B PIC FF9,9 VALUE 1,5. " + "PROGRAM-ID. C. " +
             data + "01 D PIC 9,9. END PROGRAM C. END PROGRAM A. " + "PROGRAM-ID. E. " + data +
             "01 F PIC $$9.9 VALUE 1.5.");
    EXPECT_EQ(shown,
              "<numericEdited name='B' level='01' picture='FF9,9' length='5' value='1,5'/>"
              "</dataItems></program><program name='C'><dataItems>"
              "<numericEdited name='D' level='01' picture='9,9' length='3'/>"
              "</dataItems></program><program name='E'><dataItems>"
              "<numericEdited name='F' level='01' picture='$$9.9' length='5' value='1.5'/>");
}

}  // namespace
