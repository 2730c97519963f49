#include "kcomp/Picture.h"

#include <algorithm>
#include <array>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

// The category and the length; of a numeric item also its digits with the decimals, and an S.
std::string Shown(const std::string& text, const PictureSymbols& symbols = {}) {
    const Picture picture = ReadPicture(text, symbols);
    const std::string named = "PICTURE \"" + text + "\" ";
    if (const std::string& fault = picture.fault.Text(); !fault.empty()) {
        return fault.starts_with(named) ? fault.substr(named.size()) : fault;
    }
    constexpr std::array categories = {"num", "text", "text-edited", "num-edited", "national"};
    std::string shown = categories.at(static_cast<std::size_t>(picture.category));
    shown += " " + std::to_string(picture.length);
    if (picture.category == Category::Numeric) {
        shown += ": " + std::to_string(picture.digits) + "," + std::to_string(picture.decimals);
    }
    return shown + (picture.isSigned ? " S" : "");
}

// Each row: what all pictures of a list are.
struct Row {
    const char* expected;
    const char* pictures;
};

void Check(const Row& row) {
    std::istringstream pictures(row.pictures);
    for (std::string text; pictures >> text;) {
        EXPECT_EQ(Shown(text), row.expected) << text;
    }
}

TEST(Picture, SymbolsDecideCategoryAndSize) {
    const std::vector<Row> rows = {
        // The P is a digit that takes up no room.
        {"num 1: 1,0", "9 9V"},
        {"num 5: 5,0 S", "s9(5) S99999 S9(2)9(003)"},
        {"num 8: 8,3", "9(3)9(2)v9(2)9"},
        {"num 2: 2,2 S", "SV99"},
        {"num 1: 3,0 S", "S9PP S9P(2)V"},
        {"num 3: 5,5", "P(2)9(3) VPP999"},
        {"num 38: 38,18", "9(20)V9(18)"},
        {"text 3", "XXX A(3) 9AX"},
        {"text 2147483647", "X(2147483647)"},
        {"text-edited 5", "XX/XX A(3)B9 X000X"},
        {"national 6", "N(6) NBN/N0"},
        {"num-edited 2", "Z9PP ++"},
        {"num-edited 3", "9B9 ZZZ .99 $99"},
        {"num-edited 4", "ZZV99 -9(3) -$99"},
        {"num-edited 7", "9(5)db **9.99- +.9E+99 9.9E+99 +9.9E+9"},
        {"num-edited 8", "Z,ZZ9.99 -9V99E-99"},
        {"num-edited 10", "99/99/9999"},
        {"num-edited 12", "$$$,$$9.99CR"},
    };
    std::for_each(rows.begin(), rows.end(), Check);
}

TEST(Picture, WhatIsNoPictureIsNamed) {
    const std::vector<Row> rows = {
        {"holds what is no PICTURE symbol", "K9 9C G(5) X() X(2 X(A) (2)"},
        {"has a count of zero", "9(0) X(0) 9(0)9 99(00)V9"},
        {"fits no category of data",
         "S SS9 9S SX V 9V9V9 9VV9 VP PV9 9P9 NX N9 / CR + 9Z Z*9 9.9.9 9V9.9 99+9 9-- 99$ CR99 "
         "+9CR +9- Z9CRDB ZPZ9 PP*9 +Z+ $$ZZ $+9 +9.9E99 "
         "++9.9E+99"},
        {"has more than 38 digits", "S9(39) 9(20)V9(19) 9P(38)"},
        {"is too long", "X(2147483648) X(99999999999999999999)9(99999999999999999999)"},
    };
    std::for_each(rows.begin(), rows.end(), Check);
    EXPECT_EQ(Shown(""), rows[0].expected);
}

TEST(Picture, SpecialNamesChangeCurrencyAndPoint) {
    const PictureSymbols francs{.currency = 'f', .decimalComma = false};
    EXPECT_EQ(Shown("FFF9", francs), "num-edited 4");
    EXPECT_EQ(Shown("$99", francs), "holds what is no PICTURE symbol");
    const PictureSymbols comma{.currency = '$', .decimalComma = true};
    EXPECT_EQ(Shown("$Z.ZZ9,99", comma), "num-edited 9");
    EXPECT_EQ(Shown("9,9,9", comma), "fits no category of data");
    EXPECT_EQ(Shown("9.9.9", comma), "num-edited 5");
}

}  // namespace
