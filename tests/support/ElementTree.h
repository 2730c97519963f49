#ifndef DORVEX_TESTS_SUPPORT_ELEMENTTREE_H
#define DORVEX_TESTS_SUPPORT_ELEMENTTREE_H

#include <memory>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "xml/KTXMLElement.h"

using Attributes = std::vector<std::pair<std::string, std::string>>;

/// Appends an element that the parser library need not find valid, and returns it.
inline CKTXMLElement* Add(CKTXMLElement* parent, const std::string& name,
                          const Attributes& attributes = {}) {
    CKTXMLElement* child = parent->addChildElement(std::make_unique<CKTXMLElement>(name));
    child->setParent(parent);
    for (const auto& [attribute, value] : attributes) {
        child->addAttribute(std::make_unique<CKTXMLAttribute>(attribute, value))->setParent(child);
    }
    return child;
}

/// Builds a tree, below an element without a name, from lines of "tag attribute=value ...", each
/// two blanks deeper than its parent's.
inline std::unique_ptr<CKTXMLElement> TreeOf(const std::string& text) {
    auto root = std::make_unique<CKTXMLElement>();
    std::vector<CKTXMLElement*> above = {root.get()};
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        const std::size_t depth = line.find_first_not_of(' ') / 2;
        std::istringstream words(line);
        std::string tag;
        words >> tag;
        Attributes attributes;
        for (std::string word; words >> word;) {
            const std::size_t sign = word.find('=');
            attributes.emplace_back(word.substr(0, sign), word.substr(sign + 1));
        }
        above.resize(depth + 1);
        above.push_back(Add(above.back(), tag, attributes));
    }
    return root;
}

#endif
