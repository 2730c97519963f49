#include "xml/KTDOMParser.h"

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

#include <gtest/gtest.h>

#include "../support/RedirectedStream.h"

namespace {

class ParserTest : public testing::Test {
protected:
    void SetUp() override {
        m_file = std::filesystem::temp_directory_path() /
                 ("parser-test-" + std::to_string(::getpid()) + ".xml");
    }
    void TearDown() override {
        std::filesystem::remove(m_file);
        m_nErrorCount = 0;
    }
    bool Parse(CKTDOMParser& parser, const std::string& text) {
        std::ofstream(m_file) << text;
        return parser.ParseFile(m_file, CKTDOMParser::XML_DOCUMENT, false);
    }
    std::filesystem::path m_file;
};

TEST_F(ParserTest, TheTreeHoldsElementsAndTheLastText) {
    CKTDOMParser parser;
    EXPECT_EQ(parser.getXMLDocument(), nullptr);
    ASSERT_TRUE(
        Parse(parser,
              "<?xml version='1.0'?><!-- c --><?pi x?>"
              "<p:r xmlns:p='u' k=' v '>text<b>in</b>more<![CDATA[lost]]></p:r><!-- d -->"));
    const auto root = parser.getXMLDocument();
    ASSERT_NE(root, nullptr);
    EXPECT_EQ(root->getName() + root->getValue(), "");
    const CKTXMLElement* r = root->getFirstChildElem();
    EXPECT_EQ(r->getNextSibling(), nullptr);
    EXPECT_EQ(r->getName(), "p:r");
    EXPECT_EQ(r->getValue(), "more");
    EXPECT_EQ(r->getFirstChildElem()->getValue(), "in");
    EXPECT_EQ(r->getAttribute("k")->getValue(), " v ");
    EXPECT_EQ(r->getAttribute("k")->getParent(), r);
    EXPECT_EQ(r->getAttribute("xmlns:p")->getValue(), "u");
    EXPECT_NE(r->getXMLFormatter(), nullptr);
}

TEST_F(ParserTest, AFailedParseIsCountedAndLeavesNoTree) {
    CKTDOMParser parser;
    parser.setVerboseError(false);
    const RedirectedStream errors(std::cerr);
    EXPECT_FALSE(Parse(parser, "<r>\n</s>"));
    parser.DisplayErrorSummary();
    EXPECT_EQ(parser.getXMLDocument(), nullptr);
    EXPECT_EQ(parser.getErrorCount(), 1);
    EXPECT_EQ(errors.Text(),
              "Fatal Error : " + m_file.string() + "(Line 2, Col 3)\n1 error(s), 0 warning(s)\n");
    parser.ResetErrors();
    EXPECT_EQ(parser.getErrorCount(), 0);
    EXPECT_TRUE(Parse(parser, "<r/>"));
}

TEST_F(ParserTest, AttributeValuesAreEscapedAndOtherTextIsNot) {
    CKTDOMParser parser;
    ASSERT_TRUE(Parse(parser, "<r/>"));
    const RedirectedStream console(std::cout);
    const auto root = parser.getXMLDocument();
    xercesc::XMLFormatter& out = *root->getXMLFormatter();
    std::ofstream target(m_file);
    root->getFormatTarget()->setTarget(&target);
    writeIndent(out, 0);
    writeElem(out, "a&b");
    writeAttr(out, "n<", "a<b&\"c\"");
    writeAttr(out, "e", "");
    std::cout << " plain";
    writeIndent(out, 3);
    out << "<&\">";
    root->getFormatTarget()->restoreTarget();
    target.close();
    out << "back";
    EXPECT_EQ(console.Text(), "back");
    std::ifstream file(m_file);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(file), {}),
              "<a&b n<=\"a&lt;b&amp;&quot;c&quot;\" e=\"\" plain   <&\">");
}

}  // namespace
