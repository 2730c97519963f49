#include "support/Text.h"

#include <clocale>
#include <cstdio>
#include <iostream>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "RedirectedStream.h"
#include "support/Files.h"

namespace {

class TextTest : public testing::Test {
protected:
    void SetUp() override { ASSERT_NE(std::setlocale(LC_ALL, "C.UTF-8"), nullptr); }
};

TEST_F(TextTest, LastOccurrenceIsFoundPerCharacter) {
    const char* const rows[][3] = {
        {"archive.tar.gz", ".", ".gz"},
        {"README", ".", ""},
        {"", ".", ""},
        {"end.", ".", "."},
        {"\xff.x", ".", ".x"},
        {"aXbx.", "X", "x."},
        {"a.c", ".b", ".c"},
        {"\xc3\xa9.\xc3\xa9z", "\xc3\xa9", "\xc3\xa9z"},
    };
    for (const auto& [text, sub, expected] : rows) {
        EXPECT_STREQ(my_strrchr(text, sub), expected) << text;
    }
}

TEST_F(TextTest, ComparisonsIgnoreCaseAndStopAtTheEnd) {
    EXPECT_EQ(my_strnicmp("-cout", "-C", 2), 0);
    EXPECT_EQ(my_strnicmp("-cx", "-C", 4), 'x');
    EXPECT_EQ(my_strnicmp("abc", "xyz", 0), 0);
    EXPECT_EQ(my_strnicmp("abC", "aBd", 3), -1);
    EXPECT_EQ(my_strnicmp("ABC", "abc", 99), 0);
    EXPECT_EQ(my_stricmp("-LOG", "-log"), 0);
    EXPECT_EQ(my_stricmp("-LOG", "-logF"), -'f');
}

TEST_F(TextTest, ConversionsKeepEveryCharacterOfTheLocaleAndReportOthers) {
    const std::string narrow = "a\xc3\xa9\xf0\x9f\x98\x80z";
    EXPECT_EQ(my_mbstowcs(narrow.c_str()), L"a\u00e9\U0001F600z");
    EXPECT_EQ(my_wcstombs(L"a\u00e9\U0001F600z"), narrow);
    EXPECT_EQ(WidenText(narrow.c_str()), u"a\u00e9\U0001F600z");
    EXPECT_EQ(NarrowText(u"a\u00e9\U0001F600z"), narrow);
    EXPECT_EQ(my_mbstowcs(nullptr), L"");
    EXPECT_EQ(my_wcstombs(nullptr), "");

    const RedirectedStream errors(std::cerr);
    const int before = m_nErrorCount;
    EXPECT_EQ(my_mbstowcs("ok\xff"), L"");
    std::setlocale(LC_ALL, "C");
    EXPECT_EQ(my_wcstombs(L"ok\u00e9"), "");
    EXPECT_EQ(errors.Text(),
              "Error : Unable to convert multibyte character to Unicode\n"
              "Error : Unable to convert Unicode character to multibyte\n");
    EXPECT_EQ(m_nErrorCount - before, 2);
}

TEST_F(TextTest, FileNamesWithBlanksAreQuotedOnce) {
    EXPECT_EQ(ProcessSpaceyFilename("my prog.cbl", nullptr), "\"my prog.cbl\"");
    EXPECT_EQ(ProcessSpaceyFilename("\"a.cbl\"", nullptr), "a.cbl");
    EXPECT_EQ(ProcessSpaceyFilename("\"\xff \xe9\"", nullptr), "\"\xff \xe9\"");
    std::FILE* trace = std::tmpfile();
    ASSERT_NE(trace, nullptr);
    EXPECT_EQ(ProcessSpaceyFilename("\"a \"\"b\"", trace), "\"a b\"");
    std::rewind(trace);
    char text[80] = {};
    EXPECT_EQ(std::fread(text, 1, sizeof text, trace), 44U);
    EXPECT_STREQ(text, "Removed Quotes : a b\nFinal Filename : \"a b\"\n");
    std::fclose(trace);
}

TEST_F(TextTest, MessagesAreCountedByTheirBeginningOnTheConsoleAlone) {
    const int errors = m_nErrorCount;
    const int warnings = m_nWarningCount;
    const RedirectedStream console(std::cerr);
    for (const char* text : {"Error : ", "error :x", "Internal Error : ", "WARNING : ", "Error: ",
                             "\nError : ", "Fatal Error : ", "Internal", "Warning", ""}) {
        std::cerr << text;
    }
    std::ostringstream other;
    other << "Error : ";
    std::ostream detached(nullptr);
    detached << "Error : ";
    EXPECT_EQ(m_nErrorCount - errors, 3);
    EXPECT_EQ(m_nWarningCount - warnings, 1);
}

}  // namespace
