#include "xml/KTDOMParser.h"

#include <array>
#include <clocale>
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "RedirectedStream.h"
#include "ScratchFiles.h"
#include "xml/KTDOMFormatTarget.h"
#include "xml/Paths.h"

namespace {

class ParserTest : public testing::Test {
protected:
    void SetUp() override { std::setlocale(LC_ALL, "C.UTF-8"); }
    bool Parse(const std::string& text) {
        WriteFile(m_sFile, text);
        return m_Parser.ParseFile(m_sFile, CKTDOMParser::XML_DOCUMENT, false);
    }
    const CKTScratchDirectory m_Scratch;
    const std::string m_sFile = (m_Scratch.Path() / "a.xml").string();
    CKTDOMParser m_Parser;
};

TEST_F(ParserTest, AFailedParseIsCountedAndTheTreeHoldsTheLastText) {
    m_Parser.setVerboseError(false);
    const CKTRedirectedStream errors(std::cerr);
    EXPECT_FALSE(Parse("<r>\n</s>"));
    m_Parser.DisplayErrorSummary();
    EXPECT_EQ(m_Parser.getXMLDocument(), nullptr);
    EXPECT_EQ(errors.Text(),
              "Fatal Error : " + m_sFile + "(Line 2, Col 3)\n1 error(s), 0 warning(s)\n");
    m_Parser.ResetErrors();
    EXPECT_EQ(m_Parser.getErrorCount(), 0);

    ASSERT_TRUE(
        Parse("<!-- c --><?pi x?><p:r xmlns:p='u'>text<b>in</b>more<![CDATA[lost]]></p:r>"));
    const auto root = m_Parser.getXMLDocument();
    EXPECT_EQ(root->getName() + root->getValue(), "");
    const CKTXMLElement* r = root->getFirstChildElem();
    EXPECT_EQ(r->getNextSibling(), nullptr);
    EXPECT_EQ(r->getName() + " " + r->getValue(), "p:r more");
    EXPECT_EQ(r->getFirstChildElem()->getValue(), "in");
    EXPECT_EQ(r->getAttribute("xmlns:p")->getValue(), "u");
}

std::string Shape(const CKTXMLElement* e) {
    std::string text = e->getName() + "(";
    for (const CKTXMLAttribute* a = e->getFirstAttr(); a != nullptr; a = a->getNextSibling()) {
        text += (a == e->getFirstAttr() ? "" : " ") + a->getName() + "=" + a->getValue();
    }
    text += ")" + e->getValue() + "[";
    for (const CKTXMLElement* c = e->getFirstChildElem(); c != nullptr; c = c->getNextSibling()) {
        text += Shape(c);
    }
    return text + "]";
}

TEST_F(ParserTest, TheTreeHasTheShapeOfTheDocument) {
    const std::vector<std::array<const char*, 2>> rows = {
        {"<r b='2' a='1' B='3' a.b='5' a-b='4'/>", "r(B=3 a=1 a-b=4 a.b=5 b=2)[]"},
        {"<p:r p:x='1' xmlns='d' x='2' xmlns:p='u' xml:lang='de'/>",
         "p:r(p:x=1 x=2 xml:lang=de xmlns=d xmlns:p=u)[]"},
        {"<r a=' b\n\tc '>\n<s/>\n</r>", "r(a= b  c )\n[s()[]]"},
        {"<r>one<s>in</s></r>", "r()one[s()in[]]"},
        {"<r>one<s/><t/>two<u/></r>", "r()two[s()[]t()[]u()[]]"},
        {"<r>one<![CDATA[lost]]>two</r>", "r()two[]"},
        {"<r>one<![CDATA[lost]]></r>", "r()one[]"},
        {"<r><![CDATA[lost]]></r>", "r()[]"},
        {"<r>one<!-- -->two</r>", "r()two[]"},
        {"<r>one<?p?></r>", "r()one[]"},
        {"<r>one&amp;two&#33;</r>", "r()one&two![]"},
        {"<!DOCTYPE r [<!ENTITY e 'in'>]><r a='&e;'>one&e;two</r>", "r(a=in)oneintwo[]"},
        {"<!DOCTYPE r [<!ENTITY e 'in<s/>to'>]><r>one&e;two</r>", "r()totwo[s()[]]"},
        {"<!DOCTYPE r [<!ENTITY e 'in<!-- -->'>]><r>one&e;two</r>", "r()two[]"},
        {"<!DOCTYPE r [<!ATTLIST r c CDATA 'def' b NMTOKEN #IMPLIED>]><r b='  x ' d=''/>",
         "r(b=x c=def d=)[]"},
        {"<!DOCTYPE r [<!ELEMENT r (s)>]><r>\n<s/> </r>", "r() [s()[]]"},
        {"<!-- c --><?p?><r>\xc3\xa4</r><!-- c -->", "r()\xc3\xa4[]"},
    };
    for (const auto& [text, shape] : rows) {
        ASSERT_TRUE(Parse(text)) << text;
        EXPECT_EQ(Shape(m_Parser.getXMLDocument().get()), "()[" + std::string(shape) + "]") << text;
    }
}

// Blanks around names do not count in a schema; in any other document they do.
TEST_F(ParserTest, NamesOfASchemaHaveNoBlanks) {
    const std::string text =
        "<x:schema xmlns:x='http://www.w3.org/2001/XMLSchema'><x:annotation><x:appinfo><a name=' n "
        "' ref='&#9;r' type='t&#10;' base=' b' substitutionGroup='s ' memberTypes=' a  b ' "
        "namespace=' u ' schemaLocation=' ' default=' d ' value=' v '/></x:appinfo>"
        "</x:annotation></x:schema>";
    const auto leaf = [](const CKTXMLElement* root) {
        for (; root->getFirstChildElem() != nullptr; root = root->getFirstChildElem()) {
        }
        return Shape(root);
    };
    ASSERT_TRUE(Parse(text));
    EXPECT_EQ(leaf(m_Parser.getXMLDocument().get()),
              "a(base= b default= d  memberTypes= a  b  name= n  namespace= u  ref=\tr "
              "schemaLocation=  substitutionGroup=s  type=t\n value= v )[]");
    const CKTRedirectedStream console(std::cout);
    ASSERT_TRUE(m_Parser.ParseFile(m_sFile, CKTDOMParser::XML_SCHEMA, true));
    EXPECT_EQ(leaf(m_Parser.getXMLDocument().get()),
              "a(base=b default= d  memberTypes=a  b name=n namespace=u ref=r schemaLocation= "
              "substitutionGroup=s type=t value= v )[]");
}

// What the locale lacks is reported for each occurrence, in names and in texts.
TEST_F(ParserTest, EachTextThatTheLocaleLacksIsReported) {
    std::setlocale(LC_ALL, "C");
    const CKTRedirectedStream errors(std::cerr);
    m_Parser.ResetErrors();
    ASSERT_TRUE(Parse("<r \xc3\xa4='1'><\xc3\xa4/><\xc3\xa4 a='\xc3\xa4'>\xc3\xa4</\xc3\xa4></r>"));
    m_Parser.getXMLDocument();
    EXPECT_EQ(m_Parser.getErrorCount(), 5) << errors.Text();
    m_Parser.ResetErrors();
}

TEST_F(ParserTest, AttributeValuesAreEscapedAndOtherTextIsNot) {
    ASSERT_TRUE(Parse("<r/>"));
    const CKTRedirectedStream console(std::cout);
    const auto root = m_Parser.getXMLDocument();
    CKTXMLFormatter& out = *root->getXMLFormatter();
    std::ofstream target(m_sFile);
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
    EXPECT_EQ(ReadFile(m_sFile), "<a&b n<=\"a&lt;b&amp;&quot;c&quot;\" e=\"\" plain   <&\">");
}

TEST(Paths, StepsUpStayAboveTheRoot) {
    EXPECT_EQ(WeavePaths("/a/b/c.xsd", "../../d.xsd"), "/d.xsd");
    EXPECT_EQ(WeavePaths("/a/b.xsd", "../../../c.xsd"), "/../../c.xsd");
}

}  // namespace
