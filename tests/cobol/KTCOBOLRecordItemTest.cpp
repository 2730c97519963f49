#include "cobol/KTCOBOLRecordItem.h"

#include <array>
#include <iostream>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "RedirectedStream.h"

namespace {

using Item = CKTCOBOLRecordItem;

std::unique_ptr<Item> MakeItem(int level, const char* name, const char* picture = "") {
    auto item = std::make_unique<Item>();
    item->m_nLevel = level;
    item->m_sDataName = name;
    item->m_sMinOccurs = "1";
    item->m_sPicType = picture;
    item->m_sPicLength = *picture != '\0' ? "1" : "";
    return item;
}

Item* AddTo(Item* parent, const char* name, const char* picture = "") {
    return parent->AddChild(MakeItem(parent->m_nLevel + 1, name, picture));
}

std::string Written(Item* item, const char* prefix, bool unique) {
    const CKTRedirectedStream output(std::cout);
    Item::OutputCOBOLItem(item, prefix, true, unique);
    return output.Text();
}

TEST(RecordItem, OnlyItemsWithSomethingToWriteAreValid) {
    struct Row {
        int level;
        const char* name;
        const char* type;
        const char* length;
        const char* usage;
        const char* value;
        int childLevel;
        char expected;  // v: valid, w: refused with a warning, i: refused in silence
    };
    const std::vector<Row> rows = {
        {1, "A", "X", "80", "", "", 0, 'v'},     {49, "A", "9", "4", "", "", 0, 'v'},
        {50, "A", "X", "80", "", "", 0, 'i'},    {0, "A", "X", "80", "", "", 0, 'i'},
        {-1, "A", "X", "80", "", "", 0, 'i'},    {1, "", "X", "80", "", "", 0, 'i'},
        {88, "A", "", "", "", "v", 0, 'v'},      {88, "A", "", "", "", "", 0, 'i'},
        {88, "", "", "", "", "v", 0, 'i'},       {2, "A", "", "", "COMP-1", "", 0, 'v'},
        {2, "A", "", "", "COMP-2", "", 0, 'v'},  {2, "A", "", "", "COMP-3", "", 0, 'w'},
        {2, "A", "9", "", "COMP-1", "", 0, 'w'}, {2, "A", "X", "", "", "", 0, 'w'},
        {1, "A", "", "", "", "", 2, 'v'},        {1, "A", "", "", "", "", 88, 'w'},
        {1, "A", "", "9", "", "", 2, 'w'},       {1, "A", "", "", "", "", 0, 'w'},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(&row - rows.data());
        const auto item = MakeItem(row.level, row.name, row.type);
        item->m_sPicLength = row.length;
        item->m_sUsage = row.usage;
        item->m_sValue = row.value;
        if (row.childLevel != 0) {
            item->AddChild(MakeItem(row.childLevel, "B", "X"))->m_sValue = "v";
        }
        const CKTRedirectedStream errors(std::cerr);
        EXPECT_EQ(item->IsValidCOBOLItem(), row.expected == 'v');
        EXPECT_EQ(item->IsValidCOBOLItem(), row.expected == 'v');
        EXPECT_EQ(errors.Text(), row.expected != 'w' ? ""
                                                     : "Warning : Unable to convert schema element "
                                                       "\"A\" to COBOL (empty structure)\n");
        item->m_sMinOccurs = "";
        EXPECT_FALSE(item->IsValidCOBOLItem());
    }
}

TEST(RecordItem, PicturesShareTheDigitsBetweenBothSidesOfThePoint) {
    struct Row {
        const char* type;
        const char* length;
        int digits;
        const char* fraction;
        bool decimal;
        const char* expected;
    };
    const std::vector<Row> rows = {
        {"X", "80", -1, "", false, " PIC X(80)"},      {"9", "18", 5, "", false, " PIC 9(5)"},
        {"9", "18", 5, "2", false, " PIC 9(3)"},       {"S9", "9", -1, "", true, " PIC S9(9)"},
        {"S9", "9", -1, "2", true, " PIC S9(9)V9(2)"}, {"S9", "9", -1, "0", true, " PIC S9(9)"},
        {"S9", "9", 7, "2", true, " PIC S9(5)V9(2)"},  {"9", "9", 3, "2", true, " PIC 9(1)V9(2)"},
        {"9", "9", 2, "2", true, " PIC V9(2)"},        {"S9", "9", 2, "2", true, " PIC SV9(2)"},
        {"S9", "9", 2, "3", true, " PIC SV9(3)"},      {"", "9", 2, "2", true, ""},
        {"X", "00", -1, "", false, " PIC X(1)"},       {"9", "18", 0, "", false, " PIC 9(1)"},
        {"9", "18", 2, "+02", false, " PIC 9(1)"},     {"X", "+010", -1, "", false, " PIC X(10)"},
    };
    for (const auto& row : rows) {
        const auto item = MakeItem(1, "A", row.type);
        item->m_sPicLength = row.length;
        item->m_nDigits = row.digits;
        item->m_sFractionDigits = row.fraction;
        item->m_bHasFraction = row.decimal;
        EXPECT_EQ(item->PictureClause(), row.expected);
    }
}

TEST(RecordItem, ClausesFollowInTheirOrder) {
    const auto top = MakeItem(1, "A");
    top->m_sXMLName = "a";
    top->m_sNamespace = "urn:a";
    top->m_sCountInName = "A-count";
    Item* same = AddTo(top.get(), "B", "X");
    same->m_nDepth = 9;
    same->m_sNamespace = "urn:a";
    same->m_sMaxOccurs = "4";
    same->m_bIsAttribute = true;
    Item* other = AddTo(top.get(), "C");
    other->m_sUsage = "COMP-2";
    other->m_sNamespace = "urn:c";
    other->m_pRedefines = same;
    other->m_sMaxOccurs = "unbounded";
    Item* third = AddTo(top.get(), "D", "9");
    third->m_sMaxOccurs = "1";
    const auto unnamed = MakeItem(2, "");
    third->m_pRedefines = unnamed.get();
    Item* condition = third->AddChild(MakeItem(88, "E"));
    condition->m_sValue = "say \"x\"";

    const CKTRedirectedConsole console;
    EXPECT_EQ(Written(top.get(), "P-", false),
              "       01 P-A identified by \"a\" namespace is \"urn:a\" count in A-count.\n"
              "         02 P-B PIC X(1) occurs 4 times is attribute.\n"
              "       02 P-C redefines P-B USAGE COMP-2 namespace is \"urn:c\".\n"
              "       02 P-D PIC 9(1).\n"
              "       88 P-E value is \"say \"\"x\"\"\".\n");
    EXPECT_EQ(console.Errors(), "Error : Redefines specified, but no COBOL name present\n");
    EXPECT_EQ(console.Counted(), 1);
    EXPECT_FALSE(Item::OutputCOBOLItem(nullptr, "", true, true));
    EXPECT_FALSE(Item::OutputCOBOLItem(unnamed.get(), "", false, false));
    EXPECT_TRUE(Item::OutputCOBOLItem(same, "", false, false));
    EXPECT_EQ(console.Output(), "         02 B PIC X(1) occurs 4 times is attribute.\n");
}

TEST(RecordItem, LaterNamesakesAreNumbered) {
    const auto top = MakeItem(1, "A");
    AddTo(top.get(), "A", "X")->m_sCountInName = "A-count";
    AddTo(top.get(), "A", "X")->m_sCountInName = "A-count";
    AddTo(top.get(), "A-1", "X");
    Item* unused = top->AddChild(MakeItem(50, "G", "X"));
    unused->AddChild(MakeItem(3, "B", "X"));
    AddTo(top.get(), "G", "X");
    Item* group = AddTo(top.get(), "B");
    AddTo(group, "A", "X");
    Item* last = AddTo(group, "a", "X");
    EXPECT_EQ(Written(top.get(), "P-", true),
              "       01 P-A.\n"
              "       02 P-A-1 PIC X(1) count in A-1-count.\n"
              "       02 P-A-2 PIC X(1) count in A-2-count.\n"
              "       02 P-A-1-1 PIC X(1).\n"
              "       02 P-G PIC X(1).\n"
              "       02 P-B-1.\n"
              "       03 P-A-3 PIC X(1).\n"
              "       03 P-a-4 PIC X(1).\n");
    last->m_sDataName = "G";
    EXPECT_EQ(Written(last, "", true), "       03 G-1 PIC X(1).\n");
    CKTItemText name;
    Item::setCOBOLDataName(name, "a_b__c-d");
    EXPECT_EQ(name, "a-b--c-d");
}

// Few names and many levels, some items that cannot be written among them.
std::unique_ptr<Item> MakeRecord(unsigned number) {
    static constexpr std::array<const char*, 6> kNames = {"A", "B", "A-1", "B-1", "A-1-1", "C"};
    std::mt19937 next(number);
    auto top = MakeItem(1, "A");
    std::vector<Item*> items = {top.get()};
    for (int i = 0; i < 120; ++i) {
        Item* parent = items[next() % items.size()];
        const char* picture = next() % 4 != 0 ? "X" : "";
        items.push_back(AddTo(parent, kNames.at(next() % kNames.size()), picture));
    }
    return top;
}

void RenameByTheSearch(Item* top, Item* item) {
    if (!item->IsValidCOBOLItem()) {
        return;
    }
    const std::string name(item->m_sDataName);
    for (int n = 1;; ++n) {
        bool reached = false;
        const bool namesake = Item::FindRecordItemByName(top, item, reached) && !reached;
        if (item == top || (!namesake && !(item->m_sDataName == top->m_sDataName))) {
            break;
        }
        item->m_sDataName = name + "-" + std::to_string(n);
    }
    for (const auto& child : item->m_Children) {
        RenameByTheSearch(top, child.get());
    }
}

TEST(RecordItem, NumbersAreThoseOfTheSearchForAnEarlierNamesake) {
    const CKTRedirectedStream errors(std::cerr);
    for (unsigned number = 1; number <= 20; ++number) {
        const auto searched = MakeRecord(number);
        RenameByTheSearch(searched.get(), searched.get());
        const auto given = MakeRecord(number);
        EXPECT_EQ(Written(given.get(), "", true), Written(searched.get(), "", false)) << number;
    }
}

}  // namespace
