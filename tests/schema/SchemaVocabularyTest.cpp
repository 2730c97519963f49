#include "schema/SchemaVocabulary.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "ElementTree.h"

namespace {

TEST(SchemaVocabulary, AttributesAreFoundByNameAsWrittenOrByValue) {
    CKTXMLElement root;
    const CKTXMLElement* e = Add(&root, "e", {{"x:a", "1"}, {"b", ""}, {"c", "two"}});
    struct Row {
        const char* name;
        bool found;
        const char* value;
    };
    const std::vector<Row> rows = {
        {"x:a", true, "1"}, {"a", false, ""}, {"b", true, ""}, {"C", false, ""}};
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

}  // namespace
