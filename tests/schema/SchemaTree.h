#ifndef DORVEX_TESTS_SCHEMA_SCHEMATREE_H
#define DORVEX_TESTS_SCHEMA_SCHEMATREE_H

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "schema/GeneratorState.h"
#include "xml/KTXMLElement.h"

using Attributes = std::vector<std::pair<std::string, std::string>>;

// Appends an element that the parser library need not find valid.
inline CKTXMLElement* Add(CKTXMLElement* parent, const std::string& name,
                          const Attributes& attributes = {}) {
    CKTXMLElement* child = parent->addChildElement(std::make_unique<CKTXMLElement>(name));
    child->setParent(parent);
    for (const auto& [attribute, value] : attributes) {
        child->addAttribute(std::make_unique<CKTXMLAttribute>(attribute, value))->setParent(child);
    }
    return child;
}

// Makes `schema` the process-wide current schema element as long as it lives.
class CurrentSchema {
public:
    explicit CurrentSchema(const CKTXMLElement* schema) {
        GeneratorState().currentSchemaElement = schema;
    }
    ~CurrentSchema() { GeneratorState().currentSchemaElement = nullptr; }
    CurrentSchema(const CurrentSchema&) = delete;
    CurrentSchema& operator=(const CurrentSchema&) = delete;
};

#endif
