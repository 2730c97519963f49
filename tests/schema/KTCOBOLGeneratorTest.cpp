#include "schema/KTCOBOLGenerator.h"

#include <array>
#include <iostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "RedirectedStream.h"
#include "SchemaFiles.h"
#include "ScratchFiles.h"

namespace {

const std::string kNotice = "Invalid filename.  Outputting  to console:\n\n";
const Attributes kSchemaPrefix = {{"xmlns:x", "http://www.w3.org/2001/XMLSchema"}};

struct Outcome {
    bool toFile = false;
    std::string output;
    std::string errors;
    int counted = 0;
};

Outcome Generate(CKTXMLSchemaDoc* doc, const std::string& file) {
    const CKTCurrentSchema none(nullptr);
    const CKTRedirectedConsole console;
    CKTCOBOLGenerator generator(doc);
    const bool toFile = generator.GenerateFile(file, "", false, false);
    return {toFile, console.Output(), console.Errors(), console.Counted()};
}

Outcome Generate(CKTXMLElement& root, const std::string& file) {
    CKTMemoryFiles files;
    CKTSchemaSet set(files);
    CKTXMLSchemaDoc doc(&root, nullptr, "t.xsd", set);
    return Generate(&doc, file);
}

TEST(Generator, WithoutASchemaNothingIsWritten) {
    const CKTScratchDirectory scratch;
    const std::string file = (scratch.Path() / "a.cpy").string();
    CKTXMLElement root;
    Add(&root, "definitions");
    CKTMemoryFiles files;
    CKTSchemaSet set(files);
    CKTXMLSchemaDoc noSchema(&root, nullptr, "t.xsd", set);
    struct Row {
        CKTXMLSchemaDoc* doc;
        const char* errors;
    };
    const std::vector<Row> rows = {
        {nullptr, "Internal Error : Error initializing schema document\n\n"},
        {&noSchema, "Internal Error : Unable to locate schema element\n\n"}};
    for (const auto& row : rows) {
        for (const std::string& name : {std::string(), file}) {
            WriteFile(file, "earlier text");
            const Outcome run = Generate(row.doc, name);
            EXPECT_EQ(run.errors, row.errors);
            EXPECT_EQ(run.output, name.empty() ? kNotice : "");
            EXPECT_EQ(run.toFile, !name.empty());
            EXPECT_EQ(run.counted, 1);
            EXPECT_EQ(ReadTree(scratch.Path()),
                      (FileTree{{"a.cpy", name.empty() ? "earlier text" : ""}}));
        }
    }
}

TEST(Generator, QualifiedAttributesAreRefusedByTheValueTrueAlone) {
    for (const char* form : {"qualified", "unqualified", "True", "true ", ""}) {
        CKTXMLElement root;
        bool children = false;
        const CKTRedirectedStream errors(std::cerr);
        EXPECT_TRUE(CKTCOBOLGenerator::ProcessSchemaElement(
            Add(&root, "schema", {{"attributeFormDefault", form}}), children));
        EXPECT_TRUE(children) << form;
        EXPECT_EQ(errors.Text(), "") << form;
    }
    CKTXMLElement root;
    CKTXMLElement* schema = Add(&root, "schema", {{"attributeFormDefault", "true"}});
    Add(schema, "element", {{"name", "a"}});
    const Outcome run = Generate(root, "");
    EXPECT_EQ(run.output, kNotice);
    EXPECT_EQ(run.errors,
              "Error : COBOL XML does not support namespace qualifiers for attributes in instance "
              "documents\n\n");
    EXPECT_EQ(run.counted, 1);
}

TEST(Generator, FreeFormItemsLeaveOutWhatTheyDoNotHave) {
    struct Row {
        const char* name;
        const char* type;
        const char* xmlName;
        unsigned level;
        unsigned indent;
        bool isAttribute;
        const char* expected;
    };
    const std::vector<Row> rows = {
        {"CUST", "PIC X(5)", "cust", 9, 3, true,
         "   09  CUST PIC X(5) identified by \"cust\" is attribute"},
        {"CUST", "", "", 10, 0, false, "10  CUST "},
        {"CUST", "", "c", 1, 1, false, " 01  CUST identified by \"c\" "},
        {"", "PIC X", "c", 1, 1, true, ""},
    };
    for (const auto& row : rows) {
        const CKTRedirectedStream output(std::cout);
        CKTCOBOLGenerator::writeRecordItem(row.name, row.type, row.xmlName, row.level, row.indent,
                                           row.isAttribute);
        EXPECT_EQ(output.Text(), row.expected);
    }
}

TEST(Generator, ADumpIndentsWhatIsBelowTheElement) {
    CKTXMLElement root;
    CKTXMLElement* a = Add(&root, "x:a", {{"n", "1"}, {"x:m", ""}});
    Add(&root, "not-below");
    Add(Add(Add(a, "b"), "c", {{"q", "\"&"}}), "d");
    Add(a, "e");
    const CKTRedirectedStream output(std::cout);
    CKTCOBOLGenerator::dumpElement(a, "> ");
    EXPECT_EQ(output.Text(),
              "> x:a n=\"1\" x:m=\"\" \n"
              ">  b \n"
              ">   c q=\"\"&\" \n"
              ">    d \n"
              ">  e \n");
}

TEST(Generator, GroupsThatLeadBackToThemselvesAreLeftOut) {
    const std::vector<std::array<const char*, 3>> rows = {
        {"x:group", "x:element", ""}, {"x:attributeGroup", "x:attribute", " is attribute"}};
    for (const auto& [groupTag, memberTag, clause] : rows) {
        CKTXMLElement root;
        CKTXMLElement* schema = Add(&root, "x:schema", kSchemaPrefix);
        CKTXMLElement* type = Add(Add(schema, "x:element", {{"name", "r"}}), "x:complexType");
        Add(type, groupTag, {{"ref", "g"}});
        CKTXMLElement* group = Add(schema, groupTag, {{"name", "g"}});
        Add(group, groupTag, {{"ref", "g"}});
        Add(group, memberTag, {{"name", "b"}, {"type", "x:CDATA"}});
        const Outcome run = Generate(root, "");
        EXPECT_EQ(run.output, kNotice +
                                  "       01 r identified by \"r\".\n"
                                  "        02 b PIC X(80) identified by \"b\"" +
                                  clause + ".\n\n");
        EXPECT_EQ(run.errors,
                  "Error : Cannot convert recursive reference of g to COBOL record\n\n"
                  "Successfully converted 1 of 1 schema head element(s).\n\n");
    }
}

}  // namespace
