#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "SchemaFiles.h"
#include "SchemaTree.h"
#include "schema/KTCOBOLGenerator.h"
#include "schema/SchemaSet.h"

namespace {

const std::string kXs = "http://www.w3.org/2001/XMLSchema";

TEST(TypeResolution, ANamespaceOfXmlSchemaMakesATypeBuiltIn) {
    const struct {
        const char* uri;
        const char* type;
        bool expected;
        const char* nameAfter;
    } rows[] = {
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
TEST(TypeResolution, ATypeSetsPictureOrUsageAndNoSize) {
    const struct {
        const char* type;
        const char* picture;
        const char* usage;
        bool fraction;
        bool answer;
    } rows[] = {
        {"CDATA", "X", "DISPLAY", false, true},     {"unsignedInt", "9", "DISPLAY", false, true},
        {"integer", "S9", "DISPLAY", false, false}, {"decimal", "S9", "DISPLAY", true, false},
        {"float", "A", "COMP-1", false, false},     {"NMTOKENS", "A", "DISPLAY", false, false},
        {"String", "A", "DISPLAY", false, false},
    };
    CKTXMLElement root;
    const CKTXMLElement* context = Add(&root, "e", {{"xmlns:xs", kXs}});
    const CKTCOBOLGenerator generator;
    for (const auto& row : rows) {
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

TEST(TypeResolution, PrefixesAreBoundByTheNearestDeclarationAbove) {
    CKTXMLElement root;
    CKTXMLElement* schema =
        Add(&root, "schema", {{"xmlns:p", "urn:outer"}, {"targetNamespace", "urn:main"}});
    CKTXMLElement* first = Add(schema, "a", {{"xmlns:p", "urn:inner"}, {"xmlns", "urn:default"}});
    CKTXMLElement* inFirst = Add(first, "b", {{"targetNamespace", "urn:own"}});
    CKTXMLElement* second = Add(schema, "c");
    CKTXMLElement other;
    const CKTXMLElement* apart = Add(&other, "d");
    const struct {
        const CKTXMLElement* context;
        const char* name;
        bool found;
        const char* uri;
    } rows[] = {
        {first, "p:x", true, "urn:inner"},
        {inFirst, "p:x", true, "urn:inner"},
        {second, "p:x", true, "urn:outer"},
        {first, "p:x", true, "urn:inner"},
        {inFirst, "x", true, "urn:default"},
        {second, "x", true, "urn:main"},
        {apart, "x", true, "urn:main"},
        {apart, "p:x", false, ""},
        {inFirst, "q:x", false, ""},
        {inFirst, "xml:lang", true, "http://www.w3.org/XML/1998/namespace"},
        {nullptr, "p:x", false, ""},
        {first, "", false, ""},
    };
    const CurrentSchema current(schema);
    const CKTCOBOLGenerator generator;
    for (const auto& row : rows) {
        SCOPED_TRACE(&row - rows);
        std::string uri;
        EXPECT_EQ(generator.getTypeNamespace(row.context, row.name, uri), row.found);
        EXPECT_EQ(uri, row.uri);
    }
    std::string uri;
    EXPECT_TRUE(generator.getTypeNamespace("p:x", uri));
    EXPECT_EQ(uri, "urn:outer");
    EXPECT_TRUE(generator.getElementNamespace(inFirst, uri));
    EXPECT_EQ(uri, "urn:own");
    EXPECT_TRUE(generator.getElementNamespace(apart, uri));
    EXPECT_EQ(uri, "urn:main");
    EXPECT_FALSE(generator.getNamespaceURI(first, "", uri));
    EXPECT_FALSE(generator.getNamespaceURI(first, "name", uri));
}

TEST(TypeResolution, ALookUpSearchesOneListOfTheDocumentThatTheNamespaceMeans) {
    CKTXMLElement root;
    CKTXMLElement* schema = Add(&root, "xs:schema",
                                {{"targetNamespace", "urn:t"},
                                 {"xmlns:t", "urn:t"},
                                 {"xmlns:o", "urn:o"},
                                 {"xmlns:none", ""}});
    std::vector<CKTXMLElement*> made = {Add(schema, "xs:simpleType")};
    for (const char* tag : {"complexType", "simpleType", "element", "attribute", "group",
                            "attributeGroup", "simpleType"}) {
        made.push_back(Add(schema, std::string("xs:") + tag, {{"name", "n"}}));
    }
    MemoryFiles files;
    CKTSchemaSet set(files);
    CKTXMLSchemaDoc doc(&root, nullptr, "t.xsd", set);
    const CurrentSchema current(schema);
    CKTCOBOLGenerator generator(&doc);
    for (const DeclarationList list :
         {COMPLEX_TYPES, SIMPLE_TYPES, ELEMENTS, ATTRIBUTES, GROUPS, ATTRIBUTE_GROUPS}) {
        for (const char* name : {"t:n", "none:n", "n"}) {
            EXPECT_EQ(generator.findElementByName(schema, name, list), made[list]) << list << name;
        }
        for (const char* name : {"o:n", "unbound:n", "t:N", "t:", ""}) {
            EXPECT_EQ(generator.findElementByName(schema, name, list), nullptr) << list << name;
        }
    }
    EXPECT_EQ(generator.findElementByName(schema, "t:n", SUBSTITUTION_MEMBERS), nullptr);
    EXPECT_EQ(generator.findElementByName(nullptr, "n", ELEMENTS), nullptr);

    EXPECT_EQ(CKTCOBOLGenerator::findElementByName(made, "unbound:n"), made[1]);
    EXPECT_EQ(CKTCOBOLGenerator::findElementByName(made, ""), nullptr);
    EXPECT_EQ(CKTCOBOLGenerator::findElementByName({made[0]}, "n"), nullptr);
}

}  // namespace
