#include "xmlgen/KTXMLGenerator.h"

#include <unistd.h>

#include <cstdio>
#include <fstream>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "../support/RedirectedStream.h"

namespace {

using Found = std::vector<CKTXMLElement*>;

CKTXMLElement* Any(CKTXMLElement* element, const std::string& /*key*/) {
    return element;
}

class GeneratorTest : public testing::Test {
protected:
    void TearDown() override { std::remove(m_file.c_str()); }
    std::unique_ptr<CKTXMLElement> Parse(CKTDOMParser& parser, const std::string& text) {
        std::ofstream(m_file) << text;
        EXPECT_TRUE(parser.ParseFile(m_file, CKTDOMParser::XML_DOCUMENT, false));
        return parser.getXMLDocument();
    }
    const std::string m_file =
        testing::TempDir() + "generator-test-" + std::to_string(::getpid()) + ".xml";
    CKTDOMParser m_parser;
};

TEST_F(GeneratorTest, AQualifiedNameEndsAtTheFirstElementAboveWithoutAName) {
    const auto root = Parse(m_parser,
                            "<program name='P'><dataItems name='WS'><group name='R'><group>"
                            "<numeric name='A'/></group><numeric/>"
                            "<numeric name='b'/></group></dataItems></program>");
    Found all;
    root->findElement("", Any, all, true);
    std::vector<std::string> names;
    for (const CKTXMLElement* e : all) {
        names.push_back(CKTXMLGenerator::getQualifiedNameAttr(e));
    }
    EXPECT_EQ(names,
              (std::vector<std::string>{"", "P", "P.WS", "P.WS.R", "", "A", "", "P.WS.R.b"}));
}

TEST_F(GeneratorTest, TheServiceDescriptionGoesToTheConsole) {
    const auto root = Parse(m_parser,
                            "<program name='P'><dataItems><group name='R'><numeric name='A'/>"
                            "<numeric name='filler'/></group></dataItems></program>");
    CKTXMLGenerator generator;
    const auto generate = [&] {
        return generator.GenerateFile("p.xml", m_file, m_file, m_file,
                                      CKTXMLGenerator::INTERNAL_MAPPING, "", true);
    };
    const RedirectedStream errors(std::cerr);
    EXPECT_FALSE(generate());
    generator.setCOBOLDataDictionary(root.get());
    std::string text;
    {
        const RedirectedStream console(std::cout);
        EXPECT_FALSE(generate());
        text = console.Text();
    }
    EXPECT_EQ(errors.Text(),
              "Invalid COBOL Data Dictionary\n"
              "Invalid filename.  Outputting XML to console:\n\n");
    CKTDOMParser parser;
    const auto written = Parse(parser, text);
    const CKTXMLElement* service = written->getFirstChildElem();
    EXPECT_EQ(service->getName() + service->getAttribute("dataDictFilename")->getValue(),
              "servicep.xml");
    Found all;
    written->findElement("", Any, all, true);
    std::string seen;
    for (const CKTXMLElement* e : all) {
        if (e->getAttribute("dataType") != nullptr) {
            seen += e->getName() + " " + e->getAttribute("dataType")->getValue() + "; ";
        } else if (e->getAttribute("item") != nullptr) {
            seen += e->getName() + " " + e->getAttribute("item")->getValue() + "; ";
        }
    }
    EXPECT_EQ(seen, "parameter string; mapping R; field integer; mapping R.A; ");
}

TEST_F(GeneratorTest, AnEntryIsIdleUnlessItsNameIsThatOfADataItem) {
    const auto root = Parse(
        m_parser,
        "<program name='P'><fileSection><fd name='F'><group name='R'><group><numeric name='A'/>"
        "</group><group name=''><numeric name='B'/></group><dataItems name='S'><numeric name='C'>"
        "<numericCondition name='N'/></numeric></dataItems><numeric name='X.Y' redefines='true'/>"
        "<Group name='Z'/><properties><numeric name='Q'/></properties></group></fd></fileSection>"
        "</program>");
    CKTXMLCOBOLExternalMapping mapping;
    for (const char* name : {"F.R",   "A",    "F.R..B", "F.R.S.C",   "F.R.X.Y", "A",
                             "F.R.A", "F.R.", "F.R.S",  "F.R.S.C.N", "F.R.Z",   "F.R.properties.Q",
                             "Q",     "R",    "F",      "",          "P.F.R",   "F.R ",
                             "f.r",   "R"}) {
        auto entry = std::make_unique<CKTXMLCOBOLMapping>();
        entry->m_sCobolName = name;
        mapping.addXMLCOBOLMapping(std::move(entry));
    }
    std::vector<std::string> idle;
    const CKTDictionaryView view(FindDictionaryRecord(root.get()), &mapping);
    for (const CKTXMLCOBOLMapping* entry : mapping.FindUnmatched()) {
        idle.push_back(entry->m_sCobolName);
    }
    EXPECT_EQ(idle, (std::vector<std::string>{"F.R.A", "F.R.", "F.R.S", "F.R.S.C.N", "F.R.Z",
                                              "F.R.properties.Q", "Q", "R", "F", "", "P.F.R",
                                              "F.R ", "f.r", "R"}));
}

}  // namespace
