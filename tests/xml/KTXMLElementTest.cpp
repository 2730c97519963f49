#include "xml/KTXMLElement.h"

#include <array>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "ElementTree.h"

namespace {

using Found = std::vector<CKTXMLElement*>;

CKTXMLElement* WithName(CKTXMLElement* element, const std::string& key) {
    return key.empty() || element->getName() == key ? element : nullptr;
}

TEST(Element, NamesAreSplitAtTheirFirstColon) {
    const std::vector<std::array<const char*, 3>> rows = {{"xs:element", "xs", "element"},
                                                          {"a:b:c", "a", "b:c"},
                                                          {"schema", "", "schema"},
                                                          {"", "", ""},
                                                          {"xs:", "xs", ""},
                                                          {":x", "", "x"}};
    for (const auto& [name, prefix, local] : rows) {
        EXPECT_EQ(CKTXMLNode::getNameQualifier(name), prefix) << name;
        EXPECT_EQ(CKTXMLNode::getNonQualifiedName(name), local) << name;
    }
}

TEST(Element, SearchGoesDownInDocumentOrderOrAlongTheFollowingSiblings) {
    CKTXMLElement root;
    CKTXMLElement* schema = Add(&root, "schema");
    CKTXMLElement* a = Add(schema, "a");
    CKTXMLElement* b = Add(a, "b");
    CKTXMLElement* c = Add(schema, "c");
    CKTXMLElement* second = Add(schema, "b");
    Found all;
    root.findElement("", WithName, all, true);
    EXPECT_EQ(all, (Found{&root, schema, a, b, c, second}));
    Found found;
    c->findElement("", WithName, found, false);
    root.findElement("b", WithName, found, true);
    root.findElement("b", nullptr, found, true);
    EXPECT_EQ(found, (Found{c, second, b, second}));
    EXPECT_FALSE(root.isParent());
    EXPECT_TRUE(b->isParent());

    const auto taken = schema->takeChildElements([c](const CKTXMLElement& e) { return &e == c; });
    EXPECT_EQ(taken.at(0).get(), c);
    EXPECT_EQ(c->getParent(), schema);
    EXPECT_EQ(c->getNextSibling(), nullptr);
    EXPECT_EQ(a->getNextSibling(), second);
    EXPECT_EQ(second->getPrevSibling(), a);
}

TEST(Element, AttributesAreFoundByTheirWholeName) {
    CKTXMLElement element("e");
    EXPECT_EQ(element.getAttribute("type"), nullptr);
    element.addAttribute(std::make_unique<CKTXMLAttribute>("xs:type", "1"));
    EXPECT_EQ(element.getAttribute("type"), nullptr);
    CKTXMLAttribute* first = element.addAttribute(std::make_unique<CKTXMLAttribute>("type", "2"));
    CKTXMLAttribute* again = element.addAttribute(std::make_unique<CKTXMLAttribute>("type", "3"));
    EXPECT_EQ(element.getAttribute("type"), first);
    EXPECT_EQ(element.getAttribute("Type"), nullptr);
    EXPECT_EQ(CKTXMLElement::getNextAttr(first), again);
    EXPECT_EQ(CKTXMLElement::getPrevAttr(first), element.getFirstAttr());
}

}  // namespace
