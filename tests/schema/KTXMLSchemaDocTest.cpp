#include "schema/KTXMLSchemaDoc.h"

#include <gtest/gtest.h>

#include "SchemaFiles.h"

namespace {

TEST(SchemaDoc, TheFirstSchemaElementInTheTreeIsTheDocuments) {
    CKTXMLElement root;
    CKTXMLElement* outer = Add(&root, "definitions", {{"targetNamespace", "urn:outer"}});
    CKTMemoryFiles files;
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
