#include "xml/KTDOMParser.h"

#include <unistd.h>

#include <cstdio>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

#include <gtest/gtest.h>

#include "../support/RedirectedStream.h"

namespace {

class ParserTest : public testing::Test {
protected:
    void TearDown() override { std::remove(m_file.c_str()); }
    bool Parse(const std::string& text) {
        std::ofstream(m_file) << text;
        return m_parser.ParseFile(m_file, CKTDOMParser::XML_DOCUMENT, false);
    }
    const std::string m_file =
        testing::TempDir() + "parser-test-" + std::to_string(::getpid()) + ".xml";
    CKTDOMParser m_parser;
};

TEST_F(ParserTest, AFailedParseIsCountedAndTheTreeHoldsTheLastText) {
    m_parser.setVerboseError(false);
    const RedirectedStream errors(std::cerr);
    EXPECT_FALSE(Parse("<r>\n</s>"));
    m_parser.DisplayErrorSummary();
    EXPECT_EQ(m_parser.getXMLDocument(), nullptr);
    EXPECT_EQ(errors.Text(),
              "Fatal Error : " + m_file + "(Line 2, Col 3)\n1 error(s), 0 warning(s)\n");
    m_parser.ResetErrors();
    EXPECT_EQ(m_parser.getErrorCount(), 0);

    ASSERT_TRUE(
        Parse("<!-- c --><?pi x?><p:r xmlns:p='u'>text<b>in</b>more<![CDATA[lost]]></p:r>"));
    const auto root = m_parser.getXMLDocument();
    EXPECT_EQ(root->getName() + root->getValue(), "");
    const CKTXMLElement* r = root->getFirstChildElem();
    EXPECT_EQ(r->getNextSibling(), nullptr);
    EXPECT_EQ(r->getName() + " " + r->getValue(), "p:r more");
    EXPECT_EQ(r->getFirstChildElem()->getValue(), "in");
    EXPECT_EQ(r->getAttribute("xmlns:p")->getValue(), "u");
}

TEST_F(ParserTest, AttributeValuesAreEscapedAndOtherTextIsNot) {
    ASSERT_TRUE(Parse("<r/>"));
    const RedirectedStream console(std::cout);
    const auto root = m_parser.getXMLDocument();
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
