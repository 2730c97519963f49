#include "xmlgen/KTXMLGenerator.h"

#include <iostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "ElementTree.h"
#include "RedirectedStream.h"
#include "ScratchFiles.h"

namespace {

using Found = std::vector<CKTXMLElement*>;

CKTXMLElement* Any(CKTXMLElement* element, const std::string& /*key*/) {
    return element;
}

TEST(Generator, AQualifiedNameEndsAtTheFirstElementAboveWithoutAName) {
    const auto root = TreeOf(
        "program name=P\n  dataItems name=WS\n    group name=R\n      group\n"
        "        numeric name=A\n      numeric\n      numeric name=b\n");
    Found all;
    root->findElement("", Any, all, true);
    std::vector<std::string> names;
    for (const CKTXMLElement* e : all) {
        names.push_back(CKTXMLGenerator::getQualifiedNameAttr(e));
    }
    EXPECT_EQ(names,
              (std::vector<std::string>{"", "P", "P.WS", "P.WS.R", "", "A", "", "P.WS.R.b"}));
}

TEST(Generator, TheServiceDescriptionGoesToTheConsole) {
    const CKTScratchDirectory scratch;
    const std::string file = (scratch.Path() / "a.xml").string();
    CKTDOMParser parser;
    const auto parse = [&](const std::string& text) {
        WriteFile(file, text);
        EXPECT_TRUE(parser.ParseFile(file, CKTDOMParser::XML_DOCUMENT, false));
        return parser.getXMLDocument();
    };
    const auto root = parse(
        "<program name='P'><dataItems><group name='R'><numeric name='A'/>"
        "<numeric name='filler'/></group></dataItems></program>");
    CKTXMLGenerator generator;
    const auto generate = [&] {
        return generator.GenerateFile("p.xml", file, file, file, CKTXMLGenerator::INTERNAL_MAPPING,
                                      "", true);
    };
    const CKTRedirectedStream errors(std::cerr);
    EXPECT_FALSE(generate());
    generator.setCOBOLDataDictionary(root.get());
    std::string text;
    {
        const CKTRedirectedStream console(std::cout);
        EXPECT_FALSE(generate());
        text = console.Text();
    }
    EXPECT_EQ(errors.Text(),
              "Invalid COBOL Data Dictionary\n"
              "Invalid filename.  Outputting XML to console:\n\n");
    const auto written = parse(text);
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

}  // namespace
