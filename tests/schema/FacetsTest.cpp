#include "schema/Facets.h"

#include <array>
#include <iostream>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "ElementTree.h"
#include "RedirectedStream.h"
#include "schema/KTCOBOLGenerator.h"

namespace {

using Item = CKTCOBOLRecordItem;

std::unique_ptr<Item> MakeItem(int level, const char* name, const char* size = "",
                               const char* value = "") {
    auto item = std::make_unique<Item>();
    item->m_nLevel = level;
    item->m_nDepth = 8;
    item->m_sMinOccurs = "1";
    item->m_sDataName = name;
    item->m_sPicType = level == 88 ? "" : "X";
    item->m_sPicLength = size;
    item->m_sValue = value;
    return item;
}

// The facets are blank-separated; one without "=" has no value.
void AddFacets(CKTXMLElement* restriction, const char* facets) {
    std::istringstream list(facets);
    for (std::string facet; list >> facet;) {
        const std::size_t end = facet.find('=');
        CKTXMLElement* e = Add(restriction, "xs:" + facet.substr(0, end));
        if (end != std::string::npos) {
            e->addAttribute(std::make_unique<CKTXMLAttribute>("value", facet.substr(end + 1)));
        }
    }
}

// The items share texts with the facets, which therefore stay.
std::string Apply(Item* item, const char* facets, const Attributes& attributes = {}) {
    static CKTXMLElement root;
    CKTXMLElement* restriction = Add(&root, "xs:restriction", attributes);
    AddFacets(restriction, facets);
    const CKTRedirectedStream errors(std::cerr);
    CKTCOBOLGenerator().ProcessElementFacets(item, restriction);
    return errors.Text();
}

std::string Shown(const Item& item) {
    std::ostringstream text;
    text << item.m_sPicType << "(" << item.m_sPicLength << ")" << item.m_nDigits << ","
         << item.m_sFractionDigits;
    for (const auto& child : item.m_Children) {
        text << "; " << child->m_nLevel << "/" << child->m_nDepth << " " << child->m_sDataName
             << " " << (child->IsCondition() ? std::string(child->m_sValue) : Shown(*child));
    }
    return text.str();
}

TEST(Facets, LengthsAndDigitsActInDocumentOrder) {
    const std::vector<std::array<const char*, 3>> rows = {
        {"", "length=10 maxLength=5", "X(5)-1,"},
        {"", "length=10 minLength=3", "X(10)-1,"},
        {"", "length=10 minLength=12", "X(12)-1,"},
        {"", "minLength=7", "X(7)-1,"},
        {"", "minLength=many", "X(many)-1,"},
        {"08", "minLength=8", "X(08)-1,"},
        {"08", "minLength=+9x", "X(+9x)-1,"},
        {"9x", "minLength=10", "X(10)-1,"},
        {"5", "minLength=many minLength=-6", "X(5)-1,"},
        {"5", "maxLength=100", "X(100)-1,"},
        {"5", "length=", "X()-1,"},
        {"5", "totalDigits=5x fractionDigits=2x", "X(5)5,2x"},
        {"5", "totalDigits=+12", "X(5)12,"},
        {"5", "totalDigits=x5", "X(5)0,"},
        {"5", "length minLength maxLength totalDigits fractionDigits Length=9", "X(5)-1,"},
    };
    for (const auto& [size, facets, expected] : rows) {
        const auto item = MakeItem(2, "code", size);
        EXPECT_EQ(Apply(item.get(), facets), "");
        EXPECT_EQ(Shown(*item), expected) << facets;
    }
}

// The name of the XML element stands in the warnings of any other item.
TEST(Facets, AWarningNamesAnItemWithoutXmlNameAsCobolDoes) {
    const auto item = MakeItem(2, "a-b");
    EXPECT_EQ(Apply(item.get(), "pattern maxInclusive=9"),
              "Warning : This version of DORVEX does not support the <pattern> element facet for "
              "element a-b\n"
              "Warning : This version of DORVEX does not support the maxInclusive facet for the "
              "element a-b\n");
    EXPECT_EQ(Shown(*item), "X()-1,");
}

TEST(Facets, WhiteSpaceIsExplainedByTheValueOfTheRestriction) {
    const std::vector<std::array<const char*, 2>> rows = {
        {"preserve",
         "No normalization is done, the value is not changed (this is the behavior required by  "
         "[XML 1.0 (Second Edition)] for element content)"},
        {"replace",
         "All occurrences of #x9 (tab), #xA (line feed) and #xD (carriage return) are replaced "
         "with #x20 (space)"},
        {"collapse",
         "After the processing implied by replace, contiguous sequences of #x20's are collapsed "
         "to a  single #x20, and leading and trailing #x20's are removed"},
        {"Collapse", ""},
        {"", ""},
    };
    for (const auto& [value, explanation] : rows) {
        const auto item = MakeItem(2, "code");
        EXPECT_EQ(Apply(item.get(), "whiteSpace=replace", {{"value", value}}),
                  std::string("Warning : Whitespace facet encountered Warning : Whitespace facet "
                              "encountered for element code - ") +
                      explanation + "\n");
    }
}

TEST(Facets, EnumerationsReplaceInheritedConditionsAndMayMoveTheValue) {
    const std::vector<std::array<const char*, 2>> rows = {
        {"enumeration=A enumeration=B enumeration=A enumeration=C enumeration=D",
         "()-1,; 2/8 part X(4)-1,; 88/9 enumerator-1 A; 88/9 enumerator-2 B; 88/9 enumerator-4 C; "
         "88/9 enumerator-4 D; 3/9 code-value X(6)7,2"},
        {"enumeration=A enumeration", "X(6)7,2; 2/8 part X(4)-1,; 88/9 enumerator-1 A"},
        {"enumeration=A annotation", "X(6)7,2; 2/8 part X(4)-1,; 88/9 enumerator-1 A"},
        {"enumeration", "X(6)7,2; 88/8 old A; 2/8 part X(4)-1,"},
    };
    for (const auto& [facets, expected] : rows) {
        const auto item = MakeItem(2, "code", "6");
        item->m_nDigits = 7;
        item->m_sFractionDigits = "2";
        item->AddChild(MakeItem(88, "old", "", "A"));
        item->AddChild(MakeItem(2, "part", "4", "A"));
        EXPECT_EQ(Apply(item.get(), facets), "");
        EXPECT_EQ(Shown(*item), expected) << facets;
    }
}

TEST(Facets, WithoutARestrictionTheSourceElementHoldsThem) {
    CKTXMLElement root;
    CKTXMLElement* type = Add(&root, "xs:simpleType");
    AddFacets(type, "length=3 enumeration=A enumeration=B any=");
    const auto item = MakeItem(2, "code");
    item->AddChild(MakeItem(88, "old", "", "A"));
    CKTCOBOLGenerator generator;
    generator.ProcessElementFacets(nullptr, type);
    generator.ProcessElementFacets(item.get(), nullptr);
    EXPECT_EQ(Shown(*item), "X()-1,; 88/8 old A");
    // Only a restriction replaces what was inherited, so the first value is a duplicate.
    item->m_pSourceElement = type;
    generator.ProcessElementFacets(item.get(), nullptr);
    EXPECT_EQ(Shown(*item), "X(3)-1,; 88/8 old A; 88/9 enumerator-1 B");
}

}  // namespace
