#include "schema/BuiltInTypes.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "ElementTree.h"
#include "schema/KTCOBOLGenerator.h"

namespace {

const std::string kXs = "http://www.w3.org/2001/XMLSchema";

TEST(BuiltInTypes, ANamespaceOfXmlSchemaMakesATypeBuiltIn) {
    struct Row {
        const char* uri;
        const char* type;
        bool expected;
        const char* nameAfter;
    };
    const std::vector<Row> rows = {
        {kXs.c_str(), "p:int", true, "int"},
        {kXs.c_str(), "p:CDATA", true, "CDATA"},
        {kXs.c_str(), "p:NMTOKENS", false, "NMTOKENS"},
        {kXs.c_str(), "q:int", false, "q:int"},
        {kXs.c_str(), "int", false, "int"},
        {"http://www.w3.org/1999/XMLSchema", "p:int", true, "int"},
        {"http://www.w3.org/2000/10/XMLSchema", "p:gDay", true, "gDay"},
        {"see http://www.w3.org: XMLSchema", "p:int", true, "int"},
        {"XMLSchema http://www.w3.org", "p:int", false, "p:int"},
        {"http://www.w3.org/2001/xmlschema", "p:int", false, "p:int"},
        {"https://www.w3.org/2001/XMLSchema", "p:int", false, "p:int"},
        {"urn:XMLSchema", "p:int", false, "p:int"},
    };
    const CKTCOBOLGenerator generator;
    for (const auto& row : rows) {
        CKTXMLElement root;
        const CKTXMLElement* context = Add(&root, "e", {{"xmlns:p", row.uri}});
        std::string type = row.type;
        EXPECT_EQ(CKTCOBOLGenerator().isSupportedDefaultSchemaType(context, type), row.expected)
            << row.uri << " " << row.type;
        EXPECT_EQ(type, row.nameAfter) << row.uri << " " << row.type;
    }
    CKTXMLElement root;
    std::string type = "int";
    EXPECT_TRUE(generator.isSupportedDefaultSchemaType(Add(&root, "e", {{"xmlns", kXs}}), type));
    EXPECT_FALSE(generator.isSupportedDefaultSchemaType(nullptr, type));
}

// The size is the caller's; texts and counts are answered apart from the other numbers.
TEST(BuiltInTypes, ATypeSetsPictureOrUsageAndNoSize) {
    struct Row {
        const char* type;
        const char* picture;
        const char* usage;
        bool fraction;
        bool answer;
    };
    const std::vector<Row> rows = {
        {"CDATA", "X", "DISPLAY", false, true},     {"unsignedInt", "9", "DISPLAY", false, true},
        {"integer", "S9", "DISPLAY", false, false}, {"decimal", "S9", "DISPLAY", true, false},
        {"float", "A", "COMP-1", false, false},     {"NMTOKENS", "A", "DISPLAY", false, false},
        {"String", "A", "DISPLAY", false, false},
    };
    CKTXMLElement root;
    const CKTXMLElement* context = Add(&root, "e", {{"xmlns:xs", kXs}});
    const CKTCOBOLGenerator generator;
    for (const Row& row : rows) {
        SCOPED_TRACE(row.type);
        CKTCOBOLRecordItem item;
        item.m_sPicType = "A";
        item.m_sUsage = "DISPLAY";
        EXPECT_EQ(generator.convertXMLtoCOBOL(&item, context, std::string("xs:") + row.type),
                  row.answer);
        EXPECT_EQ(item.m_sPicType, row.picture);
        EXPECT_EQ(item.m_sUsage, row.usage);
        EXPECT_EQ(item.m_bHasFraction, row.fraction);
        EXPECT_EQ(item.m_sPicLength, "");
    }
    EXPECT_FALSE(generator.convertXMLtoCOBOL(nullptr, context, "xs:string"));
}

}  // namespace
