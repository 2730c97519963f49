#include "schema/KTXMLNamespaceSchemaPair.h"

#include <gtest/gtest.h>

#include "SchemaFiles.h"
#include "schema/KTXMLSchemaDoc.h"

namespace {

TEST(NamespaceSchemaPair, TheFirstDocumentOfANamespaceIsTheOneFound) {
    CKTMemoryFiles files;
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

}  // namespace
