#include "support/Text.h"

#include <array>
#include <clocale>
#include <iostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "RedirectedStream.h"

namespace {

class TextTest : public testing::Test {
protected:
    void SetUp() override { ASSERT_NE(std::setlocale(LC_ALL, "C.UTF-8"), nullptr); }
};

TEST_F(TextTest, LastOccurrenceIsFoundPerCharacter) {
    const std::vector<std::array<const char*, 3>> rows = {
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
    struct Row {
        const char* left;
        const char* right;
        int most;
        int difference;
    };
    const std::vector<Row> rows = {
        {"-cout", "-C", 2, 0}, {"-cx", "-C", 4, 'x'}, {"abc", "xyz", 0, 0},
        {"abC", "aBd", 3, -1}, {"ABC", "abc", 99, 0},
    };
    for (const auto& [left, right, most, difference] : rows) {
        EXPECT_EQ(my_strnicmp(left, right, most), difference) << left << " and " << right;
    }
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

    const CKTRedirectedStream errors(std::cerr);
    const int before = m_nErrorCount;
    EXPECT_EQ(my_mbstowcs("ok\xff"), L"");
    std::setlocale(LC_ALL, "C");
    EXPECT_EQ(my_wcstombs(L"ok\u00e9"), "");
    EXPECT_EQ(errors.Text(),
              "Error : Unable to convert multibyte character to Unicode\n"
              "Error : Unable to convert Unicode character to multibyte\n");
    EXPECT_EQ(m_nErrorCount - before, 2);
}

}  // namespace
