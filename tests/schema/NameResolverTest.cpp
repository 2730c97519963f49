#include "schema/NameResolver.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "SchemaFiles.h"
#include "schema/KTCOBOLGenerator.h"

namespace {

TEST(NameResolver, PrefixesAreBoundByTheNearestDeclarationAbove) {
    CKTXMLElement root;
    CKTXMLElement* schema =
        Add(&root, "schema", {{"xmlns:p", "urn:outer"}, {"targetNamespace", "urn:main"}});
    CKTXMLElement* first = Add(schema, "a", {{"xmlns:p", "urn:inner"}, {"xmlns", "urn:default"}});
    CKTXMLElement* inFirst = Add(first, "b", {{"targetNamespace", "urn:own"}});
    CKTXMLElement* second = Add(schema, "c");
    CKTXMLElement other;
    const CKTXMLElement* apart = Add(&other, "d");
    struct Row {
        const CKTXMLElement* context;
        const char* name;
        bool found;
        const char* uri;
    };
    const std::vector<Row> rows = {
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
    const CKTCurrentSchema current(schema);
    const CKTCOBOLGenerator generator;
    for (const auto& row : rows) {
        SCOPED_TRACE(&row - rows.data());
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

TEST(NameResolver, ALookUpSearchesOneListOfTheDocumentThatTheNamespaceMeans) {
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
    CKTMemoryFiles files;
    CKTSchemaSet set(files);
    CKTXMLSchemaDoc doc(&root, nullptr, "t.xsd", set);
    const CKTCurrentSchema current(schema);
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
