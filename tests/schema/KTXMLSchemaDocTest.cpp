#include "schema/KTXMLSchemaDoc.h"

#include <string>

#include <gtest/gtest.h>

#include "SchemaFiles.h"
#include "SchemaTree.h"
#include "schema/SchemaSet.h"

namespace {

TEST(SchemaDoc, AttributesAreFoundByNameAsWrittenOrByValue) {
    CKTXMLElement root;
    const CKTXMLElement* e = Add(&root, "e", {{"x:a", "1"}, {"b", ""}, {"c", "two"}});
    const struct {
        const char* name;
        bool found;
        const char* value;
    } rows[] = {{"x:a", true, "1"}, {"a", false, ""}, {"b", true, ""}, {"C", false, ""}};
    for (const auto& row : rows) {
        std::string value = "before";
        EXPECT_EQ(findAttrByName(e, row.name, &value), row.found) << row.name;
        EXPECT_EQ(findAttrByName(e, row.name, nullptr), row.found) << row.name;
        EXPECT_EQ(value, row.value) << row.name;
    }
    EXPECT_TRUE(findAttrByValue(e, "two"));
    EXPECT_FALSE(findAttrByValue(e, "tw"));
    EXPECT_FALSE(findAttrByValue(e, ""));
    EXPECT_FALSE(findAttrByValue(&root, "1"));
}

TEST(SchemaDoc, TheFirstDocumentOfANamespaceIsTheOneFound) {
    MemoryFiles files;
    CKTSchemaSet set(files);
    CKTXMLSchemaDoc first(set);
    CKTXMLSchemaDoc second(set);
    CKTXMLNamespaceSchemaPair one("urn:a", &first);
    CKTXMLNamespaceSchemaPair two("urn:b", &second);
    CKTXMLNamespaceSchemaPair again;
    again.setNS("urn:a");
    again.setSchemaDoc(&second);
    using Pair = CKTXMLNamespaceSchemaPair;
    EXPECT_EQ(Pair::findDocumentByNamespace("urn:a", {&two, &one, &again}), &first);
    EXPECT_EQ(Pair::findDocumentByNamespace("urn:a", {&again, &one}), &second);
    EXPECT_EQ(Pair::findDocumentByNamespace("urn:A", {&one}), nullptr);
    EXPECT_EQ(Pair::findDocumentByNamespace("urn", {&one}), nullptr);
    EXPECT_EQ(Pair::findDocumentByNamespace("urn:a", {}), nullptr);
    EXPECT_EQ(again.getNamespaceURI(), "urn:a");
}

TEST(SchemaDoc, TheFirstSchemaElementInTheTreeIsTheDocuments) {
    CKTXMLElement root;
    CKTXMLElement* outer = Add(&root, "definitions", {{"targetNamespace", "urn:outer"}});
    MemoryFiles files;
    CKTSchemaSet set(files);
    CKTXMLSchemaDoc none(&root, nullptr, "t.xml", set);
    EXPECT_EQ(none.getSchemaElement(), nullptr);
    EXPECT_FALSE(none.InitializeElementLists());
    EXPECT_EQ(none.getTargetNamespace(), "");

    CKTXMLElement* schema = Add(Add(outer, "types"), "schema", {{"targetNamespace", "urn:t"}});
    CKTXMLSchemaDoc empty(&root, nullptr, "t.xml", set);
    EXPECT_EQ(empty.getSchemaElement(), schema);
    EXPECT_FALSE(empty.InitializeElementLists());
    EXPECT_EQ(empty.getTargetNamespace(), "");

    CKTXMLElement* inner = Add(Add(Add(schema, "annotation"), "appinfo"), "schema");
    Add(inner, "element", {{"name", "inner"}});
    CKTXMLElement* global = Add(schema, "element", {{"name", "outer"}});
    const CKTXMLSchemaDoc doc(&root, nullptr, "t.xml", set);
    EXPECT_EQ(doc.getSchemaElement(), schema);
    EXPECT_EQ(doc.getSchemaElements(), CKTXMLSchemaDoc::ElementList{schema});
    EXPECT_EQ(doc.getList(ELEMENTS), CKTXMLSchemaDoc::ElementList{global});
    EXPECT_EQ(doc.getTargetNamespace(), "urn:t");
}

}  // namespace
